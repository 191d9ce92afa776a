// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPoint>

class QMouseEvent;
class QWidget;

/**
 * Moves a frameless window by dragging: an event filter on one widget (the window itself or a
 * part of it) that moves the target window. A maximised window is restored by it, once the pointer
 * has gone far enough to mean it. It never consumes an event. GUI thread only.
 */
class MoveFilter : public QObject
{
    Q_OBJECT

public:
    /** Filters @p watched and moves @p target, which becomes the parent. */
    MoveFilter(QWidget *target, QWidget *watched);

    /** Makes @p target a frameless window and returns a new filter, owned by the target. */
    static MoveFilter *installMoveFilter(QWidget *target, QWidget *watched);

    bool eventFilter(QObject *object, QEvent *event) override;

signals:
    void doubleClicked();

private:
    void press(const QMouseEvent &event);
    void drag();
    bool isMeant() const;
    void restoreUnderPointer();

    QWidget *mMoveWidget = nullptr;
    QWidget *mWatched = nullptr;
    bool mPressed = false;
    QPoint mPressPos;    // in the watched widget
    QPoint mPressedFrom; // on the screen
};
