// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWindow;

// What a window manager does for a window that goes, it does in its own time. On other window
// systems than X11 there is nothing to wait for. GUI thread.

// These wait without processing events: for some milliseconds, and for a limited time when the
// manager does not answer.

/** Waits until a window that was asked to become active has the keyboard. A manager that meanwhile
 *  loses the window that had it may give it to none. */
void waitForKeyboard(const QWindow &window);

/** Waits until the manager has let go of a hidden top-level window. Only then may it become a child
 *  again: the manager takes a window that it lets go of out of whatever it is in. */
void waitForWithdrawal(const QWindow &window);

// These ask how far it has come.

enum class KeyboardHolder
{
    Window,
    OtherProgram,
    Nobody ///< not even a window in which the manager keeps it, or another of this program's
};

/** Who has the keyboard, of a window and all others. */
KeyboardHolder keyboardHolder(const QWindow &window);

/** Whether the manager no longer keeps a window that was a top-level one. */
bool isLetGo(const QWindow &window);

/** Puts a window that the manager has taken out of its parent, or hidden, back. Returns false if
 * that was necessary. */
bool putBack(const QWindow &window);
