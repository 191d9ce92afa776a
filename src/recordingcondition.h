// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QMetaType>

/**
 * What the walk over a recording's container found out about the file itself. A plain value: it
 * crosses threads by copy.
 */
struct RecordingCondition
{
    enum Kind
    {
        Unknown,  ///< not walked yet
        Whole,    ///< nothing is wrong with it
        Empty,    ///< a file of no bytes
        Gone,     ///< there is no such file, or it cannot be read
        NotVideo, ///< no container that is known here, or one without pictures
        NoHeader, ///< a container, but without what tells where its pictures lie
        CutOff    ///< ends before its header says
    };

    enum Telemetry
    {
        TelemetryUnknown, ///< not read yet
        NoTelemetry,
        HasTelemetry
    };

    Kind kind = Unknown;
    qint64 missingBytes = 0; ///< of CutOff: so many at least; 0 where the header does not tell
    qint64 wholeBytes = 0; ///< of CutOff: the size it should have; 0 where the header does not tell
    QByteArray coding;     ///< four-character code of the pictures; empty when not told
    Telemetry telemetry = TelemetryUnknown;
};

Q_DECLARE_METATYPE(RecordingCondition)
