// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/** The three g-sensor axes of one telemetry sample, in g. */
struct GyroData
{
    float x = 0.0f;
    float y = 0.0f;
    float z = 0.0f;
};
