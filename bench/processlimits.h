// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "benchrecordings.h"
#include "limittable.h"

/** Adds what hours of 4 GB with few and with many samples cost: bytes read, wall time beside that
 *  of ffprobe, memory. They are written into @p folder and removed again. */
void judgeHours(const QString &folder, LimitTable &table);

/** Adds the memory for all samples of a recording in a list, as the player keeps them. */
void judgeMemory(const std::string &name, const BenchRecording &recording, LimitTable &table);
