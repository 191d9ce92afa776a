// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

class ControlPanel;
class PlayAreaManager;

/**
 * Gives a new main window the volume, the mute and the rate of the last one, through its control
 * bar, and stores what the user changes: a little later, because a slider that is drawn changes a
 * hundred times, or when it goes. A volume of 0 is not stored; the one before it comes back.
 *
 * The window must outlive it. GUI thread only.
 */
class PlaybackMemory : public QObject
{
    Q_OBJECT

public:
    explicit PlaybackMemory(QWidget *window);
    ~PlaybackMemory() override;

private:
    void restore();
    void store();
    void storeLater();

    ControlPanel *mPanel;
    PlayAreaManager *mArea;
    QTimer mStoreTimer;
};
