// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "processfigures.h"
#include "recordingwalker.h"

#include <QFile>
#include <QList>

#include <cstdio>
#include <cstring>

// read-recording [--memory] FILE: reads the facts and all samples of a recording into a list, as
// the player does, and prints one line about them. With --memory the line also has the memory
// before the recording is opened, and the peak from then on.

namespace {

int samplesAndFacts(const QString &fileName)
{
    const std::unique_ptr<ParserObject> walker = createWalker(fileName);
    QList<GpsData> samples;
    GpsData sample;
    for (int i = 0; walker->getGpsData(i, sample); ++i)
        samples.append(sample);
    std::printf("samples=%d size=%dx%d seconds=%u", samples.size(), walker->width, walker->height,
                walker->duration);
    return samples.size();
}

void withMemory(const QString &fileName)
{
    resetPeak();
    const quint64 startKib = residentKib();
    samplesAndFacts(fileName);
    std::printf(" start_kib=%llu peak_kib=%llu", startKib, peakResidentKib());
}

} // namespace

int main(int argc, char **argv)
{
    const bool wantsMemory = argc == 3 && std::strcmp(argv[1], "--memory") == 0;
    if (argc != 2 && !wantsMemory) {
        std::fputs("usage: read-recording [--memory] FILE\n", stderr);
        return 2;
    }
    const QString fileName = QFile::decodeName(argv[argc - 1]);
    if (wantsMemory)
        withMemory(fileName);
    else
        samplesAndFacts(fileName);
    std::puts("");
    return 0;
}
