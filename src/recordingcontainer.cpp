// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "recordingcontainer.h"

#include <QtEndian>

#include <algorithm>
#include <array>

namespace {

// As far as players look for the first element of a manifest.
constexpr int HeadSize = 4096;

// Cameras need some 20 for each track, and less than that before "moov". Each may cost a read.
constexpr int MaxBoxes = 512;

constexpr quint64 BoxHeaderSize = 8;
constexpr quint64 LargeBoxHeaderSize = 16;
constexpr quint64 DescriptionsHeaderSize = 8; // of "stsd", behind that of the box

constexpr int MpegPacketSizes[] = {188, 192};
constexpr int MpegPacketCount = 4;
constexpr char MpegSync = 'G';

// Whatever else a file looks like, with one of these it may be played as an MP4.
const std::array<const char *, 20> FirstBoxes{
    "ftyp", "moov", "mdat", "free", "skip", "wide", "pnot", "uuid", "styp", "sidx",
    "moof", "udta", "meta", "pdin", "prft", "PICT", "emsg", "ssix", "mfra", "prfl"};

// What begins so is taken for tags, a description of a session or a playlist before anything else
// is considered, even if a box of this very size follows.
const std::array<const char *, 3> ForeignBeginnings{"ID3", "v=0", "#EXT"};

// What makes players take a file for a manifest, a project or an answer of a server, though there
// may be the header of a box before it. In lower case.
const std::array<const char *, 11> ForeignMarks{
    "<mpd",    "<smil",           "<smoothstreamingmedia", "<asx", "<playlist", "<ges", "<xmeml",
    "<fcpxml", "\"otio_schema\"", "\ncontent-type:",       "<svg"};

// The one manifest that is read as UTF-16 too, in either byte order.
const QByteArray WideMark = QByteArrayLiteral("s\0m\0o\0o\0t\0h\0s\0t\0r\0e\0a\0m");

// The way from "moov" to the kinds of samples.
constexpr const char *TrackPath[] = {"trak", "mdia", "minf", "stbl"};
constexpr int TrackPathLength = 4;

bool isText(char c)
{
    return (c >= ' ' && c <= '~') || c == '\t' || c == '\n' || c == '\r';
}

bool hasForeignMarks(const QByteArray &head)
{
    const auto begins = [&](const char *beginning) { return head.startsWith(beginning); };
    const QByteArray lower = head.toLower();
    const auto contains = [&](const char *mark) { return lower.contains(mark); };
    return std::any_of(ForeignBeginnings.begin(), ForeignBeginnings.end(), begins) ||
           std::any_of(ForeignMarks.begin(), ForeignMarks.end(), contains) ||
           lower.contains(WideMark);
}

/** A camera that lost its power leaves files behind whose room was reserved, but never written. */
bool isBlank(const QByteArray &head)
{
    return head.count('\0') == head.size();
}

bool isMpegTransport(const QByteArray &head)
{
    for (const int packetSize : MpegPacketSizes) {
        int offset = packetSize - MpegPacketSizes[0]; // a time stamp
        int count = 0;
        while (offset < head.size() && head.at(offset) == MpegSync) {
            ++count;
            offset += packetSize;
        }
        if (count >= MpegPacketCount)
            return true;
    }
    return false;
}

/** Containers other than MP4 and MOV, none of which knows how to refer to another file. */
bool isOtherContainer(const QByteArray &head)
{
    const bool isRiff = head.startsWith("RIFF");
    const QByteArray riffType = head.mid(8, 4);
    return (isRiff && (riffType == "AVI " || riffType == "WAVE")) ||
           head.startsWith("\x1A\x45\xDF\xA3") || // Matroska, WebM
           head.startsWith("OggS") || head.startsWith("FLV\x01") ||
           head.startsWith(QByteArrayLiteral("\0\0\1\xBA")) || // MPEG program stream
           isMpegTransport(head);
}

} // namespace

struct RecordingContainer::Box
{
    QByteArray type;
    quint64 size;    ///< as it is claimed, but 0 means up to the end
    quint64 payload; ///< offset
    quint64 end;     ///< offset; never behind that of what the box is in

    bool isSound(quint64 offset) const { return size >= payload - offset; }
};

RecordingContainer::RecordingContainer(const QString &fileName)
    : mFile(fileName), mBoxesLeft(MaxBoxes)
{}

QString RecordingContainer::obstacle()
{
    if (!mFile.openRegular())
        return found(Unreadable, QStringLiteral("not a readable regular file"));
    if (mFile.size() == 0)
        return found(Empty, QStringLiteral("an empty file"));
    const int headSize = int(std::min<qint64>(mFile.size(), HeadSize));
    const QByteArray head(mFile.bytesAt(0, headSize), headSize);
    if (hasForeignMarks(head))
        return found(Foreign, QStringLiteral("may be a playlist or a manifest"));
    if (isBlank(head))
        return found(Damaged, QStringLiteral("begins with nothing but zeros"));
    const QByteArray type = head.mid(4, 4);
    const auto isFirst = [&](const char *box) { return type == box; };
    if (!std::any_of(FirstBoxes.begin(), FirstBoxes.end(), isFirst))
        return isOtherContainer(head) ? QString()
                                      : found(Foreign, QStringLiteral("not a known container"));
    // Such a size is beyond 150 MB: nothing but pictures and sound is as large. A cut recording
    // without what follows them cannot be played.
    const bool looksLikeText = std::all_of(head.begin(), head.begin() + 4, isText);
    if (looksLikeText && (type != "mdat" || boxAt(0, ~quint64(0)).end >= quint64(mFile.size())))
        return found(type == "mdat" ? Damaged : Foreign,
                     QStringLiteral("a text that looks like a box"));
    return obstacleInMovie();
}

QString RecordingContainer::found(Verdict verdict, const QString &obstacle)
{
    mVerdict = verdict;
    return obstacle;
}

RecordingContainer::Box RecordingContainer::boxAt(quint64 offset, quint64 end)
{
    const char *header = mFile.bytesAt(offset, BoxHeaderSize);
    Box box{QByteArray(header + 4, 4), qFromBigEndian<quint32>(header), offset + BoxHeaderSize,
            end};
    if (box.size == 1) {
        box.size = qFromBigEndian<quint64>(mFile.bytesAt(box.payload, BoxHeaderSize));
        box.payload = offset + LargeBoxHeaderSize;
    } else if (box.size == 0) {
        box.size = std::max(end - offset, BoxHeaderSize);
    }
    if (box.size < end - offset)
        box.end = offset + box.size;
    return box;
}

/** Steps over the boxes as players do, which take the first "moov" and no other. */
QString RecordingContainer::obstacleInMovie()
{
    const quint64 end = quint64(mFile.size());
    for (quint64 offset = 0; offset + BoxHeaderSize <= end;) {
        const Box box = boxAt(offset, end);
        if (!box.isSound(offset))
            return found(Damaged, QStringLiteral("a box that is smaller than its header"));
        if (--mBoxesLeft < 0)
            return found(Damaged, QStringLiteral("too many boxes"));
        if (box.type == "moov")
            return obstacleInBoxes(box.payload, box.end, 0);
        offset = box.end;
    }
    return QString();
}

QString RecordingContainer::obstacleInBoxes(quint64 offset, quint64 end, int depth)
{
    while (offset + BoxHeaderSize <= end) {
        const Box box = boxAt(offset, end);
        if (--mBoxesLeft < 0)
            return found(Damaged, QStringLiteral("too many boxes"));
        if (!box.isSound(offset))
            return QString();
        QString obstacle;
        if (depth == 0 && box.type == "rmra")
            obstacle = found(Foreign, QStringLiteral("a movie that refers to another one"));
        else if (depth == 0 && box.type == "cmov")
            obstacle = found(Foreign, QStringLiteral("a movie whose header is compressed"));
        else if (depth == TrackPathLength && box.type == "stsd")
            obstacle = obstacleInDescriptions(box.payload + DescriptionsHeaderSize, box.end);
        else if (depth < TrackPathLength && box.type == TrackPath[depth])
            obstacle = obstacleInBoxes(box.payload, box.end, depth + 1);
        if (!obstacle.isEmpty())
            return obstacle;
        offset = box.end;
    }
    return QString();
}

/** Samples of the kind "rtsp" are addresses, which are called in place of the movie. */
QString RecordingContainer::obstacleInDescriptions(quint64 offset, quint64 end)
{
    while (offset + BoxHeaderSize <= end) {
        const Box box = boxAt(offset, end);
        if (--mBoxesLeft < 0)
            return found(Damaged, QStringLiteral("too many boxes"));
        if (box.type == "rtsp")
            return found(Foreign, QStringLiteral("a track that refers to a server"));
        if (!box.isSound(offset))
            return QString();
        offset = box.end;
    }
    return QString();
}
