// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/**
 * Why no window can be shown, as a sentence without its full stop; empty when one can. Without
 * this check the application object would abort the program.
 *
 * Tries every platform that Qt will: those of the option -platform, else of the environment.
 * Anything but X11 and Wayland is taken to need no display.
 */
QString displayObstacle(int argc, const char *const *argv);

/**
 * The display that the window will be shown on, as bytes that differ for different ones.
 */
QByteArray displayIdentity(int argc, const char *const *argv);

/**
 * Whether the user or the desktop has set how finely the X11 display is to be taken to resolve
 * ("Xft.dpi"). Otherwise Qt reckons with the size that the server makes up for the screen.
 */
bool isResolutionSet(int argc, const char *const *argv);
