// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later

// Reads each input as a recording, facts and all samples. Built once for each walker.
#include "aviparser.h"
#include "mp4parser.h"

#include <QLoggingCategory>

#include <sys/mman.h>
#include <unistd.h>

#include <cmath>
#include <cstdlib>

namespace {
// A file in memory, which the walkers open by its name in the process' own folder.
const int Recording = memfd_create("recording", MFD_CLOEXEC);

bool hold(const uint8_t *data, size_t size)
{
    return ftruncate(Recording, 0) == 0 && pwrite(Recording, data, size, 0) == ssize_t(size);
}

/** What the displays rely on, whatever digits a block has. */
bool isSound(const GpsData &sample)
{
    return std::isfinite(sample.latitude) && std::isfinite(sample.longitude) &&
           sample.direction >= 0.0 && sample.direction <= 360.0;
}
} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (!hold(data, size))
        std::abort();
    FUZZED_WALKER walker(QStringLiteral("/proc/self/fd/%1").arg(Recording));
    if (!walker.file.isOpen())
        std::abort();
    GpsData sample;
    for (int i = 0; walker.getGpsData(i, sample); ++i) {
        if (!isSound(sample))
            std::abort();
    }
    return 0;
}
