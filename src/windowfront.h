// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

/** Shows a top-level window before all others, even a minimised one, and gives it the keyboard: for
 *  what the user has done elsewhere, such as in a file manager. GUI thread. */
void bringToFront(QWidget *window);

/** Asks for the keyboard on behalf of the user, whatever time the program was last used at. It
 * comes when the window manager gives it. GUI thread. */
void askForKeyboard(QWidget *window);

/** Tells the desktop that this start is over without a window. Otherwise it would show for a while
 *  that the program is starting. Needs no application object. */
void endStartNotice();
