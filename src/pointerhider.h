// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPoint>
#include <QTimer>

class QWidget;

/**
 * Hides the pointer over a picture that fills the screen, after some seconds without moving, and
 * shows it again at a move. It asks where the pointer is: what the video output lays over the
 * picture does not hand the moves on.
 *
 * GUI thread only. A child of the picture.
 */
class PointerHider : public QObject
{
    Q_OBJECT

public:
    explicit PointerHider(QWidget *picture);

    /** Whether the pointer may be hidden: while the picture fills the screen. */
    void setActive(bool isActive);

private:
    void look();

    QWidget *mPicture = nullptr; // the parent
    QTimer mTimer;
    QElapsedTimer mSinceMove;
    QPoint mPlace;
};
