// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/** One run of another program. */
struct ProcessRun
{
    bool isGood = false;  ///< it ran and ended with status 0
    double seconds = 0.0; ///< wall time from before it was started until it had ended
    double peakKib = 0.0; ///< the most memory that it had
};

/** Starts a program, found in PATH, and waits for its end. Its output goes to a file, by default
 *  to nowhere; input and error output are nowhere. */
ProcessRun runProcess(const QStringList &command,
                      const QString &outputFile = QStringLiteral("/dev/null"));

/** What the program prints; a failure ends this program. */
QByteArray outputOf(const QStringList &command);
