// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "processfigures.h"

#include <QByteArray>
#include <QFile>

namespace {

QByteArray contents(const char *fileName)
{
    QFile file(QString::fromLatin1(fileName));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        qFatal("%s cannot be read", fileName);
    return file.readAll();
}

/** The number in the line of @p text that begins with @p key. */
quint64 numberIn(const QByteArray &text, const QByteArray &key)
{
    for (const QByteArray &line : text.split('\n')) {
        if (line.startsWith(key))
            return line.mid(key.size()).trimmed().split(' ').first().toULongLong();
    }
    qFatal("The kernel tells nothing about %s", key.constData());
}

const char Counters[] = "/proc/self/io";
const char Status[] = "/proc/self/status";

} // namespace

ReadCounter::ReadCounter()
{
    // The count is taken before the bytes of this very text are added to it.
    const QByteArray text = contents(Counters);
    mStart = numberIn(text, "rchar:") + quint64(text.size());
}

quint64 ReadCounter::bytesSince() const
{
    return numberIn(contents(Counters), "rchar:") - mStart;
}

quint64 residentKib()
{
    return numberIn(contents(Status), "VmRSS:");
}

quint64 peakResidentKib()
{
    return numberIn(contents(Status), "VmHWM:");
}

void resetPeak()
{
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        file.write("5");
}
