// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "appname.h"
#include "commandline.h"
#include "configuration.h"
#include "languagefont.h"
#include "macnosleeper.h"
#include "mainwindows.h"

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QTextCodec>

#include <unistd.h>

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

} // namespace

int main(int argc, char *argv[])
{
    if (CommandLine::asksForInformation(argc, argv))
        return printInformation(argc, argv);
    preferX11();
    allowMapAsRoot();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);

    QApplication application(argc, argv);
    CommandLine commandLine;
    if (!commandLine.parse(QCoreApplication::arguments()))
        return EXIT_FAILURE;

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
    window.show();
    window.openRecordings(commandLine.recordings());
    return QApplication::exec();
}
