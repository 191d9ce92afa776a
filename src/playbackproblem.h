// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "recordingcontainer.h"

#include <QCoreApplication>
#include <QMediaPlayer>

struct RecordingCondition;
struct RowData;

/** What the player can tell of a recording that it could not play. */
struct PlaybackFailure
{
    /** On the file, looked at anew before the player got it. */
    RecordingContainer::Verdict verdict = RecordingContainer::Complete;
    /** The backend's first one. It tells of many faults later, or never. */
    QMediaPlayer::Error error = QMediaPlayer::NoError;
    /** It was played to its end, and no picture came. */
    bool endedWithoutPicture = false;
};

/**
 * Why a recording cannot be played, in words for the user. The player's own account is combined
 * with what the row's worker saw in the file: neither knows all of it. GUI thread only.
 */
class PlaybackProblem
{
    Q_DECLARE_TR_FUNCTIONS(PlaybackProblem)

public:
    enum Reason
    {
        Gone, ///< or not to be read
        Empty,
        NotVideo,
        NoHeader,
        CutOff, ///< before its first picture
        NoDecoder,
        Damaged ///< in some other way
    };

    /** What the file is now goes before what it was when it was walked. */
    static Reason reason(const RecordingCondition &condition, const PlaybackFailure &failure);

    /** The reason as one or two lines in the user's language. */
    static QString text(const RowData &row, const PlaybackFailure &failure);

    /** What people call the coding with this four-character code, in any case; the code itself for
     *  others, and nothing for one that cannot be shown. */
    static QString codingName(const QByteArray &fourCharacterCode);

    /** The package that decodes what cameras write, by the text of /etc/os-release; empty unless
     *  that is Debian's or of a system made from it. */
    static QString decoderPackage(const QByteArray &osRelease);
};
