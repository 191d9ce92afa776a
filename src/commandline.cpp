// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "commandline.h"

#include "appname.h"
#include "playareamanager.h"

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>

namespace {

const QLatin1String FileScheme("file://");
const QString NewWindowOption = QStringLiteral("new-window");

void print(std::FILE *stream, const QString &line)
{
    std::fprintf(stream, "%s\n", qUtf8Printable(line));
}

/** Options of Qt, which the application object reads, with the number of words they take. */
const struct
{
    const char *name;
    int words;
} QtOptions[] = {
    {"platform", 2},        {"platformpluginpath", 2},
    {"platformtheme", 2},   {"plugin", 2},
    {"qwindowgeometry", 2}, {"geometry", 2},
    {"qwindowtitle", 2},    {"title", 2},
    {"qwindowicon", 2},     {"icon", 2},
    {"display", 2},         {"name", 2},
    {"visual", 2},          {"session", 2},
    {"style", 2},           {"stylesheet", 2},
    {"reverse", 1},         {"widgetcount", 1},
    {"nograb", 1},          {"dograb", 1},
};

/** How many words from this one on are an option of Qt's; 0 if it is none. */
int wordsForQt(const QByteArray &word)
{
    const QByteArray name = word.mid(word.startsWith("--") ? 2 : 1);
    for (const auto &option : QtOptions) {
        if (word.startsWith('-') && name == option.name)
            return option.words;
        if (word.startsWith('-') && option.words == 2 &&
            name.startsWith(option.name + QByteArray("=")))
            return 1;
    }
    return 0;
}

QUrl urlOf(const QString &argument)
{
    if (!argument.startsWith(FileScheme, Qt::CaseInsensitive))
        return QUrl::fromLocalFile(QFileInfo(argument).absoluteFilePath());
    QUrl url(argument);
    if (url.host() == QLatin1String("localhost"))
        url.setHost(QString());
    // A URL typed by hand may carry '#' or '%' as they are.
    const QString verbatimPath = argument.mid(FileScheme.size());
    const bool isVerbatim =
        !QFileInfo(url.toLocalFile()).isFile() && QFileInfo::exists(verbatimPath);
    return isVerbatim ? QUrl::fromLocalFile(verbatimPath) : url;
}

/** Why a name cannot be opened; empty when it can. */
QString obstacle(const QUrl &url)
{
    const QFileInfo file(url.toLocalFile());
    if (!file.exists())
        return QStringLiteral("there is no such file");
    if (file.isDir())
        return file.isReadable() && file.isExecutable()
                   ? QString()
                   : QStringLiteral("the folder cannot be read");
    if (!PlayAreaManager::isRecordingName(file.fileName()))
        return QStringLiteral("its name ends neither in mp4 nor in mov or avi");
    return QString();
}

} // namespace

CommandLine::CommandLine()
{
    mParser.setApplicationDescription(
        QStringLiteral("Plays dash-camera recordings and shows what the camera measured."));
    mParser.addHelpOption();
    mParser.addVersionOption();
    mParser.addOption({NewWindowOption,
                       QStringLiteral("Open a window of its own, even if there is one already.")});
    mParser.addPositionalArgument(
        QStringLiteral("recordings"),
        QStringLiteral("MP4, MOV or AVI files to open, or folders of them"),
        QStringLiteral("[recordings...]"));
}

bool CommandLine::asksForInformation(int argc, const char *const *argv)
{
    const std::array<const char *, 5> options{"-h", "--help", "--help-all", "-v", "--version"};
    for (int i = 1; i < argc && std::strcmp(argv[i], "--") != 0; ++i) {
        if (std::any_of(options.begin(), options.end(),
                        [&](const char *option) { return std::strcmp(argv[i], option) == 0; }))
            return true;
    }
    return false;
}

QStringList CommandLine::ownArguments(int argc, const char *const *argv)
{
    QStringList own;
    bool isForQt = true;
    for (int i = 0; i < argc; ++i) {
        isForQt = isForQt && std::strcmp(argv[i], "--") != 0;
        const int words = isForQt && i > 0 ? wordsForQt(argv[i]) : 0;
        if (words == 0)
            own.append(QString::fromUtf8(argv[i]));
        else
            i += words - 1;
    }
    return own;
}

void CommandLine::printInformation(const QStringList &arguments)
{
    mParser.parse(arguments);
    if (mParser.isSet(QStringLiteral("version")))
        print(stdout, QStringLiteral("%1 (%2)").arg(APP_NAME, APP_VERSION));
    else
        print(stdout, mParser.helpText().trimmed());
}

bool CommandLine::parse(const QStringList &arguments)
{
    const bool understood = mParser.parse(arguments);
    if (!understood)
        print(stderr, QStringLiteral("talvor-player: %1").arg(mParser.errorText()));
    return understood;
}

bool CommandLine::wantsNewWindow() const
{
    return mParser.isSet(NewWindowOption);
}

QList<QUrl> CommandLine::recordings() const
{
    QList<QUrl> urls;
    const QStringList names = mParser.positionalArguments();
    for (const QString &name : names) {
        const QUrl url = urlOf(name);
        const QString reason = obstacle(url);
        if (reason.isEmpty())
            urls.append(url);
        else
            print(stderr,
                  QStringLiteral("talvor-player: cannot open \"%1\": %2").arg(name, reason));
    }
    return urls;
}
