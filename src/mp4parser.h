// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "parserobject.h"
#include "traktype.h"

#include <QString>

/**
 * Walks the boxes of an MP4 or MOV recording (ISO/IEC 14496-12) once, in its constructor, and
 * fills the facts of ParserObject: size, duration, frame rate, creation date and coding of the
 * widest video track, and where the camera's telemetry lies.
 *
 * Only the boxes named here are understood, in their version-0 layout; all others are stepped
 * over by their size. No size or count from the file is trusted: a walk ends at the end of its
 * container or of the file, whichever comes first, and then still does its closing steps, so that
 * a recording cut short gives what was read of it.
 */
class Mp4Parser : public ParserObject
{
    Q_OBJECT

public:
    explicit Mp4Parser(const QString &fileName, QObject *parent = nullptr,
                       KeepRunning keepRunning = nullptr);
    ~Mp4Parser() override;

    /** When the first picture or sound comes, in milliseconds: what players show nothing before,
     *  and other tools count as the beginning. From the empty edit that a track may begin with. */
    qint64 startMs() const { return mStartMs == NoStart ? 0 : mStartMs; }

private:
    /** The fields of the "mvhd" box, version 0. */
    struct MovieHeader
    {
        quint32 creationTime = 0; ///< seconds since 1904
        quint32 modificationTime = 0;
        quint32 timeScale = 0; ///< units per second
        quint32 duration = 0;  ///< in units of the time scale
        quint32 rate = 0;      ///< 16.16 fixed point
        quint32 volume = 0;    ///< 8.8 fixed point
        quint32 nextTrackId = 0;
    };

    /** Reads box headers until @p payload bytes from here are used up; @p handle gets the type
     *  and returns false for a box that is to be stepped over. */
    template <typename Handler>
    void walk(quint64 payload, Handler handle);
    void skipEmptyHeaders(quint64 end);

    /** Reads the header at the current position. A size of 1 announces a 64-bit size. Returns the
     *  size of the whole box; payload is that less the header (wrapped for invented sizes). */
    quint64 readBoxSizeType(QString &type, quint64 &size, quint64 &payload);
    void readBoxVersionFlags(quint8 &version, quint8 *flags);

    void readRootBox();
    void readGps0Box(quint64 size);
    void readMoovBox(quint64 payload);
    void readGpsBox();
    void readMvhdBox(quint64 payload, quint64 size);
    void readTrakBox(quint64 payload);
    qint64 emptyEditMs(quint64 payload);
    void readTkhdBox(quint64 payload, quint64 size, int &trackWidth, int &trackHeight,
                     unsigned &creationTime);
    void readMdiaBox(quint64 payload, TrakType &kind);
    void readHdlrBox(quint64 payload, quint64 size, TrakType &kind, QString &handlerName);
    QString readHandlerName(quint64 length);
    void readMinfBox(quint64 payload, quint64 &chunkTable, unsigned &chunkCount);
    void readStblBox(quint64 payload, quint64 &chunkTable, unsigned &chunkCount);
    void readStcoBox(quint64 &chunkTable, unsigned &chunkCount);
    void readStsdBox(quint64 payload);
    void readStszBox(quint64 payload);

    void setTelemetry(int format, quint64 tableOffset, unsigned count);
    void probeFreeGps(quint64 chunkTable, unsigned chunkCount);

    static constexpr qint64 NoStart = -1;

    qint64 mStartMs = NoStart; ///< of the earliest track so far
    quint64 boxSize = 0;
    quint64 boxPayload = 0;
    qint32 sampleDecode = 0; ///< of the last "stsd"; carries over to the next track
    QString boxType;
    MovieHeader movieHeader;
    float sampleFrameRate = 0.0f; ///< of the last "stsz"; carries over to the next track
};
