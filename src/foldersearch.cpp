// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "foldersearch.h"

#include <QCollator>
#include <QDirIterator>
#include <QLocale>
#include <QPointer>
#include <QSet>
#include <QThread>

#include <algorithm>
#include <array>
#include <atomic>
#include <utility>
#include <vector>

namespace {

// For the end of a search that was cancelled, which comes at its next file.
constexpr unsigned long EndMs = 50;

struct Entries
{
    QStringList recordings;
    QStringList folders;
};

/** Names that differ in nothing but their case have an order too, always the same one. */
QStringList naturallySorted(const QStringList &names, const QCollator &collator)
{
    std::vector<std::pair<QCollatorSortKey, QString>> keyed;
    keyed.reserve(size_t(names.size()));
    for (const QString &name : names)
        keyed.emplace_back(collator.sortKey(name), name);
    std::sort(keyed.begin(), keyed.end(), [](const auto &left, const auto &right) {
        const int order = left.first.compare(right.first);
        return order != 0 ? order < 0 : left.second < right.second;
    });
    QStringList sorted;
    for (const auto &each : keyed)
        sorted.append(each.second);
    return sorted;
}

/** Not the system's locale: under some, such as "C", there are no natural orders. */
QCollator naturalOrder()
{
    QCollator collator{QLocale(QLocale::English, QLocale::UnitedStates)};
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

} // namespace

/** What the thread and the object share. Once it runs, the thread alone writes the recordings, and
 *  they are read when it has finished. */
struct FolderSearch::Walk
{
    QList<QUrl> urls;
    QList<QUrl> recordings;
    std::atomic<int> foundCount{0};
    std::atomic<bool> isCancelled{false};

    void run();

private:
    bool isOver() const { return isCancelled || foundCount >= MostRecordings; }
    void take(const QUrl &url);
    void takeFolder(const QString &path);
    Entries entriesOf(const QString &path) const;

    QCollator mOrder = naturalOrder();
    QSet<QString> mEntered;
};

void FolderSearch::Walk::run()
{
    for (const QUrl &url : qAsConst(urls)) {
        if (isOver())
            return;
        if (QFileInfo(url.toLocalFile()).isDir())
            takeFolder(url.toLocalFile());
        else
            take(url);
    }
}

void FolderSearch::Walk::take(const QUrl &url)
{
    recordings.append(url);
    ++foundCount;
}

void FolderSearch::Walk::takeFolder(const QString &path)
{
    const QString real = QFileInfo(path).canonicalFilePath();
    if (real.isEmpty() || mEntered.contains(real))
        return;
    mEntered.insert(real);
    const Entries entries = entriesOf(path);
    for (const QString &name : naturallySorted(entries.recordings, mOrder)) {
        if (isOver())
            return;
        take(QUrl::fromLocalFile(path + QLatin1Char('/') + name));
    }
    for (const QString &name : naturallySorted(entries.folders, mOrder)) {
        if (isOver())
            return;
        takeFolder(path + QLatin1Char('/') + name);
    }
}

Entries FolderSearch::Walk::entriesOf(const QString &path) const
{
    Entries entries;
    QDirIterator iterator(path, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    while (!isCancelled && iterator.hasNext()) {
        iterator.next();
        const QFileInfo info = iterator.fileInfo();
        if (info.isDir())
            entries.folders.append(info.fileName());
        else if (isRecording(info.fileName()) && info.isFile())
            entries.recordings.append(info.fileName());
    }
    return entries;
}

FolderSearch::FolderSearch(QObject *parent) : QObject(parent) {}

FolderSearch::~FolderSearch()
{
    const QPointer<QThread> thread = mThread;
    cancel();
    // Its own way of deletion needs an event loop, which may have ended.
    if (thread && thread->wait(EndMs))
        delete thread;
}

void FolderSearch::start(const QList<QUrl> &urls)
{
    cancel();
    mWalk = std::make_shared<Walk>();
    mWalk->urls = urls;
    mThread = QThread::create([walk = mWalk] { walk->run(); });
    connect(mThread, &QThread::finished, this, [this, walk = mWalk] {
        if (walk == mWalk)
            finish();
    });
    connect(mThread, &QThread::finished, mThread, &QObject::deleteLater);
    mThread->start();
    if (mThread->isRunning() || mThread->isFinished())
        return;
    // The system has no thread left: there is nothing to be found then.
    mThread->deleteLater();
    QMetaObject::invokeMethod(this, &FolderSearch::finish, Qt::QueuedConnection);
}

void FolderSearch::cancel()
{
    if (mWalk)
        mWalk->isCancelled = true;
    mWalk.reset();
    mThread = nullptr;
}

int FolderSearch::foundCount() const
{
    return mWalk ? mWalk->foundCount.load() : 0;
}

bool FolderSearch::isRecording(const QString &fileName)
{
    const std::array<QLatin1String, 3> suffixes{QLatin1String(".mp4"), QLatin1String(".mov"),
                                                QLatin1String(".avi")};
    return std::any_of(suffixes.begin(), suffixes.end(), [&](QLatin1String suffix) {
        return fileName.endsWith(suffix, Qt::CaseInsensitive);
    });
}

void FolderSearch::finish()
{
    if (!mWalk)
        return;
    const std::shared_ptr<Walk> walk = std::exchange(mWalk, nullptr);
    mThread = nullptr;
    emit finished(walk->recordings);
}
