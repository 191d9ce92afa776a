// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCommandLineParser>
#include <QList>
#include <QString>
#include <QUrl>

/**
 * The command line: options, and recordings and folders to open, as paths or file URLs. It is read
 * before there is an application object, since that needs a display.
 */
class CommandLine
{
public:
    CommandLine();

    /** Whether --help or --version is asked for: both are answered without a display. */
    static bool asksForInformation(int argc, const char *const *argv);
    /** Prints what was asked for on standard output. Needs a QCoreApplication. */
    void printInformation(const QStringList &arguments);

    /** The command line without Qt's own options (such as -platform); the first is the program. All
     *  behind "--" stays as it is. File names are taken to be UTF-8, as everywhere else. */
    static QStringList ownArguments(int argc, const char *const *argv);
    /** Returns false, with the reason on standard error, when an option is unknown. */
    bool parse(const QStringList &arguments);

    /** Whether a window of its own is asked for, even if there is one already. */
    bool wantsNewWindow() const;

    /** The recordings and folders named, in order. Each name that cannot be opened gets a message
     * on standard error instead. */
    QList<QUrl> recordings() const;

private:
    QCommandLineParser mParser;
};
