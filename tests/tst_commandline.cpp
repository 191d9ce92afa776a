// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "commandline.h"

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
        open({name, path, QString::fromLatin1(url.toEncoded()), "file://" + path});
        QCOMPARE(mPaths, QStringList({path, path, path, path}));
        QCOMPARE(mErrors, QString());
    }
}

void TestCommandLine::namesThatCannotBeOpened()
{
    for (const char *name : {"first.mp4", "second.mov", "notes.txt"})
        QVERIFY(QFile(name).open(QFile::WriteOnly));
    QVERIFY(QDir().mkpath("folder.mp4"));
    const QStringList refused{"absent.mp4", "folder.mp4", "notes.txt", "http://home/first.mp4", ""};
    open(QStringList("second.mov") + refused + QStringList("first.mp4"));
    QCOMPARE(mPaths, QStringList({mDir.filePath("second.mov"), mDir.filePath("first.mp4")}));
    QCOMPARE(mErrors.count('\n'), refused.size());
    for (const QString &name : refused)
        QVERIFY2(mErrors.contains('"' + name + '"'), qPrintable(mErrors));
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
}

void TestCommandLine::playerWithoutWindow()
{
    QFETCH(int, exitCode);
    QFETCH(QByteArray, text);
    // Information wants no display.
    qputenv("QT_QPA_PLATFORM", exitCode == 0 ? "absent" : "offscreen");
    QProcess player;
    player.start(TALVOR_PLAYER, {QTest::currentDataTag()});
    QVERIFY(player.waitForFinished());
    QCOMPARE(player.exitStatus(), QProcess::NormalExit);
    QCOMPARE(player.exitCode(), exitCode);

    const QByteArray output = player.readAllStandardOutput();
    const QByteArray errors = player.readAllStandardError();
    QVERIFY2((exitCode == 0 ? output : errors).contains(text), output + errors);
    QCOMPARE(exitCode == 0 ? errors : output, QByteArray());
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
