// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "telemetryblock.h"

#include <QByteArray>
#include <QList>
#include <QString>

/**
 * Builds AVI (RIFF) recordings byte by byte: the chunks singly, lists, and whole recordings with
 * telemetry as the cameras lay it out. Integers are little-endian throughout.
 *
 * Nothing is checked: sizes may be given wrong, to see what a reader makes of them.
 */
namespace Avi {
QByteArray little32(quint32 value);

/** A chunk with its right size, and a pad byte behind a payload of odd size. */
QByteArray chunk(const QByteArray &id, const QByteArray &payload = {});
/** A chunk that claims @p size for its payload, whatever that is, and is not padded. */
QByteArray chunkClaiming(quint32 size, const QByteArray &id, const QByteArray &payload = {});
/** A chunk "01wb": cameras put no pad byte behind it, even where its size is odd. */
QByteArray soundChunk(const QByteArray &payload);

/** A list with its right size, padded as a chunk. */
QByteArray list(const QByteArray &type, const QByteArray &payload = {});
/** A list that claims @p size for its type and payload, whatever they are, and is not padded. */
QByteArray listClaiming(quint32 size, const QByteArray &type, const QByteArray &payload = {});
/** A whole recording of these lists and chunks. */
QByteArray riff(const QByteArray &content);

/** "avih", with 56 bytes of payload; width and height in pixels. */
QByteArray mainHeader(quint32 microsecondsPerFrame, quint32 totalFrames, quint32 width,
                      quint32 height);
/** The list "strl" of a stream of pictures, with the four characters of their coding. */
QByteArray videoStream(const QByteArray &coding);
} // namespace Avi

/**
 * A whole recording: the list "hdrl" with the main header and a stream of pictures, "JUNK", and
 * the list "movi".
 *
 * The telemetry is laid out as one of the cameras' schemes, which are numbered as the parser does:
 *   7  a block "GPSL" behind all else, to which the last four bytes of the file point
 *   8  within the chunks "01wb", each block 65538 bytes behind the start of its chunk's header
 * Scheme 7 begins with an entry that is not a sample of the ride; scheme 8 ends with a chunk whose
 * block players leave out, and which has none here. The writer adds both: N samples given are N
 * samples delivered, from N + 1 entries or chunks.
 */
class AviWriter
{
public:
    quint32 width = 640;
    quint32 height = 480;
    quint32 microsecondsPerFrame = 40000;
    quint32 totalFrames = 250;
    int junkSize = 0; ///< bytes in "JUNK", 0 for none; "movi" is found behind multiples of 4
    int videoChunkSize = 333; ///< bytes in each "00dc": one before each "01wb", else a few
    int soundChunkExtra = 0;  ///< bytes in each "01wb" behind its block

    /** Scheme 7 or 8; anything else leaves the recording without telemetry. Only scheme 8 has
     *  sound chunks. */
    void setTelemetry(int scheme, const QList<TelemetryBlock> &samples);

    QByteArray encoded() const;
    /** Writes the recording to a file. Returns false, with a warning, when that fails. */
    bool save(const QString &fileName) const;

private:
    QByteArray movie() const;

    int mScheme = 0;
    QList<TelemetryBlock> mSamples;
};
