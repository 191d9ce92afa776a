// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "filedialogs.h"
#include "patience.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QtTest>

namespace {

/** With this argument the test is a program that asks for recordings in a folder, and tells them.
 */
const char AskIn[] = "--ask-in";

} // namespace

/** The dialogs that ask for files and folders: Qt's own, and that of the GTK desktops. */
class TestFileDialogs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void listsRecordings();
    void startsWhereThereIsAFolder_data();
    void startsWhereThereIsAFolder();
    void listsRecordingsUnderGtk();

private:
    QTemporaryDir mFolder;
};

void TestFileDialogs::initTestCase()
{
    QVERIFY(QDir(mFolder.path()).mkpath("CARD"));
    for (const char *name : {"CARD/MOVA0001.MP4", "CARD/z.avi", "CARD/a.txt"})
        QVERIFY(QFile(mFolder.filePath(name)).open(QFile::WriteOnly));
}

void TestFileDialogs::listsRecordings()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QFileDialog::FileMode mode = QFileDialog::AnyFile;
    QTimer::singleShot(0, this, [&mode] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        const auto *list = dialog->findChild<QListView *>("listView");
        QTRY_COMPARE(list->model()->rowCount(list->rootIndex()), 2);
        mode = dialog->fileMode();
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Open Files"));
        dialog->findChild<QLineEdit *>()->setText("\"z.avi\" \"MOVA0001.MP4\"");
        QMetaObject::invokeMethod(dialog, "accept");
    });
    const QList<QUrl> urls = askForRecordings(nullptr, "Open Files", mFolder.filePath("CARD"));
    QCOMPARE(mode, QFileDialog::ExistingFiles);
    QCOMPARE(urls, QList<QUrl>({QUrl::fromLocalFile(mFolder.filePath("CARD/z.avi")),
                                QUrl::fromLocalFile(mFolder.filePath("CARD/MOVA0001.MP4"))}));
}

void TestFileDialogs::startsWhereThereIsAFolder_data()
{
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QString>("start");
    QTest::newRow("there") << "/CARD"
                           << "/CARD";
    QTest::newRow("gone") << "/CARD/DCIM/100"
                          << "/CARD";
    QTest::newRow("a file now") << "/CARD/z.avi/"
                                << "/CARD";
}

void TestFileDialogs::startsWhereThereIsAFolder()
{
    QFETCH(QString, wanted);
    QFETCH(QString, start);
    QStringList starts;
    const auto noteAndLeave = [&starts] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        starts.append(dialog->directory().path());
        dialog->reject();
    };
    // By themselves the dialogs start where the last one did.
    for (const QString &folder : {mFolder.path(), mFolder.path() + wanted}) {
        QTimer::singleShot(0, this, noteAndLeave);
        QCOMPARE(askForRecordings(nullptr, "Open Files", folder), QList<QUrl>());
    }
    for (const QString &folder : {mFolder.path(), mFolder.path() + wanted}) {
        QTimer::singleShot(0, this, noteAndLeave);
        QCOMPARE(askForFolder(nullptr, "Open Directory", folder), QString());
    }
    QCOMPARE(starts, QStringList({mFolder.path(), mFolder.path() + start, mFolder.path(),
                                  mFolder.path() + start}));
}

/** There the first file that is listed is selected, and Return opens it. */
void TestFileDialogs::listsRecordingsUnderGtk()
{
    QVERIFY(QFileInfo::exists(QLibraryInfo::location(QLibraryInfo::PluginsPath) +
                              "/platformthemes/libqgtk3.so"));
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORMTHEME", "gtk3");
    program.setProcessEnvironment(environment);
    program.start(QCoreApplication::applicationFilePath(), {AskIn, mFolder.filePath("CARD")});
    QVERIFY(program.waitForStarted(PatienceMs));
    constexpr int pressMs = 500; // until Return is pressed again, which the dialog may have missed
    for (int i = 0; i < PatienceMs / pressMs && program.state() == QProcess::Running; ++i) {
        QProcess::execute("xdotool", {"key", "Return"});
        program.waitForFinished(pressMs);
    }
    QCOMPARE(program.readAllStandardOutput(),
             QFile::encodeName(mFolder.filePath("CARD/MOVA0001.MP4")));
}

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    if (argc != 3 || qstrcmp(argv[1], AskIn) != 0) {
        TestFileDialogs test;
        return QTest::qExec(&test, argc, argv);
    }
    for (const QUrl &url : askForRecordings(nullptr, "Open Files", QFile::decodeName(argv[2])))
        QTextStream(stdout) << url.toLocalFile();
    return 0;
}

#include "tst_filedialogs.moc"
