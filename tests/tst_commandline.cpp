// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "commandline.h"
#include "displaycheck.h"
#include "patience.h"

#include <QtTest>

#include <cstdio>
#include <unistd.h>

class TestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(mDir.isValid() && QDir::setCurrent(mDir.path())); }
    void recordingNames();
    void namesThatCannotBeOpened();
    void optionsOfQt();
    void namesLikeOptions();
    void displays_data();
    void displays();
    void playerWithoutWindow_data();
    void playerWithoutWindow();

private:
    void open(const QStringList &names);

    QTemporaryDir mDir;
    QStringList mPaths; ///< of the recordings that open() found
    QString mErrors;    ///< what it wrote to standard error
};

void TestCommandLine::open(const QStringList &names)
{
    CommandLine commandLine;
    QVERIFY(commandLine.parse(QStringList("talvor-player") + names));
    QTemporaryFile errors;
    QVERIFY(errors.open());
    const int standardError = dup(STDERR_FILENO);
    dup2(errors.handle(), STDERR_FILENO);
    const QList<QUrl> recordings = commandLine.recordings();
    std::fflush(stderr);
    dup2(standardError, STDERR_FILENO);
    close(standardError);

    errors.seek(0);
    mErrors = QString::fromUtf8(errors.readAll());
    mPaths.clear();
    for (const QUrl &url : recordings)
        mPaths.append(url.toLocalFile());
}

void TestCommandLine::recordingNames()
{
    for (const char *text : {"two words.MOV", "#1 of 2.Avi", "50%.mp4", "a%20b?c.mov", "süd.AVI"}) {
        const QString name = QString::fromUtf8(text);
        const QString path = mDir.filePath(name);
        const QUrl url = QUrl::fromLocalFile(path);
        QVERIFY(QFile(name).open(QFile::WriteOnly));
        const QString encoded = QString::fromLatin1(url.toEncoded());
        open({name, path, encoded, "file://" + path, "file://localhost" + encoded.mid(7)});
        QCOMPARE(mPaths, QStringList({path, path, path, path, path}));
        QCOMPARE(mErrors, QString());
    }
}

void TestCommandLine::namesThatCannotBeOpened()
{
    for (const char *name : {"first.mp4", "second.mov", "notes.txt"})
        QVERIFY(QFile(name).open(QFile::WriteOnly));
    QVERIFY(QDir().mkpath("folder"));
    const QStringList refused{"absent.mp4", "absent", "notes.txt", "http://home/first.mp4", ""};
    open(QStringList({"second.mov", "folder"}) + refused + QStringList("first.mp4"));
    QCOMPARE(mPaths, QStringList({mDir.filePath("second.mov"), mDir.filePath("folder"),
                                  mDir.filePath("first.mp4")}));
    QCOMPARE(mErrors.count('\n'), refused.size());
    for (const QString &name : refused)
        QVERIFY2(mErrors.contains('"' + name + '"'), qPrintable(mErrors));
}

void TestCommandLine::optionsOfQt()
{
    const char *const words[] = {"player",  "-platform", "--help",  "--style=fusion", "a.mp4",
                                 "--title", "-x.mp4",    "-nograb", "b.mp4",          "-stylish"};
    QCOMPARE(CommandLine::ownArguments(10, words),
             QStringList({"player", "a.mp4", "b.mp4", "-stylish"}));
}

void TestCommandLine::namesLikeOptions()
{
    const char *const words[] = {"player", "--", "--help", "-platform", "-v.mp4", "süd.mp4"};
    QVERIFY(!CommandLine::asksForInformation(6, words));
    QCOMPARE(CommandLine::ownArguments(6, words).mid(2),
             QStringList({"--help", "-platform", "-v.mp4", QString::fromUtf8("süd.mp4")}));
    QVERIFY(QFile("-v.mp4").open(QFile::WriteOnly));
    open({"--", "-v.mp4"});
    QCOMPARE(mPaths, QStringList(mDir.filePath("-v.mp4")));
}

void TestCommandLine::displays_data()
{
    QTest::addColumn<QByteArray>("platform"); // in the environment
    QTest::addColumn<QByteArray>("display");  // likewise
    QTest::addColumn<QByteArray>("option");
    QTest::addColumn<QString>("obstacle"); // contains this
    QTest::newRow("nothing set") << QByteArray() << QByteArray() << QByteArray() << "DISPLAY";
    QTest::newRow("no server") << QByteArray("xcb") << QByteArray(":4094") << QByteArray()
                               << "\":4094\"";
    QTest::newRow("neither") << QByteArray("xcb;wayland") << QByteArray() << QByteArray()
                             << "DISPLAY";
    QTest::newRow("in memory") << QByteArray("offscreen") << QByteArray() << QByteArray() << "";
    QTest::newRow("or else") << QByteArray("xcb;minimal") << QByteArray() << QByteArray() << "";
    QTest::newRow("by option") << QByteArray("xcb") << QByteArray() << QByteArray("offscreen")
                               << "";
    QTest::newRow("option first") << QByteArray("offscreen") << QByteArray() << QByteArray("xcb:x")
                                  << "DISPLAY";
}

void TestCommandLine::displays()
{
    QFETCH(QByteArray, platform);
    QFETCH(QByteArray, display);
    QFETCH(QByteArray, option);
    QFETCH(QString, obstacle);
    qputenv("QT_QPA_PLATFORM", platform);
    qputenv("DISPLAY", display);
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(mDir.path())); // no Wayland there
    const char *const words[] = {"player", "--platform", option.constData()};
    const QString found = displayObstacle(option.isEmpty() ? 1 : 3, words);
    QVERIFY2(obstacle.isEmpty() ? found.isEmpty() : found.contains(obstacle), qPrintable(found));
}

void TestCommandLine::playerWithoutWindow_data()
{
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QByteArray>("text");

    for (const char *option : {"-h", "--help"})
        QTest::newRow(option) << 0 << QByteArray("recordings");
    for (const char *option : {"-v", "--version"})
        QTest::newRow(option) << 0 << QByteArray("Talvor Player V1.6 20200828");
    QTest::newRow("--nonsense") << 1 << QByteArray("nonsense");
    QTest::newRow("a.mp4") << 1 << QByteArray("display");
}

void TestCommandLine::playerWithoutWindow()
{
    QFETCH(int, exitCode);
    QFETCH(QByteArray, text);
    qputenv("QT_QPA_PLATFORM", "xcb");
    qunsetenv("DISPLAY");
    QProcess player;
    player.start(TALVOR_PLAYER, {QTest::currentDataTag()});
    QVERIFY(player.waitForFinished(PatienceMs));
    QCOMPARE(player.exitStatus(), QProcess::NormalExit);
    QCOMPARE(player.exitCode(), exitCode);

    const QByteArray output = player.readAllStandardOutput();
    const QByteArray errors = player.readAllStandardError();
    QVERIFY2((exitCode == 0 ? output : errors).contains(text), output + errors);
    QCOMPARE(exitCode == 0 ? errors : output, QByteArray());
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
