// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "recordingfile.h"

/**
 * Tells whether a file is a recording that has everything in itself, before a player gets it.
 *
 * Players go by what is in a file, not by its name. A playlist, a manifest or a movie that only
 * points to another one makes them call a server that somebody else has chosen, whatever the file
 * is called. So only containers that are known to need nothing else are played.
 *
 * It reads by position: the beginning of the file, then the headers of a bounded number of boxes,
 * whatever sizes they claim. May be used on any thread.
 */
class RecordingContainer
{
public:
    enum Verdict
    {
        Complete,   ///< in itself; whether it can be decoded is not looked at
        Unreadable, ///< not there, or not a readable regular file
        Empty,      ///< a file of no bytes
        Foreign,    ///< not a known container, or one that may refer to something else
        Damaged     ///< a container whose beginning or boxes are broken
    };

    explicit RecordingContainer(const QString &fileName);

    /** Why the file must not be played, for the log. Empty for a recording that is complete in
     *  itself. */
    QString obstacle();
    /** The same for a program; Complete until obstacle() has been asked. */
    Verdict verdict() const { return mVerdict; }

private:
    struct Box;

    Box boxAt(quint64 offset, quint64 end);
    QString obstacleInMovie();
    QString obstacleInBoxes(quint64 offset, quint64 end, int depth);
    QString obstacleInDescriptions(quint64 offset, quint64 end);

    QString found(Verdict verdict, const QString &obstacle);

    RecordingFile mFile;
    int mBoxesLeft;
    Verdict mVerdict = Complete;
};
