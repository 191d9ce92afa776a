// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "medialoader.h"

#include "mediaurl.h"

#include <QDebug>
#include <QMediaMetaData>

namespace {

// Whole recordings are loaded within a fraction of a second. One that was cut off before its index
// may be searched for it for ever.
constexpr int PatienceMs = 3000;

// The backend may still be on its way to playing for so long.
constexpr int StateChangeMs = 300;

/** Whether this is the plain name of a file. Anything else may lead a player elsewhere than to the
 *  file that was looked at. */
bool isPlainFile(const QUrl &url)
{
    return url.isLocalFile() && url.host().isEmpty() && !url.hasQuery() && !url.hasFragment();
}

/** Whether, and why not, the media may reach the player. */
RecordingContainer::Verdict verdictOn(const QMediaContent &media)
{
    const QUrl url = mediaUrl(media);
    QString obstacle = QStringLiteral("not a local file");
    RecordingContainer::Verdict verdict = RecordingContainer::Unreadable;
    if (isPlainFile(url)) {
        RecordingContainer container(url.toLocalFile());
        obstacle = container.obstacle();
        verdict = container.verdict();
    }
    if (!obstacle.isEmpty())
        qDebug() << "not played:" << url.toString() << obstacle;
    return verdict;
}

} // namespace

MediaLoader::MediaLoader(QMediaPlayer *player, QObject *parent) : QObject(parent), mPlayer(player)
{
    mStopAgain.setSingleShot(true);
    mStopAgain.setInterval(StateChangeMs);
    connect(&mStopAgain, &QTimer::timeout, this, &MediaLoader::stopAgain);
    mRestart.setSingleShot(true);
    connect(&mRestart, &QTimer::timeout, this, &MediaLoader::goOn);
    mPatience.setSingleShot(true);
    connect(&mPatience, &QTimer::timeout, this, &MediaLoader::giveUp);
    mGiveUpPictures.setSingleShot(true);
    mGiveUpPictures.setInterval(0);
    connect(&mGiveUpPictures, &QTimer::timeout, this, &MediaLoader::giveUpPictures);
    connect(mPlayer, &QMediaPlayer::mediaStatusChanged, this, &MediaLoader::onMediaStatusChanged);
}

void MediaLoader::load(const QMediaContent &media)
{
    cancelTimers();
    mHasFailed = false;
    mFailure = PlaybackFailure();
    if (!media.isNull())
        mFailure.verdict = verdictOn(media);
    const bool isPlayable = mFailure.verdict == RecordingContainer::Complete;
    mPlayer->setMedia(isPlayable ? media : QMediaContent());
    if (mPlayer->media().isNull())
        mPatience.start(0);
}

void MediaLoader::unload()
{
    cancelTimers();
    mPlayer->setMedia(QMediaContent());
}

void MediaLoader::play()
{
    // Without a recording, only the news of that is awaited, or the recording that comes again.
    if (mHasFailed || mPlayer->media().isNull())
        return;
    cancelTimers();
    mSincePlay.start();
    mPlayer->play();
    if (isLoading())
        mPatience.start(PatienceMs);
    else if (lacksDecoder())
        mGiveUpPictures.start();
}

void MediaLoader::pause()
{
    mStopAgain.stop();
    if (!mHasFailed)
        mPlayer->pause();
}

// The backend takes a player that has been told to play, but does not move yet, for a paused one
// that needs no stopping. A pause reaches it always.
void MediaLoader::stop()
{
    mRestart.stop();
    mPatience.stop();
    mGiveUpPictures.stop();
    if (mPlayer->state() == QMediaPlayer::PlayingState && !mHasFailed) {
        mPlayer->pause();
        if (mSincePlay.elapsed() < StateChangeMs)
            mStopAgain.start();
    }
    mPlayer->stop();
}

// Now and then a pipeline that was on its way to playing goes there in spite of the pause.
void MediaLoader::stopAgain()
{
    if (!isLoaded() || mPlayer->state() != QMediaPlayer::StoppedState)
        return;
    mPlayer->pause();
    mPlayer->stop();
}

void MediaLoader::cancelTimers()
{
    mStopAgain.stop();
    mRestart.stop();
    mPatience.stop();
    mGiveUpPictures.stop();
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
    const bool isEnd = status == QMediaPlayer::EndOfMedia;
    if (status == QMediaPlayer::InvalidMedia)
        fail();
    else if (isLoaded() && (isEnd ? lacksPictures() : lacksDecoder()))
        mGiveUpPictures.start();
    else if (isEnd)
        emit ended();
    else if (isLoaded())
        emit loaded();
    emit settled();
}

/** The backend would play the sound beside a black picture. That of a sound it cannot decode is the
 *  same error, but with pictures. */
bool MediaLoader::lacksDecoder() const
{
    return mPlayer->error() == QMediaPlayer::FormatError && !mPlayer->isVideoAvailable();
}

/** Whether there are pictures, but none was decoded up to now: each brings its size. */
bool MediaLoader::lacksPictures() const
{
    return mPlayer->isVideoAvailable() && !mPlayer->metaData(QMediaMetaData::Resolution).isValid();
}

void MediaLoader::giveUpPictures()
{
    mFailure.error = mPlayer->error();
    mFailure.endedWithoutPicture = mPlayer->isVideoAvailable();
    unload();
    fail();
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
    if (mPlayer->error() != QMediaPlayer::NoError)
        mFailure.error = mPlayer->error();
    emit failed();
}
