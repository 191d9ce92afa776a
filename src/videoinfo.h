// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QMetaType>

/** The facts about one recording that its container tells. What is not told stays zero. */
struct VideoInfo
{
    int width = 0;          ///< pixels
    int height = 0;         ///< pixels
    quint32 duration = 0;   ///< whole seconds
    float frameRate = 0.0f; ///< frames per second, rounded to one decimal
    QDateTime createDate;   ///< creation time of the video track, invalid when not told
    int decodeType = 0;     ///< coding of the video track: 0 unknown, 1 H.264, 2 H.265
};

Q_DECLARE_METATYPE(VideoInfo)
