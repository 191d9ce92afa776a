// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sampleloops.h"

#include "recordingwalker.h"

#include <benchmark/benchmark.h>

#include <QFile>
#include <QtEndian>

#include <fcntl.h>
#include <unistd.h>

#include <cstring>

int decodeAll(const BenchRecording &recording, const std::function<void()> &betweenThem)
{
    const std::unique_ptr<ParserObject> walker = createWalker(recording.fileName);
    if (betweenThem)
        betweenThem();
    GpsData sample;
    int rightSamples = 0;
    for (int i = 0; walker->getGpsData(i, sample); ++i)
        rightSamples += sample.extraValue == rideExtraValue(quint32(i) + 1) ? 1 : 0;
    return rightSamples;
}

int readAllBarely(const BenchRecording &recording)
{
    const int file = open(QFile::encodeName(recording.fileName), O_RDONLY);
    int wholeBlocks = 0;
    for (quint64 n = 1; n < recording.entryCount; ++n) {
        quint64 position = recording.firstEntry + n * recording.distance;
        if (recording.entrySize > 0) {
            char entry[8] = {};
            const quint64 place = recording.firstEntry + n * recording.entrySize;
            if (pread(file, entry, recording.entrySize, off_t(place)) < 0)
                break;
            position = quint64(qFromBigEndian<quint32>(entry)) + recording.distance;
        }
        char block[ParserObject::BlockSize] = {};
        char copy[ParserObject::BlockSize];
        // The last block of "gps0" lacks its last byte.
        if (pread(file, block, sizeof block, off_t(position)) >= ssize_t(sizeof block) - 1)
            ++wholeBlocks;
        std::memcpy(copy, block, sizeof copy);
        benchmark::DoNotOptimize(copy);
    }
    close(file);
    return wholeBlocks;
}
