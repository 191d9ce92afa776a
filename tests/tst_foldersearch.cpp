// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "foldersearch.h"
#include "patience.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>

#include <sys/stat.h>
#include <unistd.h>

class TestFolderSearch : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void naturalOrder_data();
    void naturalOrder();
    void oddities();
    void filesAndFolders();
    void unreadableAndGone();
    void cancelling();
    void endsAtTheMost();

private:
    void make(const QStringList &names) const;
    QStringList found(const QStringList &names);

    std::unique_ptr<QTemporaryDir> mCard;
};

void TestFolderSearch::init()
{
    mCard = std::make_unique<QTemporaryDir>();
}

void TestFolderSearch::make(const QStringList &names) const
{
    for (const QString &name : names) {
        const QString path = mCard->filePath(name);
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QVERIFY(QFile(path).open(QFile::WriteOnly));
    }
}

/** What a search in these files and folders of the card finds, relative to it. */
QStringList TestFolderSearch::found(const QStringList &names)
{
    QList<QUrl> urls;
    for (const QString &name : names)
        urls.append(QUrl::fromLocalFile(mCard->filePath(name)));
    FolderSearch search;
    QSignalSpy finished(&search, &FolderSearch::finished);
    search.start(urls);
    if (finished.isEmpty() && !finished.wait(PatienceMs))
        return {QStringLiteral("no end")};
    QStringList paths;
    const auto recordings = finished.first().first().value<QList<QUrl>>();
    for (const QUrl &url : recordings)
        paths.append(QDir(mCard->path()).relativeFilePath(url.toLocalFile()));
    return paths;
}

void TestFolderSearch::naturalOrder_data()
{
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("numbers") << QStringList({"9.mp4", "10.mp4", "100.mp4"});
    QTest::newRow("numbers amid") << QStringList({"MOV_2_F.mp4", "MOV_10_F.mp4", "MOV_10_R.mp4"});
    QTest::newRow("either case") << QStringList({"a1.MP4", "A2.mov", "a10.Avi", "B1.mp4"});
    QTest::newRow("times") << QStringList({"20260314_235959.mp4", "20260315_000001.mp4"});
    QTest::newRow("folders after files")
        << QStringList({"z.mp4", "clip 2/1.mp4", "clip 10/1.mp4", "clip 10/a/1.mp4"});
}

void TestFolderSearch::naturalOrder()
{
    QFETCH(QStringList, expected);
    QStringList made = expected;
    std::reverse(made.begin(), made.end());
    make(made);
    QCOMPARE(found({"."}), expected);
}

/** Only files with a recording's suffix that a player may open, each once. */
void TestFolderSearch::oddities()
{
    make({"DCIM/1.mp4", "DCIM/notes.txt", "DCIM/._1.mp4", ".Trash/2.mp4", "DCIM/xmp4"});
    QVERIFY(QDir(mCard->path()).mkpath("DCIM/folder.mp4"));
    QCOMPARE(mkfifo(QFile::encodeName(mCard->filePath("DCIM/fifo.mp4")).constData(), 0600), 0);
    QVERIFY(QFile::link(mCard->path(), mCard->filePath("DCIM/loop")));
    QVERIFY(QFile::link(mCard->filePath("DCIM/fifo.mp4"), mCard->filePath("DCIM/link.mp4")));
    QVERIFY(QFile::link("absent.mp4", mCard->filePath("DCIM/dangling.mp4")));
    QCOMPARE(found({"."}), QStringList({"DCIM/1.mp4"}));
}

void TestFolderSearch::filesAndFolders()
{
    make({"b/10.mp4", "b/9.mp4", "a/1.mp4", "lone #1.mp4", "last.mp4"});
    QCOMPARE(found({"lone #1.mp4", "b", "last.mp4", "a", "b"}),
             QStringList({"lone #1.mp4", "b/9.mp4", "b/10.mp4", "last.mp4", "a/1.mp4"}));
}

void TestFolderSearch::unreadableAndGone()
{
    make({"a/1.mp4", "locked/2.mp4", "z/3.mp4"});
    QVERIFY(QFile::setPermissions(mCard->path(), QFile::Permissions(0x7777)));
    QVERIFY(QFile::setPermissions(mCard->filePath("locked"), {}));
    const bool isRoot = geteuid() == 0; // who reads everything
    constexpr uid_t Nobody = 65534;
    QVERIFY(!isRoot || setresuid(Nobody, Nobody, 0) == 0);
    const QStringList readable = found({"."});
    QVERIFY(!isRoot || setresuid(0, 0, 0) == 0);
    QFile::setPermissions(mCard->filePath("locked"), QFile::Permissions(0x7700));
    QCOMPARE(readable, QStringList({"a/1.mp4", "z/3.mp4"}));
    QVERIFY(QDir(mCard->filePath("z")).removeRecursively());
    QCOMPARE(found({"z/", "a"}).last(), QString("a/1.mp4"));
}

/** What was cancelled is not heard of, even if it has ended by then. */
void TestFolderSearch::cancelling()
{
    make({"a/1.mp4", "b/2.mp4"});
    FolderSearch search;
    QSignalSpy finished(&search, &FolderSearch::finished);
    search.start({QUrl::fromLocalFile(mCard->filePath("a"))});
    while (search.foundCount() == 0)
        QThread::yieldCurrentThread(); // without events, of which its end would be one
    search.cancel();
    QVERIFY(!search.isRunning());
    search.start({QUrl::fromLocalFile(mCard->filePath("a"))});
    const QUrl second = QUrl::fromLocalFile(mCard->filePath("b"));
    search.start({second});
    QTRY_VERIFY(!search.isRunning());
    QCOMPARE(finished.size(), 1);
    QCOMPARE(finished.first().first().value<QList<QUrl>>().value(0),
             QUrl::fromLocalFile(mCard->filePath("b/2.mp4")));
}

void TestFolderSearch::endsAtTheMost()
{
    for (int i = 0; i <= FolderSearch::MostRecordings; ++i)
        QCOMPARE(
            symlink("/proc/self/exe",
                    QFile::encodeName(mCard->filePath(QString::number(i) + ".mp4")).constData()),
            0);
    const QStringList all = found({"."});
    QCOMPARE(all.size(), FolderSearch::MostRecordings);
    QCOMPARE(all.last(), QString::number(FolderSearch::MostRecordings - 1) + ".mp4");
}

QTEST_GUILESS_MAIN(TestFolderSearch)
#include "tst_foldersearch.moc"
