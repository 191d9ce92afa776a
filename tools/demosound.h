// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "demodrive.h"

#include <QByteArray>

/** Samples a second of engineSound(). */
constexpr int EngineSoundRate = 24000;

/** A quiet hum that rises and falls with the speed of the drive: 16-bit samples of one channel in
 *  the machine's byte order. */
QByteArray engineSound(const DemoDrive &drive, double seconds);
