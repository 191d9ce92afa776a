// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QUrl>

/**
 * The playlist as it is kept from one run to the next, in the file "playlist.json" beside the
 * settings, which only the user can read: the recordings' URLs in order, and where playback was.
 *
 * The file is written as a whole or not at all. What is not understood in it, is no local file, or
 * too much, is left out.
 */
struct RememberedList
{
    QList<QUrl> recordings;
    QUrl playing;          ///< what played last; empty if nothing did
    qint64 positionMs = 0; ///< where that was

    /** An empty list if there is none. */
    static RememberedList load();
    static void remove();

    /** Returns false if it could not be written; a list that was there before stays. */
    bool store() const;
};
