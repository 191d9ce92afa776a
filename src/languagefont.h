// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "configuration.h"

#include <QFont>

/**
 * The font for texts in a language. Chinese, Japanese and Korean write the same Han characters in
 * different shapes; by itself Qt takes those of the system's language, whatever the interface's.
 * Other languages leave that to the system. All else of the font stays, and its family() too.
 */
QFont languageFont(QFont font, Language_e language);
