// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "parserobject.h"

#include <QString>

#include <memory>

/** Walks a recording with the parser for its suffix, as the player does. */
std::unique_ptr<ParserObject> walkRecording(const QString &fileName);
