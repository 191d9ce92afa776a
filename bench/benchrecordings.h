// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/** How the telemetry of a recording is to be laid out. */
struct TelemetryLayout
{
    int scheme;         ///< 1, 2, 4, 6, 7 or 8, numbered as the parser does
    quint32 entryCount; ///< blocks; players deliver one sample less
    quint32 pitch;      ///< schemes 1, 2 and 6: bytes from block to block; 0 puts them in a row

    bool operator==(const TelemetryLayout &other) const;
};

/** A recording on the disk, with what is needed to read its telemetry without a parser. */
struct BenchRecording
{
    QString fileName;
    quint32 entryCount = 0;
    quint64 firstEntry = 0; ///< file position of the table, or without a table of the first block
    quint32 entrySize = 0;  ///< bytes of a table entry; 0 without a table
    quint32 distance = 0;   ///< from an entry's value to its block; without a table between blocks

    int sampleCount() const { return int(entryCount) - 1; }
};

/** The block of entry @p index. Entries are a round trip that repeats itself every hour. */
const QByteArray &rideBlock(quint32 index);
/** The extra value in that block, by which it is known. */
int rideExtraValue(quint32 index);

/** "ftyp" of an MP4 recording. */
QByteArray fileTypeBox();
/** "gps " with the table of the telemetry's chunks. */
QByteArray gpsBox(const QList<quint32> &chunks, quint32 chunkSize);

/** Writes a recording with little but telemetry into @p folder, piece by piece. */
BenchRecording writeBenchRecording(const QString &folder, const TelemetryLayout &layout);
