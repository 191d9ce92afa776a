// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWindow;

/**
 * Waits until the window manager has let go of a hidden top-level window; only then may it become
 * a child again, since the manager takes a window that it lets go of out of whatever it is in.
 *
 * Blocks for some milliseconds, and for a second at most when the manager does not answer. Returns
 * at once where no window manager is involved, and on other window systems than X11. GUI thread.
 */
void waitForWithdrawal(const QWindow &window);
