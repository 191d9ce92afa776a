// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusAbstractAdaptor>
#include <QStringList>

class MediaControls;
class PlaybackRemote;

/**
 * The program as other programs see it: org.mpris.MediaPlayer2 of MPRIS 2.2, the desktop's common
 * interface of media players, whose names these are.
 *
 * A child of the object that is on the bus; the remote must outlive it. GUI thread only.
 */
class MprisRoot : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2")
    Q_PROPERTY(bool CanQuit READ yes CONSTANT)
    Q_PROPERTY(bool CanRaise READ yes CONSTANT)
    Q_PROPERTY(bool HasTrackList READ no CONSTANT)
    Q_PROPERTY(QString Identity READ identity CONSTANT)
    Q_PROPERTY(QString DesktopEntry READ desktopEntry CONSTANT)
    Q_PROPERTY(QStringList SupportedUriSchemes READ supportedUriSchemes CONSTANT)
    Q_PROPERTY(QStringList SupportedMimeTypes READ supportedMimeTypes CONSTANT)

public:
    MprisRoot(PlaybackRemote *remote, MediaControls *parent);

    bool yes() const { return true; }
    bool no() const { return false; }
    QString identity() const;
    QString desktopEntry() const;
    QStringList supportedUriSchemes() const;
    QStringList supportedMimeTypes() const;

public slots:
    void Raise();
    void Quit();

private:
    PlaybackRemote *mRemote;
    MediaControls *mControls; // the parent
};
