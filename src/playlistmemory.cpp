// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "playlistmemory.h"

#include "configuration.h"
#include "mainwindows.h"
#include "medialoader.h"
#include "playareamanager.h"
#include "playlistmodel.h"
#include "playlisttable.h"
#include "recordingopener.h"
#include "rememberedlist.h"
#include "resumeoffer.h"
#include "rowdata.h"

#include <QEvent>
#include <QGridLayout>

#include <utility>

namespace {

constexpr int StoreDelayMs = 2000;
constexpr qint64 WorthOfferingMs = 5000; // less is seen again as quickly as an offer is read

} // namespace

PlaylistMemory::PlaylistMemory(MainWindows *window)
    : mWindow(window)
    , mModel(window->findChild<PlaylistModel *>())
    , mTable(window->findChild<PlaylistTable *>())
    , mArea(window->findChild<PlayAreaManager *>())
{
    mStoreTimer.setSingleShot(true);
    mStoreTimer.setInterval(StoreDelayMs);
    connect(&mStoreTimer, &QTimer::timeout, this, &PlaylistMemory::store);
    const auto storeLater = QOverload<>::of(&QTimer::start);
    connect(mModel, &QAbstractItemModel::rowsInserted, &mStoreTimer, storeLater);
    connect(mModel, &QAbstractItemModel::modelReset, &mStoreTimer, storeLater);
    connect(mArea, &PlayAreaManager::stateChanged, this, &PlaylistMemory::onStateChanged);
    connect(mArea, &PlayAreaManager::positionChanged, this, &PlaylistMemory::seekWhenPlaying);
    mWindow->installEventFilter(this);
}

void PlaylistMemory::restore()
{
    if (!Configuration::GetInstance()->remembersList())
        return;
    const RememberedList list = RememberedList::load();
    mOffered = list.playing;
    mOfferedMs = list.positionMs;
    auto *opener = mWindow->findChild<RecordingOpener *>();
    connect(opener, &RecordingOpener::restored, this, &PlaylistMemory::onRestored);
    opener->restore(list.recordings);
}

bool PlaylistMemory::eventFilter(QObject *object, QEvent *event)
{
    // Before the window stops the playback.
    if (event->type() == QEvent::Close)
        store();
    return QObject::eventFilter(object, event);
}

void PlaylistMemory::store()
{
    mStoreTimer.stop();
    // Half a list must not take the place of the whole.
    if (!Configuration::GetInstance()->remembersList() ||
        mWindow->findChild<RecordingOpener *>()->isRestoring())
        return;
    RememberedList list;
    for (int row = 0; row < mModel->rowCount(); ++row)
        list.recordings.append(mModel->getRowData(row)->url);
    const RowData *playing = mArea->mainRow();
    if (playing && mArea->state() != QMediaPlayer::StoppedState) {
        list.playing = playing->url;
        list.positionMs = mArea->mainPlayer()->player()->position();
    } else if (mOffer) { // which may be made again
        list.playing = mOffered;
        list.positionMs = mOfferedMs;
    }
    list.store();
}

void PlaylistMemory::onRestored()
{
    const RowData *row = rowOf(mOffered);
    if (!row || mArea->state() != QMediaPlayer::StoppedState)
        return;
    mTable->selectRow(row->id);
    if (mOfferedMs < WorthOfferingMs)
        return;
    QWidget *column = mTable->parentWidget();
    mOffer = new ResumeOffer(row->fileName, mOfferedMs, column);
    connect(mOffer, &ResumeOffer::accepted, this, &PlaylistMemory::resume);
    connect(mModel, &QAbstractItemModel::modelReset, mOffer, &ResumeOffer::decline);
    auto *layout = static_cast<QGridLayout *>(column->layout());
    layout->addWidget(mOffer, layout->rowCount(), 0);
}

/** Whoever plays something has made up his mind. */
void PlaylistMemory::onStateChanged()
{
    if (mOffer && mArea->state() == QMediaPlayer::PlayingState)
        mOffer->decline();
}

void PlaylistMemory::resume()
{
    const RowData *row = rowOf(mOffered);
    mIsResuming = row != nullptr;
    mWindow->playByData(row);
}

/** Not before the recording has been loaded: until then a seek is lost. */
void PlaylistMemory::seekWhenPlaying()
{
    if (!mIsResuming || mArea->state() != QMediaPlayer::PlayingState || !mArea->mainRow() ||
        !mArea->mainPlayer()->loader()->isLoaded())
        return;
    mIsResuming = false;
    if (mArea->mainRow()->url == mOffered)
        mArea->seek(int(mOfferedMs / 1000));
}

const RowData *PlaylistMemory::rowOf(const QUrl &url) const
{
    for (int row = 0; row < mModel->rowCount(); ++row) {
        if (mModel->getRowData(row)->url == url)
            return mModel->getRowData(row);
    }
    return nullptr;
}
