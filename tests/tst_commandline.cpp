// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "commandline.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QtTest>

#include <cstdio>
#include <unistd.h>

namespace {
constexpr char Player[] = TALVOR_PLAYER;

/** Takes what is written to standard error while it lives. */
class ErrorOutput
{
public:
    ErrorOutput()
    {
        mFile.open();
        std::fflush(stderr);
        mKept = dup(STDERR_FILENO);
        dup2(mFile.handle(), STDERR_FILENO);
    }
    ~ErrorOutput()
    {
        std::fflush(stderr);
        dup2(mKept, STDERR_FILENO);
        close(mKept);
    }

    QString text()
    {
        std::fflush(stderr);
        mFile.seek(0);
        return QString::fromLocal8Bit(mFile.readAll());
    }

private:
    QTemporaryFile mFile;
    int mKept = -1;
};
} // namespace

class TestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void recordingNames_data();
    void recordingNames();
    void namesThatCannotBeOpened_data();
    void namesThatCannotBeOpened();
    void playerWithoutDisplay_data();
    void playerWithoutDisplay();

private:
    void makeFile(const QString &name) const;

    QTemporaryDir mDir;
};

void TestCommandLine::initTestCase()
{
    QVERIFY(mDir.isValid());
    QVERIFY(QDir::setCurrent(mDir.path()));
}

void TestCommandLine::makeFile(const QString &name) const
{
    QFile file(mDir.filePath(name));
    QVERIFY(file.open(QFile::WriteOnly));
}

void TestCommandLine::recordingNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("argument");

    for (const char *text : {"plain.mp4", "two words.MOV", "#1 of 2.Avi", "50%.mp4", "a%20b.mp4",
                             "a?b&c=d.mov", "süd.AVI", "[1] {2}.mp4"}) {
        const QString name = QString::fromUtf8(text);
        const QString path = mDir.filePath(name);
        const QUrl url = QUrl::fromLocalFile(path);
        QTest::addRow("%s, whole path", text) << name << path;
        QTest::addRow("%s, relative", text) << name << name;
        QTest::addRow("%s, from the folder above", text)
            << name << "../" + QFileInfo(mDir.path()).fileName() + '/' + name;
        QTest::addRow("%s, URL", text) << name << QString::fromLatin1(url.toEncoded());
        QTest::addRow("%s, URL typed verbatim", text) << name << "file://" + path;
    }
}

void TestCommandLine::recordingNames()
{
    QFETCH(QString, name);
    QFETCH(QString, argument);
    makeFile(name);
    CommandLine commandLine;
    ErrorOutput errors;
    QVERIFY(commandLine.parse({"talvor-player", argument}));
    const QList<QUrl> recordings = commandLine.recordings();
    QCOMPARE(recordings.size(), 1);
    QVERIFY(recordings.first().isLocalFile());
    const QString opened = recordings.first().toLocalFile();
    QCOMPARE(QDir::cleanPath(opened), mDir.filePath(name));
    QCOMPARE(errors.text(), QString());
}

void TestCommandLine::namesThatCannotBeOpened_data()
{
    QTest::addColumn<QString>("argument");

    QTest::newRow("missing") << "absent.mp4";
    QTest::newRow("missing URL") << "file:///absent/ride.mp4";
    QTest::newRow("folder") << "folder.mp4";
    QTest::newRow("wrong suffix") << "notes.txt";
    QTest::newRow("no suffix") << "notes";
    QTest::newRow("elsewhere") << "http://localhost/first.mp4";
    QTest::newRow("empty") << "";
}

void TestCommandLine::namesThatCannotBeOpened()
{
    QFETCH(QString, argument);
    for (const char *name : {"first.mp4", "second.mov", "notes.txt", "notes"})
        makeFile(name);
    QDir(mDir.path()).mkpath("folder.mp4");
    CommandLine commandLine;
    QVERIFY(commandLine.parse({"talvor-player", "second.mov", argument, "first.mp4"}));

    ErrorOutput errors;
    QStringList names;
    for (const QUrl &url : commandLine.recordings())
        names.append(url.fileName());
    QCOMPARE(names, QStringList({"second.mov", "first.mp4"}));
    const QStringList lines = errors.text().trimmed().split('\n');
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.first().contains('"' + argument + '"'), qPrintable(lines.first()));
}

void TestCommandLine::playerWithoutDisplay_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("platform");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("error");

    QTest::newRow("help") << "--help"
                          << "" << 0 << "recordings"
                          << "";
    QTest::newRow("short help") << "-h"
                                << "" << 0 << "recordings"
                                << "";
    QTest::newRow("short version") << "-v"
                                   << "" << 0 << "Talvor Player V1.6 20200828"
                                   << "";
    QTest::newRow("version") << "--version"
                             << "" << 0 << "Talvor Player V1.6 20200828"
                             << "";
    QTest::newRow("unknown option") << "--nonsense"
                                    << "offscreen" << 1 << ""
                                    << "nonsense";
}

void TestCommandLine::playerWithoutDisplay()
{
    QFETCH(QString, option);
    QFETCH(QString, platform);
    QFETCH(QString, output);
    QFETCH(QString, error);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(name);
    if (!platform.isEmpty())
        environment.insert("QT_QPA_PLATFORM", platform);
    QProcess player;
    player.setProcessEnvironment(environment);
    player.start(Player, QStringList{option});
    QVERIFY(player.waitForFinished());
    QCOMPARE(player.exitStatus(), QProcess::NormalExit);
    QTEST(player.exitCode(), "exitCode");

    const QString standardOutput = QString::fromLocal8Bit(player.readAllStandardOutput());
    const QString standardError = QString::fromLocal8Bit(player.readAllStandardError());
    QVERIFY2(standardOutput.contains(output), qPrintable(standardOutput));
    QCOMPARE(standardOutput.isEmpty(), output.isEmpty());
    QVERIFY2(standardError.contains(error), qPrintable(standardError));
    QCOMPARE(standardError.isEmpty(), error.isEmpty());
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
