// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "playbackproblem.h"

#include "rowdata.h"

#include <QFile>

#include <algorithm>
#include <iterator>

namespace {

struct Coding
{
    const char *fourCharacterCode; // in lower case
    const char *name;
};

// Of MP4 and AVI, as cameras and the programs that rewrite their recordings use them.
constexpr Coding Codings[] = {
    {"hvc1", "H.265 (HEVC)"}, {"hev1", "H.265 (HEVC)"}, {"hevc", "H.265 (HEVC)"},
    {"h265", "H.265 (HEVC)"}, {"x265", "H.265 (HEVC)"}, {"dvh1", "H.265 (HEVC)"},
    {"dvhe", "H.265 (HEVC)"}, {"avc1", "H.264 (AVC)"},  {"avc3", "H.264 (AVC)"},
    {"h264", "H.264 (AVC)"},  {"x264", "H.264 (AVC)"},  {"davc", "H.264 (AVC)"},
    {"mjpg", "Motion JPEG"},  {"mjpa", "Motion JPEG"},  {"mjpb", "Motion JPEG"},
    {"jpeg", "Motion JPEG"},  {"mp4v", "MPEG-4"},       {"xvid", "MPEG-4"},
    {"divx", "MPEG-4"},       {"dx50", "MPEG-4"},       {"fmp4", "MPEG-4"},
    {"s263", "H.263"},        {"h263", "H.263"},        {"vp08", "VP8"},
    {"vp80", "VP8"},          {"vp09", "VP9"},          {"vp90", "VP9"},
    {"av01", "AV1"},          {"ffv1", "FFV1"},         {"cfhd", "CineForm"},
    {"apch", "ProRes"},       {"apcn", "ProRes"},       {"apcs", "ProRes"},
    {"apco", "ProRes"},       {"ap4h", "ProRes"},       {"mpg2", "MPEG-2"},
};

// As the parser numbers them.
constexpr int H264 = 1;
constexpr int H265 = 2;

bool isPrintable(char c)
{
    return c > ' ' && c <= '~';
}

/** Whether it is among those above, all of which the usual decoders know. */
bool isKnownName(const QString &name)
{
    return std::any_of(std::begin(Codings), std::end(Codings), [&name](const Coding &coding) {
        return name == QLatin1String(coding.name);
    });
}

QString codingNameOf(const RowData &row)
{
    if (!row.condition.coding.isEmpty())
        return PlaybackProblem::codingName(row.condition.coding);
    if (row.decodeType == H265)
        return PlaybackProblem::codingName("hvc1");
    return row.decodeType == H264 ? PlaybackProblem::codingName("avc1") : QString();
}

/** Without the quotes that may be around it; empty when there is no such line. */
QByteArray valueIn(const QByteArray &osRelease, const QByteArray &key)
{
    const QList<QByteArray> lines = osRelease.split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(key + '='))
            return line.mid(key.size() + 1).replace('"', "").replace('\'', "").trimmed();
    }
    return QByteArray();
}

QByteArray thisOsRelease()
{
    QFile file(QStringLiteral("/etc/os-release"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

PlaybackProblem::Reason PlaybackProblem::reason(const RecordingCondition &condition,
                                                const PlaybackFailure &failure)
{
    switch (failure.verdict) {
    case RecordingContainer::Unreadable:
        return Gone;
    case RecordingContainer::Empty:
        return Empty;
    case RecordingContainer::Foreign:
        return NotVideo;
    case RecordingContainer::Damaged:
        return NoHeader;
    case RecordingContainer::Complete:
        break;
    }
    if (failure.endedWithoutPicture)
        return CutOff;
    // The rest of the sentence, of a missing plugin, is told later as something else.
    if (failure.error == QMediaPlayer::FormatError)
        return NoDecoder;
    if (failure.error == QMediaPlayer::AccessDeniedError)
        return Gone;
    switch (condition.kind) {
    case RecordingCondition::NotVideo:
        return NotVideo;
    case RecordingCondition::NoHeader:
        return NoHeader;
    case RecordingCondition::CutOff:
        return CutOff;
    default:
        return Damaged; // the file has changed since it was walked, if it was empty or gone
    }
}

QString PlaybackProblem::text(const RowData &row, const PlaybackFailure &failure)
{
    switch (reason(row.condition, failure)) {
    case Gone:
        return tr("The file is gone or cannot be read.");
    case Empty:
        return tr("The file is empty.");
    case NotVideo:
        return tr("The file is not a video recording.");
    case NoHeader:
        return tr("The recording is damaged: its header is missing.");
    case CutOff:
        return tr("The recording is damaged: it breaks off before its first picture.");
    case NoDecoder:
        break;
    case Damaged:
        return tr("The recording is damaged.");
    }
    const QString coding = codingNameOf(row);
    const QString missing = coding.isEmpty() ? tr("No decoder for its pictures is installed.")
                                             : tr("No decoder for %1 is installed.").arg(coding);
    const QString package = decoderPackage(thisOsRelease());
    const bool isForeignCoding = !coding.isEmpty() && !isKnownName(coding);
    if (package.isEmpty() || isForeignCoding)
        return missing;
    //: %1 is the name of a package, which brings the missing decoder.
    return missing + QLatin1Char('\n') + tr("The package %1 brings it.").arg(package);
}

QString PlaybackProblem::codingName(const QByteArray &fourCharacterCode)
{
    const QByteArray code = fourCharacterCode.toLower();
    for (const Coding &coding : Codings) {
        if (code == coding.fourCharacterCode)
            return QLatin1String(coding.name);
    }
    const QByteArray shown = fourCharacterCode.trimmed();
    const bool isText = std::all_of(shown.begin(), shown.end(), isPrintable);
    return isText ? QString::fromLatin1(shown) : QString();
}

QString PlaybackProblem::decoderPackage(const QByteArray &osRelease)
{
    const QList<QByteArray> systems = valueIn(osRelease, "ID_LIKE").split(' ')
                                      << valueIn(osRelease, "ID");
    return systems.contains("debian") ? QStringLiteral("gstreamer1.0-libav") : QString();
}
