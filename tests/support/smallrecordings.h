// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "telemetryblock.h"

#include <QByteArray>
#include <QList>

/** Every way in which cameras lay out telemetry, numbered as the parser does. */
constexpr int TelemetrySchemes[] = {1, 2, 3, 4, 6, 7, 8};

/** The name that the player tells the container by: "a.mp4", or "a.avi" for the schemes 7 and 8. */
const char *recordingName(int scheme);

/** Samples of a drive to the north-east, no two of which are alike. */
QList<TelemetryBlock> ride(int sampleCount);

/**
 * A recording with facts and telemetry, as small as its scheme allows: some 2 KB, and with scheme
 * 3 or 8 64 KB for each entry. MP4: a video track, then the telemetry; AVI: with odd chunks.
 */
QByteArray smallRecording(int scheme, const QList<TelemetryBlock> &samples);
