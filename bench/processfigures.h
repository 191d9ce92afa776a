// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

/** What the kernel counts of this process, from the files in /proc/self. */

/**
 * The bytes that this process gets from read calls, from construction on. Memory mappings are not
 * counted.
 */
class ReadCounter
{
public:
    ReadCounter();

    /** The bytes read since, without those of the counter itself. */
    quint64 bytesSince() const;

private:
    quint64 mStart = 0;
};

/** Resident memory, in KiB. */
quint64 residentKib();
/** The highest resident memory since the last resetPeak(), or since the process began. */
quint64 peakResidentKib();
/** Lets the peak begin anew at the current memory. Where the kernel refuses, the old peak stays,
 *  so that what is measured against it can only be too high. */
void resetPeak();
