// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "telemetryblock.h"

#include <QList>
#include <QString>

/**
 * Makes a small recording that plays: a moving test picture in H.264 at 30 frames per second with
 * a key frame every second, and a tone in AAC, encoded by ffmpeg. With @p samples, these are
 * grafted in (scheme 4). Returns false, with a warning, when ffmpeg or the file system refuses.
 */
bool makeMediaFile(const QString &fileName, int seconds, const QList<TelemetryBlock> &samples = {});
