// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "trackwriter.h"

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

/** What talvor-telemetry is told to do. */
struct TrackJob
{
    QStringList inputs; ///< recordings and folders, as named; at least one
    TrackWriter::Format format = TrackWriter::Gpx;
    QString output; ///< file or folder; empty for none, "-" for standard output
    TrackOptions options;
    bool isJoined = false; ///< one document of all recordings
    bool isInfo = false;   ///< the figures of the recordings instead of their samples
    bool isJsonInfo = false;
    bool mayOverwrite = false;
};

/** The command line of talvor-telemetry. */
class TrackCommandLine
{
public:
    TrackCommandLine();

    /** Returns false, with errorText() set, for what is not understood. The first argument is the
     *  program. */
    bool parse(const QStringList &arguments);
    const TrackJob &job() const { return mJob; }
    QString errorText() const { return mErrorText; }

    bool asksForHelp() const;
    bool asksForVersion() const;
    QString helpText() const;

private:
    QString mistake();
    QString readFormat();
    QString readOptions();

    QCommandLineParser mParser;
    TrackJob mJob;
    QString mErrorText;
};
