// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "mprisplayer.h"

#include "playbackremote.h"
#include "rowdata.h"

#include <QDBusError>
#include <QDBusMessage>

namespace {

constexpr qlonglong UsPerMs = 1000;
// A path has 4096 bytes at most, each of which may be written with three characters.
constexpr int LongestUri = 3 * 4096 + 64;

} // namespace

MprisPlayer::MprisPlayer(PlaybackRemote *remote, const QDBusConnection &bus, QObject *parent)
    : QDBusAbstractAdaptor(parent), mRemote(remote), mBus(bus)
{
    connect(remote, &PlaybackRemote::jumped, this,
            [this](qint64 positionMs) { emit Seeked(positionMs * UsPerMs); });
}

QString MprisPlayer::playbackStatus() const
{
    switch (mRemote->state()) {
    case QMediaPlayer::PlayingState:
        return QStringLiteral("Playing");
    case QMediaPlayer::PausedState:
        return QStringLiteral("Paused");
    case QMediaPlayer::StoppedState:
        break;
    }
    return QStringLiteral("Stopped");
}

double MprisPlayer::rate() const
{
    return mRemote->rate();
}

void MprisPlayer::setRate(double rate)
{
    mRemote->setRate(rate);
}

QVariantMap MprisPlayer::metadata() const
{
    const RowData *recording = mRemote->recording();
    if (!recording)
        return {};
    QVariantMap metadata;
    metadata.insert(QStringLiteral("mpris:trackid"), QVariant::fromValue(trackId()));
    metadata.insert(QStringLiteral("xesam:title"), recording->fileName);
    metadata.insert(QStringLiteral("xesam:url"), recording->url.toString(QUrl::FullyEncoded));
    if (mRemote->durationMs() > 0)
        metadata.insert(QStringLiteral("mpris:length"), mRemote->durationMs() * UsPerMs);
    return metadata;
}

double MprisPlayer::volume() const
{
    return mRemote->volume();
}

void MprisPlayer::setVolume(double volume)
{
    mRemote->setVolume(volume);
}

qlonglong MprisPlayer::position() const
{
    return mRemote->positionMs() * UsPerMs;
}

double MprisPlayer::minimumRate() const
{
    return mRemote->rates().first();
}

double MprisPlayer::maximumRate() const
{
    return mRemote->rates().last();
}

bool MprisPlayer::canGoNext() const
{
    return mRemote->canGoNext();
}

bool MprisPlayer::canGoPrevious() const
{
    return mRemote->canGoPrevious();
}

bool MprisPlayer::canPlay() const
{
    return mRemote->canPlay();
}

bool MprisPlayer::canPause() const
{
    return mRemote->canPause();
}

bool MprisPlayer::canSeek() const
{
    return mRemote->canSeek();
}

QVariantMap MprisPlayer::announcedProperties() const
{
    QVariantMap properties;
    for (const char *name : {"PlaybackStatus", "Rate", "Metadata", "Volume", "CanGoNext",
                             "CanGoPrevious", "CanPlay", "CanPause", "CanSeek"})
        properties.insert(QLatin1String(name), property(name));
    return properties;
}

void MprisPlayer::Next()
{
    mRemote->next();
}

void MprisPlayer::Previous()
{
    mRemote->previous();
}

void MprisPlayer::Pause()
{
    mRemote->pause();
}

void MprisPlayer::PlayPause()
{
    mRemote->playOrPause();
}

void MprisPlayer::Stop()
{
    mRemote->stop();
}

void MprisPlayer::Play()
{
    mRemote->play();
}

void MprisPlayer::Seek(qlonglong offset)
{
    mRemote->seekBy(offset / UsPerMs);
}

void MprisPlayer::SetPosition(const QDBusObjectPath &trackId, qlonglong position)
{
    // A stale one means a recording that has been left meanwhile.
    if (mRemote->recording() && trackId == this->trackId() && position >= 0)
        mRemote->seekTo(position / UsPerMs);
}

void MprisPlayer::OpenUri(const QString &uri, const QDBusMessage &message)
{
    if (uri.size() <= LongestUri && mRemote->open(QUrl(uri)))
        return;
    message.setDelayedReply(true);
    mBus.send(message.createErrorReply(
        QDBusError::InvalidArgs,
        QStringLiteral("There is no such recording or folder on this computer.")));
}

/** Of the present recording, which there must be. Not its row alone: a list that has been emptied
 *  numbers anew. */
QDBusObjectPath MprisPlayer::trackId() const
{
    const RowData *recording = mRemote->recording();
    return QDBusObjectPath(QStringLiteral("/com/quellfern/TalvorPlayer/recording/%1_%2")
                               .arg(recording->id)
                               .arg(qHash(recording->url), 0, 16));
}
