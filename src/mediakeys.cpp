// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "mediakeys.h"

#include "playbackremote.h"

#include <QCoreApplication>
#include <QHash>
#include <QKeyEvent>

namespace {

using Command = void (PlaybackRemote::*)();

Command commandOf(int key)
{
    static const QHash<int, Command> Commands = {
        // The key with both signs, which most keyboards have, is this one under X11.
        {Qt::Key_MediaPlay, &PlaybackRemote::playOrPause},
        {Qt::Key_MediaPause, &PlaybackRemote::pause},
        {Qt::Key_MediaTogglePlayPause, &PlaybackRemote::playOrPause},
        {Qt::Key_MediaStop, &PlaybackRemote::stop},
        {Qt::Key_MediaPrevious, &PlaybackRemote::previous},
        {Qt::Key_MediaNext, &PlaybackRemote::next}};
    return Commands.value(key, nullptr);
}

} // namespace

MediaKeys::MediaKeys(PlaybackRemote *remote, QObject *parent) : QObject(parent), mRemote(remote)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool MediaKeys::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(object, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    const Command command = commandOf(key->key());
    if (!command)
        return QObject::eventFilter(object, event);
    event->accept(); // or else it would be offered to each parent in turn
    if (!key->isAutoRepeat())
        (mRemote->*command)();
    return true;
}
