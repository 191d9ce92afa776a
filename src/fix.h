// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gpsdata.h"

#include <QList>

/**
 * Whether the sample carries any position. Cameras write zeros while their receiver has none, so
 * that the one place at 0 degrees north and 0 degrees east, in the Gulf of Guinea, is none either.
 */
bool hasPosition(const GpsData &sample);

/** Whether a camera has written the sample. Whatever lies where a sample could be is decoded, such
 * as the sound of any AVI; only cameras put fourteen digits where the time belongs. */
bool isFromCamera(const GpsData &sample);

/** Whether the receiver knew where it was: the sample carries a position, and one on the globe.
 *  Without a fix its speed and direction are not measured either. */
bool hasFix(const GpsData &sample);

/**
 * The last sample with a fix before the one with the number @p index, in samples that are numbered
 * from 0 in order. Null if there is none; a number beyond the last sample is after all of them. The
 * sample belongs to the list.
 */
const GpsData *lastFixBefore(const QList<GpsData> &samples, int index);
