// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "telemetryblock.h"

#include <QList>
#include <QString>

/**
 * Makes a small recording that plays: a moving test picture at 30 frames per second and a tone,
 * encoded by ffmpeg. A name that ends in ".avi", in any case, gets an AVI of Motion JPEG and PCM,
 * any other name an MP4 of H.264, with a key frame every second, and AAC. The AVI's header gives a
 * frame 33333 us, so that readers cut the duration to a second less. With @p samples, these are
 * grafted in (scheme 7 or 4). Returns false, with a warning, when ffmpeg or the file system
 * refuses.
 */
bool makeMediaFile(const QString &fileName, int seconds, const QList<TelemetryBlock> &samples = {});
