// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "drive.h"

#include "fix.h"
#include "recordingwalker.h"

#include <algorithm>
#include <iterator>

namespace {

const char *const SchemeNames[] = {
    "none", "Ambarella EXT track", "gps box",    "freeGPS",     "gps0 box",
    "none", "gps track",           "GPSL block", "sound chunks"};

bool isStillWanted(const std::atomic<bool> *wanted)
{
    return !wanted || wanted->load(std::memory_order_relaxed);
}

} // namespace

std::optional<Drive> readDrive(const QString &fileName, const std::atomic<bool> *wanted)
{
    const std::unique_ptr<ParserObject> walker = createWalker(fileName, wanted);
    if (!walker->file.isOpen())
        return std::nullopt;
    Drive drive;
    drive.fileName = fileName;
    drive.isAvi = isAviName(fileName);
    drive.scheme = walker->gpsFormat;
    drive.info = videoInfoOf(*walker);
    GpsData sample;
    for (int i = 0; isStillWanted(wanted) && walker->getGpsData(i, sample); ++i)
        drive.samples.append(sample);
    if (!isStillWanted(wanted))
        return std::nullopt;
    if (std::none_of(drive.samples.constBegin(), drive.samples.constEnd(), isFromCamera))
        drive.samples.clear();
    return drive;
}

QString schemeName(int scheme)
{
    const bool isKnown = scheme >= 0 && scheme < int(std::size(SchemeNames));
    return QLatin1String(SchemeNames[isKnown ? scheme : 0]);
}
