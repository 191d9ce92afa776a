// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObjectUserData>
#include <QVector>

/** The number under which the map view keeps its GPSUser. */
constexpr unsigned GPS_USER_DATA_ID = 256;

/** The track of the recording shown last, attached to the map view for the time when the map page
 *  is loaded again. Owned by the object that it is attached to. */
class GPSUser : public QObjectUserData
{
public:
    GPSUser(int row, const QVector<QVector<double>> &track) : rowId(row), allGpsData(track) {}

    int rowId = -1;                      ///< the playlist row of the track
    QVector<QVector<double>> allGpsData; ///< a pair of longitude and latitude for each sample
};
