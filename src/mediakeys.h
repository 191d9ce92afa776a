// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class PlaybackRemote;
class QKeyEvent;

/**
 * The media keys of keyboards and headsets, in every window of the program, dialogs and the picture
 * that fills the screen included. None is taken away from other programs: most desktops keep these
 * keys to themselves, and send what they mean by way of MediaControls.
 *
 * The remote must outlive it. GUI thread only.
 */
class MediaKeys : public QObject
{
    Q_OBJECT

public:
    explicit MediaKeys(PlaybackRemote *remote, QObject *parent = nullptr);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    PlaybackRemote *mRemote;
};
