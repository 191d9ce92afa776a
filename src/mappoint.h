// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/** One position for the map. */
struct MapPoint
{
    int id = 0;             ///< number of the sample, from 0
    double longitude = 0.0; ///< decimal degrees, east positive
    double latitude = 0.0;  ///< decimal degrees, north positive
};
