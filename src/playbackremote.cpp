// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "playbackremote.h"

#include "controlpanel.h"
#include "fcombobox.h"
#include "mainwindows.h"
#include "mediaurl.h"
#include "pendingstart.h"
#include "playareamanager.h"
#include "playlistmodel.h"
#include "rowdata.h"
#include "windowfront.h"

#include <QFileInfo>
#include <QTableView>

#include <algorithm>
#include <cmath>

namespace {

// More than a player that is paused or changes its rate moves by itself, and less than any step.
constexpr qint64 BackwardToleranceMs = 250;
constexpr qint64 ForwardToleranceMs = 500;

/** How many times faster or slower the one rate is than the other, at least 1. */
double ratio(double one, double other)
{
    return qMax(one / other, other / one);
}

} // namespace

PlaybackRemote::PlaybackRemote(MainWindows *window, QObject *parent)
    : QObject(parent)
    , mWindow(window)
    , mPanel(window->findChild<ControlPanel *>())
    , mRates(window->findChild<FComboBox *>())
    , mArea(window->findChild<PlayAreaManager *>())
    , mPlaylist(window->findChild<PlaylistModel *>())
    , mList(window->findChild<QTableView *>())
    , mPendingStart(window->findChild<PendingStart *>())
{
    watch();
}

QMediaPlayer::State PlaybackRemote::state() const
{
    return mArea->state();
}

const RowData *PlaybackRemote::recording() const
{
    const RowData *pending = mPendingStart->row();
    return pending ? pending : mArea->mainRow();
}

qint64 PlaybackRemote::positionMs() const
{
    if (state() == QMediaPlayer::StoppedState)
        return 0;
    return qMax<qint64>(0, mArea->mainPlayer()->player()->position());
}

qint64 PlaybackRemote::durationMs() const
{
    const RowData *row = recording();
    if (!row)
        return 0;
    const QMediaPlayer *player = mArea->mainPlayer()->player();
    const bool isLoaded = !mPendingStart->row() && mediaUrl(player->media()) == row->url;
    if (isLoaded && player->duration() > 0)
        return player->duration();
    return qint64(row->duration) * 1000;
}

QVector<double> PlaybackRemote::rates() const
{
    QVector<double> rates;
    for (int i = 0; i < mRates->count(); ++i)
        rates.append(mRates->itemData(i).toDouble());
    return rates;
}

double PlaybackRemote::rate() const
{
    return mPanel->playbackRate();
}

double PlaybackRemote::volume() const
{
    // The players are at their loudest a little before the handle has gone all its way.
    return mPanel->volume() < 100 ? mPanel->volumePercent() / 100.0 : 1;
}

bool PlaybackRemote::canPlay() const
{
    return state() != QMediaPlayer::StoppedState || mList->selectionModel()->hasSelection();
}

bool PlaybackRemote::canPause() const
{
    return recording();
}

bool PlaybackRemote::canSeek() const
{
    return state() != QMediaPlayer::StoppedState && durationMs() > 0;
}

bool PlaybackRemote::canGoNext() const
{
    const RowData *row = recording();
    return row && mPlaylist->getNextDataByCurrentUrl(row->url);
}

bool PlaybackRemote::canGoPrevious() const
{
    const RowData *row = recording();
    return row && mPlaylist->getPreviousDataByCurrentUrl(row->url);
}

void PlaybackRemote::play()
{
    if (state() != QMediaPlayer::PlayingState)
        mPanel->playClicked();
}

void PlaybackRemote::pause()
{
    if (state() == QMediaPlayer::PlayingState)
        mPanel->playClicked();
}

void PlaybackRemote::playOrPause()
{
    mPanel->playClicked();
}

// Even while nothing plays: a recording that is being prepared is not to begin.
void PlaybackRemote::stop()
{
    emit mPanel->stop();
}

void PlaybackRemote::next()
{
    emit mPanel->next();
}

void PlaybackRemote::previous()
{
    emit mPanel->previous();
}

void PlaybackRemote::seekTo(qint64 positionMs)
{
    if (canSeek() && positionMs >= 0 && positionMs <= durationMs())
        mArea->seekToMs(positionMs);
}

void PlaybackRemote::seekBy(qint64 offsetMs)
{
    if (!canSeek())
        return;
    // Compared before they are added, which could overflow.
    if (offsetMs > durationMs() - positionMs())
        next();
    else
        seekTo(offsetMs < -positionMs() ? 0 : positionMs() + offsetMs);
}

void PlaybackRemote::setRate(double rate)
{
    if (qFuzzyIsNull(rate)) {
        pause();
        return;
    }
    const QVector<double> choice = rates();
    // Written so that what is no number is refused, too.
    if (choice.isEmpty() || !(rate >= choice.first() && rate <= choice.last()))
        return;
    const auto closest =
        std::min_element(choice.begin(), choice.end(), [rate](double one, double other) {
            return ratio(one, rate) < ratio(other, rate);
        });
    // By steps, as the buttons do, which would otherwise not know at which end of the list it is.
    mPanel->stepRate(int(closest - choice.begin()) - mRates->currentIndex());
}

void PlaybackRemote::setVolume(double volume)
{
    if (std::isnan(volume))
        return;
    mPanel->stepVolume(qRound(qBound(0.0, volume, 1.0) * 100) - mPanel->volumePercent());
}

bool PlaybackRemote::open(const QUrl &url)
{
    if (!url.isLocalFile() || !url.host().isEmpty())
        return false;
    const QFileInfo file(url.toLocalFile());
    const bool isRecording = file.isFile() && PlayAreaManager::isRecordingName(file.fileName());
    if (!isRecording && !file.isDir())
        return false;
    mWindow->openRecordings({QUrl::fromLocalFile(file.absoluteFilePath())});
    return true;
}

void PlaybackRemote::raise()
{
    bringToFront(mWindow);
}

void PlaybackRemote::watch()
{
    connect(mArea, &PlayAreaManager::stateChanged, this, &PlaybackRemote::noteState);
    connect(mArea->mainPlayer()->player(), &QMediaPlayer::positionChanged, this,
            &PlaybackRemote::notePosition);
    connect(mArea, &PlayAreaManager::durationChanged, this, &PlaybackRemote::changed);
    connect(mPanel, &ControlPanel::changeRate, this, &PlaybackRemote::changed);
    connect(mPanel, &ControlPanel::changeVolume, this, &PlaybackRemote::changed);
    connect(mPendingStart, &PendingStart::due, this, &PlaybackRemote::changed);
    connect(mPlaylist, &PlaylistModel::dataChanged, this, &PlaybackRemote::changed);
    connect(mPlaylist, &PlaylistModel::rowsInserted, this, &PlaybackRemote::changed);
    connect(mPlaylist, &PlaylistModel::rowsRemoved, this, &PlaybackRemote::changed);
    connect(mPlaylist, &PlaylistModel::modelReset, this, &PlaybackRemote::changed);
    connect(mList->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &PlaybackRemote::changed);
}

void PlaybackRemote::noteState()
{
    mSeenMs = state() == QMediaPlayer::StoppedState ? -1 : positionMs();
    mSinceSeen.start();
    emit changed();
}

void PlaybackRemote::notePosition(qint64 positionMs)
{
    if (state() == QMediaPlayer::StoppedState || mSeenMs < 0)
        return;
    const bool isPlaying = state() == QMediaPlayer::PlayingState;
    const auto playedMs = isPlaying ? qint64(double(mSinceSeen.elapsed()) * rate()) : 0;
    const bool hasJumped = positionMs < mSeenMs - BackwardToleranceMs ||
                           positionMs > mSeenMs + playedMs + ForwardToleranceMs;
    // Pictures looked at one by one go a long way in small steps.
    if (!isPlaying && !hasJumped)
        return;
    mSeenMs = positionMs;
    mSinceSeen.start();
    if (hasJumped)
        emit jumped(positionMs);
}
