// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/** One coded track, as ffmpeg makes it. */
struct CodedTrack
{
    QByteArray description;   ///< the box "stsd"
    QList<QByteArray> frames; ///< in the order of the file
};

/** Two seconds of picture (H.264, 1920x1080, 30 frames a second) and sound (AAC, 48 kHz). */
struct MediaClip
{
    CodedTrack video;
    CodedTrack sound;
};

/** Has ffmpeg make the clip, with a file in @p folder. A failure ends the program. */
MediaClip makeMediaClip(const QString &folder);
