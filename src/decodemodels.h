// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/**
 * The graphics models that are known to decode a codec in hardware, as parts of the texts by which
 * a system calls its adapters. In the order in which the probe looks for them: the first that
 * occurs is the one it reports.
 */
struct DecodeModels
{
    QStringList intelH264;
    QStringList amdH264;
    QStringList nvidiaH264;
    QStringList intelH265;
    QStringList amdH265;
    QStringList nvidiaH265;
};

/** The built-in lists. */
DecodeModels decodeModels();
