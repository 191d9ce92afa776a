// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "foldersearch.h"

#include "recordingsearch.h"

#include <QFileInfo>
#include <QPointer>
#include <QThread>

#include <utility>

namespace {

// For the end of a search that was cancelled, which comes at its next file.
constexpr unsigned long EndMs = 50;

} // namespace

/** What the thread and the object share. Once it runs, the thread alone writes the recordings, and
 *  they are read when it has finished. */
struct FolderSearch::Walk
{
    RecordingSearch search{MostRecordings};
    QList<QUrl> urls;

    void run();
};

void FolderSearch::Walk::run()
{
    for (const QUrl &url : qAsConst(urls)) {
        const QString path = url.toLocalFile();
        if (search.isOver())
            return;
        if (QFileInfo(path).isDir())
            search.lookInto(path);
        else
            search.take(path);
    }
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
        mWalk->search.cancel();
    mWalk.reset();
    mThread = nullptr;
}

int FolderSearch::foundCount() const
{
    return mWalk ? mWalk->search.foundCount() : 0;
}

void FolderSearch::finish()
{
    if (!mWalk)
        return;
    const std::shared_ptr<Walk> walk = std::exchange(mWalk, nullptr);
    mThread = nullptr;
    QList<QUrl> recordings;
    for (const QString &path : walk->search.found())
        recordings.append(QUrl::fromLocalFile(path));
    emit finished(recordings);
}
