// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

class PlayAreaManager;

/**
 * When the list goes on by itself: at the end of a recording, and after a while, in which the user
 * can read why, when one cannot be played. Whatever the user does meanwhile comes before that.
 *
 * The play area is not owned and must live longer. GUI thread only.
 */
class PlaylistAdvance : public QObject
{
    Q_OBJECT

public:
    explicit PlaylistAdvance(PlayAreaManager *area, QObject *parent = nullptr);

    /** How long a recording that cannot be played holds up the list; four seconds by itself. */
    void setUnplayablePauseMs(int ms) { mPause.setInterval(ms); }

public slots:
    /** The user has taken over. */
    void giveUp() { mPause.stop(); }

signals:
    /** The next recording's turn. */
    void due();

private:
    QTimer mPause;
};
