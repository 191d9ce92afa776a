// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QVariantMap>

class PlaybackRemote;
class QDBusMessage;

/**
 * Playback as other programs see it: org.mpris.MediaPlayer2.Player of MPRIS 2.2, the desktop's
 * common interface of media players, whose names and units these are. Times are in microseconds.
 *
 * Callers are strangers: what they pass is checked here or by the remote, which must outlive this.
 * A child of the object that is on the bus. GUI thread only.
 */
class MprisPlayer : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2.Player")
    Q_PROPERTY(QString PlaybackStatus READ playbackStatus)
    Q_PROPERTY(double Rate READ rate WRITE setRate)
    Q_PROPERTY(QVariantMap Metadata READ metadata)
    Q_PROPERTY(double Volume READ volume WRITE setVolume)
    Q_PROPERTY(qlonglong Position READ position)
    Q_PROPERTY(double MinimumRate READ minimumRate CONSTANT)
    Q_PROPERTY(double MaximumRate READ maximumRate CONSTANT)
    Q_PROPERTY(bool CanGoNext READ canGoNext)
    Q_PROPERTY(bool CanGoPrevious READ canGoPrevious)
    Q_PROPERTY(bool CanPlay READ canPlay)
    Q_PROPERTY(bool CanPause READ canPause)
    Q_PROPERTY(bool CanSeek READ canSeek)
    Q_PROPERTY(bool CanControl READ canControl CONSTANT)

public:
    /** @p bus is the one that the parent is on. */
    MprisPlayer(PlaybackRemote *remote, const QDBusConnection &bus, QObject *parent);

    QString playbackStatus() const;
    double rate() const;
    void setRate(double rate);
    QVariantMap metadata() const;
    double volume() const;
    void setVolume(double volume);
    qlonglong position() const;
    double minimumRate() const;
    double maximumRate() const;
    bool canGoNext() const;
    bool canGoPrevious() const;
    bool canPlay() const;
    bool canPause() const;
    bool canSeek() const;
    bool canControl() const { return true; }

    /** The properties whose changes other programs are told of: not the position, which they count
     *  by themselves. */
    QVariantMap announcedProperties() const;

public slots:
    void Next();
    void Previous();
    void Pause();
    void PlayPause();
    void Stop();
    void Play();
    void Seek(qlonglong offset);
    void SetPosition(const QDBusObjectPath &trackId, qlonglong position);
    /** Answers with an error if there is no such recording or folder on this computer. */
    void OpenUri(const QString &uri, const QDBusMessage &message);

signals:
    void Seeked(qlonglong position);

private:
    QDBusObjectPath trackId() const;

    PlaybackRemote *mRemote;
    QDBusConnection mBus;
};
