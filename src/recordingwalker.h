// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "parserobject.h"
#include "videoinfo.h"

#include <memory>

/** Whether a recording of this name is walked as an AVI; all others are as an MP4. */
bool isAviName(const QString &fileName);

/** Opens the recording with the walker of its container, which walks it at once. Never null. Once
 *  @p keepRunning is cleared, the walk ends. */
std::unique_ptr<ParserObject> createWalker(const QString &fileName,
                                           ParserObject::KeepRunning keepRunning = nullptr);

/** The facts that a walker has found. */
VideoInfo videoInfoOf(const ParserObject &walker);
