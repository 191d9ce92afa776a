// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "appname.h"
#include "commandline.h"
#include "configuration.h"
#include "displaycheck.h"
#include "languagefont.h"
#include "macnosleeper.h"
#include "mainwindows.h"
#include "mediacontrols.h"
#include "mediakeys.h"
#include "playbackmemory.h"
#include "playbackremote.h"
#include "playlistmemory.h"
#include "runningwindow.h"
#include "terminationwatch.h"
#include "windowclaim.h"
#include "windowfront.h"

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QTextCodec>

#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace {

/** Under Wayland the video can only be shown through X11, where there is one; the user's own choice
 *  stands. */
void preferX11()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") &&
        qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "xcb;wayland");
}

/** The web engine's sandbox refuses to run for root, and the whole program would end. */
void allowMapAsRoot()
{
    if (geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
}

void useLanguageFont()
{
    QApplication::setFont(
        languageFont(QApplication::font(), Configuration::GetInstance()->language()));
}

int printInformation(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    CommandLine().printInformation(QCoreApplication::arguments());
    return EXIT_SUCCESS;
}

bool hasDisplay(int argc, const char *const *argv)
{
    const QString obstacle = displayObstacle(argc, argv);
    if (!obstacle.isEmpty())
        std::fprintf(stderr, "talvor-player: cannot show a window: %s.\n",
                     qUtf8Printable(obstacle));
    return obstacle.isEmpty();
}

/** Whether the window that is open already takes the recordings. */
bool isForRunningWindow(WindowClaim *claim, const CommandLine &commandLine,
                        const QList<QUrl> &recordings)
{
    if (commandLine.wantsNewWindow()) {
        claim->take();
        return false;
    }
    const bool isTaken = claim->handOver(recordings);
    if (isTaken)
        endStartNotice();
    return isTaken;
}

/** One and a half times the size stays that, and is not made twice the size. */
void scaleAsSet(bool isSet)
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
    if (isSet)
        QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
            Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
#else
    Q_UNUSED(isSet)
#endif
}

/** As the user does; open dialogs end with it, even one that stands for itself. */
void closeProgram(QWidget *window)
{
    window->close();
    QCoreApplication::quit();
}

} // namespace

int main(int argc, char *argv[])
{
    if (CommandLine::asksForInformation(argc, argv))
        return printInformation(argc, argv);
    CommandLine commandLine;
    if (!commandLine.parse(CommandLine::ownArguments(argc, argv)))
        return EXIT_FAILURE;
    preferX11();
    if (!hasDisplay(argc, argv))
        return EXIT_FAILURE;
    const QList<QUrl> recordings = commandLine.recordings();
    WindowClaim claim(displayIdentity(argc, argv));
    if (isForRunningWindow(&claim, commandLine, recordings))
        return EXIT_SUCCESS;
    allowMapAsRoot();
    scaleAsSet(isResolutionSet(argc, argv));
    // Wayland's desktops know the windows by it; without it they would show no icon of ours.
    QGuiApplication::setDesktopFileName(QStringLiteral("talvor-player"));

    QApplication application(argc, argv);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":image/logo.png")));
    const MacNoSleeper noSleeper;
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QFont font(QStringLiteral("Calibri"));
    font.setPointSize(11);
    QApplication::setFont(font);
    QCoreApplication::setApplicationName(APP_NAME);
    QCoreApplication::setOrganizationName(QObject::tr("Quellfern"));
    QCoreApplication::setApplicationVersion(APP_VERSION);
    QObject::connect(Configuration::GetInstance(), &Configuration::updateLanguage, &application,
                     useLanguageFont);
    Configuration::GetInstance()->setLanguage(Configuration::GetInstance()->language());

    MainWindows window;
    const PlaybackMemory playbackMemory(&window);
    PlaylistMemory playlistMemory(&window);
    PlaybackRemote remote(&window);
    const MediaKeys mediaKeys(&remote);
    const MediaControls mediaControls(&remote);
    QObject::connect(&mediaControls, &MediaControls::quitRequested, &window,
                     [&window] { closeProgram(&window); });
    const TerminationWatch termination;
    QObject::connect(&termination, &TerminationWatch::requested, &window,
                     [&window] { closeProgram(&window); });
    window.show();
    if (recordings.isEmpty())
        playlistMemory.restore();
    window.openRecordings(recordings);
    const RunningWindow running(&claim, &window);
    QObject::connect(&running, &RunningWindow::recordingsReceived, &window,
                     &MainWindows::openRecordings);
    return QApplication::exec();
}
