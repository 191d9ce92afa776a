// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "recordingsearch.h"

#include <QDirIterator>
#include <QLocale>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

// Not the system's locale: under some, such as "C", there are no natural orders.
RecordingSearch::RecordingSearch(int most)
    : mMost(most), mOrder(QLocale(QLocale::English, QLocale::UnitedStates))
{
    mOrder.setNumericMode(true);
    mOrder.setCaseSensitivity(Qt::CaseInsensitive);
}

void RecordingSearch::lookInto(const QString &folder)
{
    const QString real = QFileInfo(folder).canonicalFilePath();
    if (real.isEmpty() || mEntered.contains(real))
        return;
    mEntered.insert(real);
    QStringList recordings;
    QStringList folders;
    QDirIterator iterator(folder, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    while (!mIsCancelled && iterator.hasNext()) {
        iterator.next();
        const QFileInfo info = iterator.fileInfo();
        if (info.isDir())
            folders.append(info.fileName());
        else if (isRecording(info.fileName()) && info.isFile())
            recordings.append(info.fileName());
    }
    for (const QString &name : sorted(recordings)) {
        if (isOver())
            return;
        take(folder + QLatin1Char('/') + name);
    }
    for (const QString &name : sorted(folders)) {
        if (isOver())
            return;
        lookInto(folder + QLatin1Char('/') + name);
    }
}

void RecordingSearch::take(const QString &path)
{
    mFound.append(path);
    ++mFoundCount;
}

bool RecordingSearch::isRecording(const QString &fileName)
{
    const std::array<QLatin1String, 3> suffixes{QLatin1String(".mp4"), QLatin1String(".mov"),
                                                QLatin1String(".avi")};
    return std::any_of(suffixes.begin(), suffixes.end(), [&](QLatin1String suffix) {
        return fileName.endsWith(suffix, Qt::CaseInsensitive);
    });
}

/** Names that differ in nothing but their case have an order too, always the same one. */
QStringList RecordingSearch::sorted(const QStringList &names) const
{
    std::vector<std::pair<QCollatorSortKey, QString>> keyed;
    keyed.reserve(size_t(names.size()));
    for (const QString &name : names)
        keyed.emplace_back(mOrder.sortKey(name), name);
    std::sort(keyed.begin(), keyed.end(), [](const auto &left, const auto &right) {
        const int order = left.first.compare(right.first);
        return order != 0 ? order < 0 : left.second < right.second;
    });
    QStringList result;
    for (const auto &each : keyed)
        result.append(each.second);
    return result;
}
