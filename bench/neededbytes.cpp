// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "neededbytes.h"

#include <QtEndian>

namespace {

constexpr quint32 BoxHeader = 8;

/** What of a box has to be read to learn the facts and to find the telemetry. */
struct BoxNeed
{
    const char *type;
    enum
    {
        Children, ///< the header, and what the children need
        Whole,    ///< all of it
        Head      ///< the header and a number of bytes behind it
    } need;
    quint32 headSize;
};

// Of "stsd": the count, and the header of the only entry.
constexpr BoxNeed BoxNeeds[] = {
    {"moov", BoxNeed::Children, 0}, {"trak", BoxNeed::Children, 0}, {"mdia", BoxNeed::Children, 0},
    {"minf", BoxNeed::Children, 0}, {"stbl", BoxNeed::Children, 0}, {"mvhd", BoxNeed::Whole, 0},
    {"tkhd", BoxNeed::Whole, 0},    {"hdlr", BoxNeed::Whole, 0},    {"gps ", BoxNeed::Whole, 0},
    {"stsd", BoxNeed::Head, 16},    {"stsz", BoxNeed::Head, 12},    {"stco", BoxNeed::Head, 8},
};

quint64 neededBetween(const QByteArray &boxes, quint32 offset, quint32 end);

quint64 neededOfBox(const QByteArray &boxes, quint32 offset, quint32 size)
{
    for (const BoxNeed &box : BoxNeeds) {
        if (boxes.mid(int(offset) + 4, 4) != box.type)
            continue;
        if (box.need == BoxNeed::Whole)
            return size;
        if (box.need == BoxNeed::Head)
            return BoxHeader + box.headSize;
        return BoxHeader + neededBetween(boxes, offset + BoxHeader, offset + size);
    }
    return BoxHeader;
}

quint64 neededBetween(const QByteArray &boxes, quint32 offset, quint32 end)
{
    quint64 needed = 0;
    while (offset < end) {
        const quint32 size = qFromBigEndian<quint32>(boxes.constData() + offset);
        needed += neededOfBox(boxes, offset, size);
        offset += size;
    }
    return needed;
}

} // namespace

quint64 neededOfBoxes(const QByteArray &boxes)
{
    return neededBetween(boxes, 0, quint32(boxes.size()));
}
