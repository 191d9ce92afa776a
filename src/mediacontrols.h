// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QTimer>
#include <QVariantMap>

class MprisPlayer;
class PlaybackRemote;
class QDBusPendingCallWatcher;

/**
 * Lets the desktop control playback, and media keys with it wherever the keyboard is: puts the
 * player on the session bus as MPRIS describes, under the name
 * org.mpris.MediaPlayer2.talvor-player, or with .instance and the process's number behind it where
 * another window has that name, and tells of what changes. Without a bus it does nothing, and never
 * waits for one.
 *
 * The remote must outlive it. One at a time on a bus connection. GUI thread only.
 */
class MediaControls : public QObject
{
    Q_OBJECT

public:
    explicit MediaControls(PlaybackRemote *remote,
                           const QDBusConnection &bus = QDBusConnection::sessionBus(),
                           QObject *parent = nullptr);
    ~MediaControls() override;

signals:
    /** Somebody asks the program to end. */
    void quitRequested();

private:
    void requestName(const QString &name);
    void onNameAnswered(const QString &name, QDBusPendingCallWatcher *watcher);
    void announceChanges();

    QDBusConnection mBus;
    MprisPlayer *mPlayer; // a child
    QString mName;        // that the bus has given; empty until then
    QVariantMap mAnnounced;
    QTimer mAnnouncement; // one for all that changes in a turn of the event loop
};
