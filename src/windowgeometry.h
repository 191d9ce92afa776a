// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QRect>

class QWidget;

/**
 * Keeps the place of a top-level window in the settings from one run to the next, and the window
 * within what the screens can show when it opens.
 *
 * The window is not owned and must live longer. GUI thread only.
 */
class WindowGeometry : public QObject
{
    Q_OBJECT

public:
    explicit WindowGeometry(QWidget *window);

    /** Puts the window, unless it is maximised, where it was last, or into its default place when
     *  no screen shows the centre of that one. */
    void restore();
    /** Stores geometry and maximised state. */
    void store() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fit();
    void confirm();

    QWidget *mWindow = nullptr;
    QRect mUnconfirmedRect;
};
