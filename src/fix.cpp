// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fix.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double LargestLatitude = 90.0;
constexpr double LargestLongitude = 180.0;
} // namespace

bool hasPosition(const GpsData &sample)
{
    return sample.longitude != 0.0 || sample.latitude != 0.0;
}

bool isFromCamera(const GpsData &sample)
{
    constexpr int TimeLength = int(sizeof sample.time) - 1;
    const auto isTime = [](const char *text) {
        return std::all_of(text, text + TimeLength, [](char c) { return c >= '0' && c <= '9'; });
    };
    return isTime(sample.time) || isTime(sample.time2);
}

bool hasFix(const GpsData &sample)
{
    return hasPosition(sample) && std::fabs(sample.latitude) <= LargestLatitude &&
           std::fabs(sample.longitude) <= LargestLongitude;
}

const GpsData *lastFixBefore(const QList<GpsData> &samples, int index)
{
    for (int i = std::min(index, int(samples.size())) - 1; i >= 0; --i) {
        if (hasFix(samples.at(i)))
            return &samples.at(i);
    }
    return nullptr;
}
