// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "playbackmemory.h"

#include "configuration.h"
#include "controlpanel.h"
#include "playareamanager.h"

#include <QAbstractButton>

namespace {

constexpr int StoreDelayMs = 500;

} // namespace

PlaybackMemory::PlaybackMemory(QWidget *window)
    : mPanel(window->findChild<ControlPanel *>()), mArea(window->findChild<PlayAreaManager *>())
{
    restore();
    mStoreTimer.setSingleShot(true);
    mStoreTimer.setInterval(StoreDelayMs);
    connect(&mStoreTimer, &QTimer::timeout, this, &PlaybackMemory::store);
    connect(mArea, &PlayAreaManager::volumeChanged, this, &PlaybackMemory::storeLater);
    connect(mArea, &PlayAreaManager::mutedChanged, this, &PlaybackMemory::storeLater);
    connect(mPanel, &ControlPanel::changeRate, this, &PlaybackMemory::storeLater);
}

PlaybackMemory::~PlaybackMemory()
{
    if (mStoreTimer.isActive())
        store();
}

void PlaybackMemory::restore()
{
    Configuration *stored = Configuration::GetInstance();
    mPanel->setVolume(stored->volume());
    mPanel->setPlaybackRate(float(stored->playbackRate()));
    if (!stored->isMuted())
        return;
    mPanel->muteClicked();
    // Only a click would show it.
    mPanel->findChild<QAbstractButton *>(QStringLiteral("tBtn_Mute"))->setChecked(true);
}

void PlaybackMemory::store()
{
    Configuration *stored = Configuration::GetInstance();
    const int volume = mArea->volume();
    if (volume > 0 && volume != stored->volume())
        stored->setVolume(volume);
    if (mPanel->isMuted() != stored->isMuted())
        stored->setMuted(mPanel->isMuted());
    if (!qFuzzyCompare(mPanel->playbackRate(), stored->playbackRate()))
        stored->setPlaybackRate(mPanel->playbackRate());
}

void PlaybackMemory::storeLater()
{
    mStoreTimer.start();
}
