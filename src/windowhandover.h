// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWindow;

// What a window manager does for a window that goes, it does in its own time. These wait for it
// without processing events: for some milliseconds, and for a limited time when the manager does
// not answer. They return at once where there is nothing to wait for, and on other window systems
// than X11. GUI thread.

/** Waits until a window that was asked to become active has the keyboard. A manager that meanwhile
 *  loses the window that had it may give it to none. */
void waitForKeyboard(const QWindow &window);

/** Waits until the manager has let go of a hidden top-level window. Only then may it become a child
 *  again: the manager takes a window that it lets go of out of whatever it is in. */
void waitForWithdrawal(const QWindow &window);
