// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QSize>

class QString;

/** The font, made so small that a line of the text fits into a room in pixels, where text that is
 *  set to be larger on the whole screen would not. It stays as it is when the line fits, and is not
 *  made smaller than can be read. */
QFont fittedFont(QFont font, const QString &text, const QSize &room);
