// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "benchrecordings.h"

#include <functional>

/** Walks the recording and decodes all samples, with a call of @p betweenThem if there is one.
 *  Returns how many samples are the ones written. */
int decodeAll(const BenchRecording &recording, const std::function<void()> &betweenThem = {});

/** Reads the same table entries and blocks, each by a call of its own, and copies the blocks: no
 *  more. Returns the number of blocks. */
int readAllBarely(const BenchRecording &recording);
