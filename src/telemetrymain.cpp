// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "trackexport.h"

#include <QCoreApplication>
#include <QDebug>

#include <cstdio>

namespace {

/** What the parsers note of odd recordings is for developers; it would mix with the messages. */
void dropNotes(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg)
        std::fprintf(stderr, "%s\n", qUtf8Printable(message));
}

} // namespace

int main(int argc, char *argv[])
{
    qInstallMessageHandler(dropNotes);
    const QCoreApplication application(argc, argv);
    TrackCommandLine commandLine;
    if (!commandLine.parse(QCoreApplication::arguments())) {
        std::fprintf(stderr, "talvor-telemetry: %s\n", qUtf8Printable(commandLine.errorText()));
        return TrackExport::Failure;
    }
    if (commandLine.asksForHelp()) {
        std::fputs(qUtf8Printable(commandLine.helpText()), stdout);
        return TrackExport::Success;
    }
    if (commandLine.asksForVersion()) {
        std::puts("talvor-telemetry " TALVOR_VERSION);
        return TrackExport::Success;
    }
    return TrackExport(commandLine.job()).run();
}
