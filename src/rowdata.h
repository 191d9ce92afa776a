// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "recordingcondition.h"
#include "videoparser.h"

#include <QDateTime>
#include <QString>
#include <QUrl>

/**
 * One row of the playlist: an opened recording and its parse worker. Owned by the model, which
 * only appends rows or clears them all, so the id equals the row number.
 */
struct RowData
{
    int id = 0;
    QString fileName;       ///< without directory
    quint32 duration = 0;   ///< seconds; 0 until the worker has told
    float frameRate = 0.0f; ///< frames per second; 0 until the worker has told
    QDateTime createDate;   ///< birth time in the file system, invalid where it keeps none
    qint64 size = 0;        ///< bytes
    int width = -1;         ///< pixels; -1 until the worker has told
    int height = -1;        ///< pixels; -1 until the worker has told
    VideoParser parser;
    QUrl url;
    int decodeType = 0;           ///< as VideoInfo
    RecordingCondition condition; ///< unknown until the worker has told
};
