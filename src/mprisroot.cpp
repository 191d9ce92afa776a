// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "mprisroot.h"

#include "mediacontrols.h"
#include "playbackremote.h"

#include <QTimer>

MprisRoot::MprisRoot(PlaybackRemote *remote, MediaControls *parent)
    : QDBusAbstractAdaptor(parent), mRemote(remote), mControls(parent)
{}

QString MprisRoot::identity() const
{
    return QStringLiteral("Talvor Player");
}

QString MprisRoot::desktopEntry() const
{
    return QStringLiteral("talvor-player");
}

QStringList MprisRoot::supportedUriSchemes() const
{
    return {QStringLiteral("file")};
}

// As in the desktop entry.
QStringList MprisRoot::supportedMimeTypes() const
{
    return {QStringLiteral("video/mp4"), QStringLiteral("video/quicktime"),
            QStringLiteral("video/x-msvideo"), QStringLiteral("video/vnd.avi")};
}

void MprisRoot::Raise()
{
    mRemote->raise();
}

// Later, so that the caller gets its answer.
void MprisRoot::Quit()
{
    QTimer::singleShot(0, mControls, &MediaControls::quitRequested);
}
