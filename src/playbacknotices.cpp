// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "playbacknotices.h"

#include "configuration.h"
#include "picturenotice.h"
#include "playareamanager.h"
#include "playbackproblem.h"
#include "rowdata.h"

#include <utility>

namespace {

// What is read sooner needs no word.
constexpr int ReadingDelayMs = 300;
constexpr int TooSlowNoticeMs = 8000;

void tellProblem(PlayerWidget *player, const RowData *row)
{
    if (player && row && player->loader()->hasFailed())
        player->notice()->tell(row->fileName,
                               PlaybackProblem::text(*row, player->loader()->failure()));
}

} // namespace

PlaybackNotices::PlaybackNotices(PlayAreaManager *area, QObject *parent)
    : QObject(parent), mArea(area)
{
    mReading.setSingleShot(true);
    mReading.setInterval(ReadingDelayMs);
    connect(&mReading, &QTimer::timeout, this, &PlaybackNotices::tellReading);
    connect(mArea, &PlayAreaManager::stateChanged, this, &PlaybackNotices::onStateChanged);
    connect(mArea, &PlayAreaManager::positionChanged, this, &PlaybackNotices::onPositionChanged);
    connect(mArea, &PlayAreaManager::failed, this, &PlaybackNotices::tellMainProblem);
    connect(mArea, &PlayAreaManager::secondFailed, this, &PlaybackNotices::tellSecondProblem);
    connect(Configuration::GetInstance(), &Configuration::updateLanguage, this,
            &PlaybackNotices::refresh);
    mPictures.setSource(mArea->mainPlayer()->player());
    connect(&mPictures, &QVideoProbe::videoFrameProbed, this, [this] { mPace.notePicture(); });
    mClock.start();
}

void PlaybackNotices::begin()
{
    end();
    mIsNew = true;
}

void PlaybackNotices::awaitTelemetry()
{
    if (!mArea->mainPlayer()->loader()->hasFailed())
        mReading.start();
}

void PlaybackNotices::end()
{
    mReading.stop();
    for (PlayerWidget *player : {mArea->mainPlayer(), mArea->secondPlayer()}) {
        if (player)
            player->notice()->clear();
    }
}

void PlaybackNotices::refresh()
{
    const PictureNotice *main = mArea->mainPlayer()->notice();
    if (main->isProgress())
        tellReading();
    else if (main->isShown())
        tellMainProblem();
    if (mArea->secondPlayer() && mArea->secondPlayer()->notice()->isShown())
        tellSecondProblem();
}

void PlaybackNotices::tellReading()
{
    mArea->mainPlayer()->notice()->tellProgress(tr("Reading telemetry…"));
}

void PlaybackNotices::tellMainProblem()
{
    mReading.stop();
    tellProblem(mArea->mainPlayer(), mArea->mainRow());
}

void PlaybackNotices::tellSecondProblem()
{
    tellProblem(mArea->secondPlayer(), mArea->relatedRow());
}

void PlaybackNotices::onStateChanged(QMediaPlayer::State state)
{
    mPace.interrupt();
    if (state != QMediaPlayer::PlayingState)
        return;
    mReading.stop();
    if (mArea->mainPlayer()->notice()->isProgress())
        mArea->mainPlayer()->notice()->clear();
    if (std::exchange(mIsNew, false))
        mPace.begin(mArea->mainRow() ? double(mArea->mainRow()->frameRate) : 0);
}

void PlaybackNotices::onPositionChanged()
{
    const QMediaPlayer *player = mArea->mainPlayer()->player();
    if (player->state() != QMediaPlayer::PlayingState)
        return;
    if (mPace.isTooSlow(mClock.elapsed(), player->position(), player->playbackRate()))
        mArea->mainPlayer()->notice()->tellFor(
            TooSlowNoticeMs, tr("This computer may be too slow for this recording."));
}
