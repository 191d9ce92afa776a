// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

/**
 * Sky, clouds and mountains once round, from north over east, down to the horizon: the left and
 * the right edge fit together. The mountains are highest in the south.
 */
QImage paintedPanorama(const QSize &size);
