// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "recordingopener.h"

#include "configuration.h"
#include "elidedlabel.h"
#include "playlistmodel.h"
#include "rowdata.h"

#include <QDebug>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <utility>

namespace {

// More than these are added in turns of the event loop, which take so long each.
constexpr int FewRecordings = 100;
constexpr qint64 SliceMs = 20;

constexpr int ProgressMs = 200;
constexpr int NoticeMs = 4000;
constexpr int MostNamesTold = 20;

bool isFolder(const QUrl &url)
{
    return QFileInfo(url.toLocalFile()).isDir();
}

QString folderName(const QUrl &url)
{
    const QString name = QDir(url.toLocalFile()).dirName();
    return name.isEmpty() ? url.toLocalFile() : name;
}

} // namespace

RecordingOpener::RecordingOpener(PlaylistModel *model, ElidedLabel *title, QObject *parent)
    : QObject(parent), mModel(model), mTitle(title)
{
    mProgressTimer.setInterval(ProgressMs);
    mNamesakesTimer.setSingleShot(true);
    connect(&mSearch, &FolderSearch::finished, this, &RecordingOpener::onFound);
    connect(&mAddTimer, &QTimer::timeout, this, &RecordingOpener::addSlice);
    connect(&mProgressTimer, &QTimer::timeout, this, &RecordingOpener::showProgress);
    connect(&mNamesakesTimer, &QTimer::timeout, this, &RecordingOpener::tellNotOpened);
}

void RecordingOpener::open(const QList<QUrl> &urls)
{
    if (urls.isEmpty())
        return;
    if (urls.size() > FewRecordings || std::any_of(urls.begin(), urls.end(), isFolder)) {
        enqueue({urls, false});
        return;
    }
    if (urls.size() == 1 && isOnItsWay(urls.first()))
        return;
    const int first = add(urls.first());
    int last = first;
    for (int i = 1; i < urls.size(); ++i)
        last = add(urls.at(i));
    qDebug() << "all file count:" << last;
    emit opened(first);
}

void RecordingOpener::openChosen(const QList<QUrl> &urls)
{
    QList<QUrl> files = urls;
    files.erase(std::remove_if(files.begin(), files.end(), isFolder), files.end());
    if (files.isEmpty())
        return;
    const QString folder = QFileInfo(urls.last().toLocalFile()).absolutePath();
    Configuration::GetInstance()->setVideoFilePath(folder);
    qDebug() << "select file count:" << urls.size();
    open(files);
}

void RecordingOpener::restore(const QList<QUrl> &urls)
{
    if (!urls.isEmpty())
        enqueue({urls, true});
}

bool RecordingOpener::cancel()
{
    if (!mIsBusy)
        return false;
    mSearch.cancel();
    mWaiting.clear();
    mFound.clear();
    mAddTimer.stop();
    mProgressTimer.stop();
    mTitle->endNotice();
    mIsBusy = false;
    mJob = Job();
    return true;
}

void RecordingOpener::tell(const QString &notice)
{
    mTitle->showNotice(notice, notice, NoticeMs);
}

void RecordingOpener::enqueue(const Job &job)
{
    mWaiting.enqueue(job);
    if (!mIsBusy)
        beginNext();
}

bool RecordingOpener::isOnItsWay(const QUrl &url) const
{
    return mJob.urls.contains(url) ||
           std::any_of(mWaiting.begin(), mWaiting.end(),
                       [&](const Job &job) { return job.urls.contains(url); });
}

void RecordingOpener::beginNext()
{
    mIsBusy = !mWaiting.isEmpty();
    mJob = mIsBusy ? mWaiting.dequeue() : Job();
    if (!mIsBusy)
        return;
    if (mJob.isRestored) { // whatever has become of them
        onFound(mJob.urls);
        return;
    }
    mSearch.start(mJob.urls);
    mProgressTimer.start();
    showProgress();
}

void RecordingOpener::onFound(const QList<QUrl> &recordings)
{
    mFound = recordings;
    mAddedCount = 0;
    mFirstRow = -1;
    mAddTimer.start(0);
}

void RecordingOpener::addSlice()
{
    QElapsedTimer slice;
    slice.start();
    while (mAddedCount < mFound.size() && slice.elapsed() < SliceMs) {
        const int row = add(mFound.at(mAddedCount++));
        mFirstRow = mFirstRow < 0 ? row : mFirstRow;
    }
    if (mAddedCount == mFound.size())
        endAdding();
}

void RecordingOpener::endAdding()
{
    mAddTimer.stop();
    mProgressTimer.stop();
    mTitle->endNotice();
    if (mJob.isRestored)
        emit restored();
    else if (mFirstRow >= 0)
        emit opened(mFirstRow);
    else
        tell(tr("No recordings in %1").arg(folderName(mJob.urls.first())));
    if (mFound.size() >= FolderSearch::MostRecordings)
        tell(tr("Only the first %1 recordings were opened")
                 .arg(QLocale().toString(FolderSearch::MostRecordings)));
    mFound.clear();
    beginNext();
}

int RecordingOpener::add(const QUrl &url)
{
    const int countBefore = mModel->rowCount();
    const int row = mModel->addDataByUrl(url);
    if (row < countBefore && !mJob.isRestored) {
        const QFileInfo listed(mModel->getRowData(row)->url.toLocalFile());
        if (listed != QFileInfo(url.toLocalFile()))
            mNamesakes.append(listed.fileName());
    }
    // Not at once: more may come in this turn of the event loop, such as dropped ones.
    if (!mNamesakes.isEmpty())
        mNamesakesTimer.start(0);
    return row;
}

void RecordingOpener::showProgress()
{
    const int count = mSearch.isRunning() ? mSearch.foundCount() : mFound.size();
    const QString progress =
        tr("Searching for recordings: %1 (Esc cancels)").arg(QLocale().toString(count));
    mTitle->showNotice(progress, progress, NoticeMs);
}

void RecordingOpener::tellNotOpened()
{
    if (mProgressTimer.isActive()) { // which would hide it
        mNamesakesTimer.start(ProgressMs);
        return;
    }
    const QStringList names = std::exchange(mNamesakes, {});
    const QString notice =
        names.size() == 1 ? tr("In the list already, from another folder: %1").arg(names.first())
                          : tr("In the list already, from other folders: %1 recordings")
                                .arg(QLocale().toString(names.size()));
    const QStringList told = names.mid(0, MostNamesTold);
    mTitle->showNotice(notice, notice + QLatin1Char('\n') + told.join(QLatin1Char('\n')), NoticeMs);
}
