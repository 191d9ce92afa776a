// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLatin1String>

/**
 * The application name: window title, Qt application name and the last component of the default
 * screenshot folder. Every unit that includes this holds its own copy of the same text.
 */
constexpr char APP_NAME_TEXT[] = "Talvor Player V1.6 20200828";
constexpr QLatin1String APP_NAME{APP_NAME_TEXT, int(sizeof(APP_NAME_TEXT)) - 1};

/** The application version that Qt is told. */
constexpr char APP_VERSION_TEXT[] = "1.0.0.090311";
constexpr QLatin1String APP_VERSION{APP_VERSION_TEXT, int(sizeof(APP_VERSION_TEXT)) - 1};
