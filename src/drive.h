// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gpsdata.h"
#include "videoinfo.h"

#include <QString>
#include <QVector>

#include <atomic>
#include <optional>

/** One recording with its facts and its whole telemetry, read at once. */
struct Drive
{
    QString fileName; ///< path, as it was given to readDrive()
    bool isAvi = false;
    int scheme = 0; ///< where the telemetry lay, a ParserObject::Scheme
    VideoInfo info;
    QVector<GpsData> samples; ///< in the order of the recording
};

/**
 * Reads a recording. Nothing if it cannot be opened for reading, or if @p wanted, which may be
 * null, was cleared before the end was reached. A file that is no recording, or has no telemetry,
 * is a drive without samples. May be called on any thread; no event loop is needed.
 */
std::optional<Drive> readDrive(const QString &fileName, const std::atomic<bool> *wanted = nullptr);

/** The name of a scheme for people and scripts, such as "gps0 box"; "none" for no telemetry. */
QString schemeName(int scheme);
