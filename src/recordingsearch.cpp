// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "recordingsearch.h"

#include <QCollator>
#include <QDir>
#include <QSet>

#include <algorithm>

namespace {

class Search
{
public:
    explicit Search(const std::atomic<bool> *wanted) : mWanted(wanted)
    {
        mOrder.setNumericMode(true);
        mOrder.setCaseSensitivity(Qt::CaseInsensitive);
    }

    void lookInto(const QString &folder);
    const QStringList &found() const { return mFound; }

private:
    QStringList sorted(QStringList names) const;
    bool isWanted() const { return !mWanted || mWanted->load(std::memory_order_relaxed); }

    const std::atomic<bool> *mWanted = nullptr;
    QCollator mOrder{QLocale(QLocale::English)}; // that of "C" knows no numbers
    QSet<QString> mSeen;
    QStringList mFound;
};

void Search::lookInto(const QString &folder)
{
    const QDir dir(folder);
    const QString canonical = dir.canonicalPath();
    if (canonical.isEmpty() || mSeen.contains(canonical))
        return;
    mSeen.insert(canonical);
    const QStringList files = sorted(dir.entryList(QDir::Files, QDir::NoSort));
    for (const QString &file : files) {
        if (isRecordingFile(file))
            mFound.append(dir.filePath(file));
    }
    const QStringList folders =
        sorted(dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::NoSort));
    for (const QString &name : folders) {
        if (!isWanted())
            return;
        lookInto(dir.filePath(name));
    }
}

QStringList Search::sorted(QStringList names) const
{
    std::sort(names.begin(), names.end(), [this](const QString &a, const QString &b) {
        const int order = mOrder.compare(a, b);
        return order != 0 ? order < 0 : a < b;
    });
    return names;
}

} // namespace

bool isRecordingFile(const QString &fileName)
{
    for (const char *suffix : {".mp4", ".mov", ".avi"}) {
        if (fileName.endsWith(QLatin1String(suffix), Qt::CaseInsensitive))
            return true;
    }
    return false;
}

QStringList recordingsBelow(const QString &folder, const std::atomic<bool> *wanted)
{
    Search search(wanted);
    search.lookInto(folder);
    return search.found();
}
