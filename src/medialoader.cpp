// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "medialoader.h"

namespace {

// Whole recordings are loaded within a fraction of a second. One that was cut off before its index
// may be searched for it for ever.
constexpr int PatienceMs = 3000;

} // namespace

MediaLoader::MediaLoader(QMediaPlayer *player, QObject *parent) : QObject(parent), mPlayer(player)
{
    mRestart.setSingleShot(true);
    connect(&mRestart, &QTimer::timeout, this, &MediaLoader::goOn);
    mPatience.setSingleShot(true);
    connect(&mPatience, &QTimer::timeout, this, &MediaLoader::giveUp);
    connect(mPlayer, &QMediaPlayer::mediaStatusChanged, this, &MediaLoader::onMediaStatusChanged);
}

void MediaLoader::load(const QMediaContent &media)
{
    mRestart.stop();
    mPatience.stop();
    mHasFailed = false;
    mPlayer->setMedia(media);
    if (media.isNull())
        mPatience.start(0);
}

void MediaLoader::unload()
{
    mRestart.stop();
    mPatience.stop();
    mPlayer->setMedia(QMediaContent());
}

void MediaLoader::play()
{
    if (mHasFailed)
        return;
    mPlayer->play();
    if (isLoading())
        mPatience.start(PatienceMs);
}

void MediaLoader::pause()
{
    if (!mHasFailed)
        mPlayer->pause();
}

// The backend takes a player that has been told to play, but does not move yet, for a paused one
// that needs no stopping. A pause reaches it always.
void MediaLoader::stop()
{
    mRestart.stop();
    mPatience.stop();
    if (mPlayer->state() == QMediaPlayer::PlayingState && !mHasFailed)
        mPlayer->pause();
    mPlayer->stop();
}

void MediaLoader::restart()
{
    mRestartMedia = mPlayer->media();
    mRestartMs = mPlayer->position();
    unload();
    // What the backend has still to tell of the stuck recording is heard before.
    mRestart.start(0);
}

bool MediaLoader::isLoading() const
{
    return mPlayer->mediaStatus() == QMediaPlayer::LoadingMedia;
}

bool MediaLoader::isLoaded() const
{
    if (mHasFailed || mPlayer->media().isNull())
        return false;
    switch (mPlayer->mediaStatus()) {
    case QMediaPlayer::LoadedMedia:
    case QMediaPlayer::StalledMedia:
    case QMediaPlayer::BufferingMedia:
    case QMediaPlayer::BufferedMedia:
    case QMediaPlayer::EndOfMedia:
        return true;
    default:
        return false;
    }
}

void MediaLoader::onMediaStatusChanged(QMediaPlayer::MediaStatus status)
{
    if (status == QMediaPlayer::LoadingMedia)
        return;
    mPatience.stop();
    if (status == QMediaPlayer::InvalidMedia)
        fail();
    else if (status == QMediaPlayer::EndOfMedia)
        emit ended();
    else if (isLoaded())
        emit loaded();
    emit settled();
}

void MediaLoader::goOn()
{
    load(mRestartMedia);
    mPlayer->setPosition(mRestartMs);
    play();
}

void MediaLoader::giveUp()
{
    if (isLoaded())
        return;
    unload();
    fail();
}

void MediaLoader::fail()
{
    if (mHasFailed)
        return;
    mHasFailed = true;
    emit failed();
}
