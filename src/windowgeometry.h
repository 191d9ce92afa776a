// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

class QWidget;

/**
 * Keeps the place of a top-level window in the settings from one run to the next.
 *
 * The window is not owned and must live longer. GUI thread only.
 */
class WindowGeometry
{
public:
    explicit WindowGeometry(QWidget *window) : mWindow(window) {}

    /** Puts the window, unless it is maximised, where it was last, or into its default place when
     *  no screen shows the centre of that one. */
    void restore();
    /** To be called when the window becomes active: puts right what the window system made of the
     *  geometry that was restored. Does something the first time only. */
    void confirm();
    /** Stores geometry and maximised state. */
    void store() const;

private:
    QWidget *mWindow = nullptr;
    QRect mUnconfirmedRect;
};
