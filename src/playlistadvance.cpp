// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "playlistadvance.h"

#include "playareamanager.h"

namespace {

constexpr int UnplayablePauseMs = 4000;

} // namespace

PlaylistAdvance::PlaylistAdvance(PlayAreaManager *area, QObject *parent)
    : QObject(parent), mPause(this)
{
    mPause.setSingleShot(true);
    mPause.setInterval(UnplayablePauseMs);
    connect(&mPause, &QTimer::timeout, this, &PlaylistAdvance::due);
    connect(area, &PlayAreaManager::failed, &mPause, QOverload<>::of(&QTimer::start));
    // Later, because the media backend is in the middle of its own handling of the end.
    connect(area, &PlayAreaManager::ended, this, &PlaylistAdvance::due, Qt::QueuedConnection);
}
