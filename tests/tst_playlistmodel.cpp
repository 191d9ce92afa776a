// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "patience.h"
#include "playlistmodel.h"
#include "recordingwriter.h"
#include "resourcelimit.h"
#include "rowdata.h"

#include <QAbstractItemModelTester>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

namespace {
/** Root reads every file: while one of these lives, such a process acts as an ordinary user. */
class OrdinaryUser
{
public:
    ~OrdinaryUser()
    {
        if (mWasRoot && setresuid(0, 0, 0) != 0)
            qFatal("Cannot be root again");
    }

    bool isActive() const { return mIsActive; }

private:
    static constexpr uid_t Nobody = 65534;

    const bool mWasRoot = geteuid() == 0;
    const bool mIsActive = !mWasRoot || setresuid(Nobody, Nobody, 0) == 0;
};

bool makeUnreadable(const QString &name)
{
    QFile file(name);
    return file.open(QFile::WriteOnly) && file.write("ftyp") == 4 && file.setPermissions({});
}
} // namespace

/** Makes something of this name that is no recording. */
using OddityMaker = bool (*)(const QString &);
Q_DECLARE_METATYPE(OddityMaker)

class TestPlaylistModel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules("*.debug=false"); }
    void init();
    void readableSizes();
    void reading();
    void notRecordings_data();
    void notRecordings();
    void partners();
    void rows();
    void telemetryUntilCleared();
    void rowWithoutThread();
    void manyRows();

private:
    QUrl path(const QString &name) const { return QUrl::fromLocalFile(mDir.filePath(name)); }
    QUrl recording(const QString &name, quint32 durationS = 10) const;
    void add(const QStringList &names);
    QStringList cells(int row) const;
    QString partner(int main, const QStringList &names);

    QTemporaryDir mDir;
    std::unique_ptr<PlaylistModel> mModel;
};

/** Every test runs under the model tester, which ends the program at the first fault. Only
 *  dataChanged is kept from it: the ranges that the view is given are not those of the table (one
 *  column too many, or empty), and reading() compares them instead. */
void TestPlaylistModel::init()
{
    mModel = std::make_unique<PlaylistModel>();
    auto *tester = new QAbstractItemModelTester(
        mModel.get(), QAbstractItemModelTester::FailureReportingMode::Fatal, mModel.get());
    disconnect(mModel.get(), &QAbstractItemModel::dataChanged, tester, nullptr);
}

/** 30 frames a second, 2560 x 1440, H.265, and three samples. */
QUrl TestPlaylistModel::recording(const QString &name, quint32 durationS) const
{
    RecordingWriter writer;
    writer.duration = durationS * writer.timeScale;
    writer.tracks = {Mp4::videoTrack(2560, 1440, durationS * 30, "hvc1", 86400)};
    writer.setTelemetry(1, {TelemetryBlock(), TelemetryBlock(), TelemetryBlock()});
    if (!writer.save(mDir.filePath(name)))
        qFatal("No recording to test with");
    return path(name);
}

/** Adds files that need not exist. */
void TestPlaylistModel::add(const QStringList &names)
{
    for (const QString &name : names)
        mModel->addDataByUrl(path(name));
}

QStringList TestPlaylistModel::cells(int row) const
{
    QStringList texts;
    for (int column = 0; column < mModel->columnCount(); ++column)
        texts.append(mModel->index(row, column).data().toString());
    return texts;
}

void TestPlaylistModel::readableSizes()
{
    QCOMPARE(mModel->tohumanReadableSize(1023, 0), QString("1023 bytes"));
    QCOMPARE(mModel->tohumanReadableSize(1024, 0), QString("1 KB"));
    QCOMPARE(mModel->tohumanReadableSize((1 << 20) - 1, 0), QString("1024 KB"));
    QCOMPARE(mModel->tohumanReadableSize(1300000, 3), QString("1.240 MB"));
    QCOMPARE(mModel->tohumanReadableSize(std::numeric_limits<qint64>::max(), 0), QString("8 EB"));
}

void TestPlaylistModel::reading()
{
    const QUrl url = recording("süd#1-50%20.MP4", 65);
    QFile file(url.toLocalFile());
    QVERIFY(file.open(QFile::Append) && file.resize(3 << 20));
    // Neither a later change nor the date in the recording is the date shown.
    QVERIFY(file.setFileTime(QDateTime({2001, 2, 3}, {4, 5}), QFileDevice::FileModificationTime));
    const QString born = QFileInfo(file).birthTime().toString("yyyy/MM/dd hh:mm:ss");

    QSignalSpy changes(mModel.get(), &QAbstractItemModel::dataChanged);
    add({"süd#1-50%20.MP4", "absent.mp4"});
    QCOMPARE(cells(0), QStringList({"süd#1-50%20.MP4", "00:00:00", born, "3 MB", "-1 x -1"}));
    for (int row : {0, 1}) {
        QCOMPARE(changes.at(row).at(0).toModelIndex(), mModel->index(row, 0));
        QCOMPARE(changes.at(row).at(1).toModelIndex().column(), 5);
    }
    // Of each the row, facts and condition, and of the first its telemetry.
    QTRY_COMPARE(changes.count(), 7);
    const auto facts = QVariantList({QModelIndex(), QModelIndex()});
    QCOMPARE(std::count_if(changes.begin(), changes.end(),
                           [&](const auto &change) { return change.mid(0, 2) == facts; }),
             2);
    const auto condition = [&](int row) {
        return mModel->index(row, 0).data(PlaylistModel::ConditionRole).value<RecordingCondition>();
    };
    QCOMPARE(condition(0).kind, RecordingCondition::Whole);
    QCOMPARE(condition(0).coding, QByteArray("hvc1"));
    QCOMPARE(condition(0).telemetry, RecordingCondition::HasTelemetry);
    QCOMPARE(condition(1).kind, RecordingCondition::Gone);
    QCOMPARE(condition(1).telemetry, RecordingCondition::NoTelemetry);
    QVERIFY(!mModel->index(0, 0).data(Qt::DecorationRole).isValid());
    QVERIFY(!mModel->index(0, 0).data(Qt::ToolTipRole).isValid());
    QCOMPARE(cells(0), QStringList({"süd#1-50%20.MP4", "00:01:05", born, "3 MB", "2560 x 1440"}));
    QCOMPARE(cells(1), QStringList({"absent.mp4", "00:00:00", "", "0 bytes", "0 x 0"}));
    QCOMPARE(mModel->getCurPlayFileDuration(0), 65);
    QCOMPARE(mModel->getVideoframerate(0), 30.0f);
    QCOMPARE(mModel->getVideoDecodeType(0), 2);
    QCOMPARE(mModel->getVideoSize(0), QSize(2560, 1440));
    QCOMPARE(mModel->index(1, 4).data(Qt::TextAlignmentRole).toInt(), 132);

    VideoInfo info;
    info.duration = std::numeric_limits<quint32>::max(); // 49710 days and the time below
    for (int id : {-1, 2, 1})
        mModel->onVideoInfoChanged(id, info);
    for (int id : {-1, 2})
        mModel->onConditionChanged(id, RecordingCondition());
    QCOMPARE(changes.count(), 8);
    QCOMPARE(cells(0).at(PlaylistModel::Duration), QString("00:01:05"));
    QCOMPARE(cells(1).at(PlaylistModel::Duration), QString("06:28:15"));
}

void TestPlaylistModel::notRecordings_data()
{
    QTest::addColumn<OddityMaker>("make");
    QTest::newRow("folder") << OddityMaker([](const QString &name) { return QDir().mkdir(name); });
    QTest::newRow("pipe without a writer") << OddityMaker(
        [](const QString &name) { return mkfifo(QFile::encodeName(name).constData(), 0600) == 0; });
    QTest::newRow("unreadable file") << OddityMaker(&makeUnreadable);
    QTest::newRow("link to nowhere")
        << OddityMaker([](const QString &name) { return QFile::link(name + ".gone", name); });
}

/** The row is there and shows nothing, and closing does not wait for what will never be read. */
void TestPlaylistModel::notRecordings()
{
    QFETCH(OddityMaker, make);
    const OrdinaryUser user;
    QVERIFY2(user.isActive(), "the test could not give up the rights to read everything");
    const QTemporaryDir folder;
    const QString name = folder.filePath("odd.mp4");
    QVERIFY(make(name));
    QSignalSpy changes(mModel.get(), &QAbstractItemModel::dataChanged);
    mModel->addDataByUrl(QUrl::fromLocalFile(name));
    QTRY_COMPARE(changes.count(), 3);
    QCOMPARE(cells(0), QStringList({"odd.mp4", "00:00:00", "", "0 bytes", "0 x 0"}));
    QSignalSpy lists(mModel.get(), &PlaylistModel::allGpsDataParserFinished);
    mModel->updateAllGpsData(0);
    QTRY_COMPARE(lists.count(), 1);
    QVERIFY(lists.first().last().value<QList<GpsData>>().isEmpty());

    mModel.reset(); // does not wait for what never comes
}

/** The name of the recording that pairs with the one at this place. */
QString TestPlaylistModel::partner(int main, const QStringList &names)
{
    mModel->clearAllData();
    add(names);
    const RowData *found = mModel->getRelateDataByMainData(*mModel->getRowData(main));
    return found ? found->fileName : QString();
}

void TestPlaylistModel::partners()
{
    QCOMPARE(partner(0, {"MOV_0001.MP4", "MOVB0001.MP4", "C0001.MP4"}), QString("MOVB0001.MP4"));
    QCOMPARE(partner(1, {"R001A.MP4", "mov_001a.mp4"}), QString("R001A.MP4"));
    QCOMPARE(partner(0, {"MOV_0001.MP4", "MOV_1001.MP4", "MOV_0001.AVI", "C0001.MP4.avi"}),
             QString());
    QCOMPARE(partner(0, {"ride5_F.MP4", "ride5_R.MP4", "ride5_S.MP4"}), QString("ride5_R.MP4"));
    QCOMPARE(partner(1, {"RIDE5-rear.avi", "ride5_F1.MP4"}), QString("RIDE5-rear.avi"));
    QCOMPARE(partner(0, {"0314F_01.MP4", "0314R_01.MP4", "B0314F_01.MP4"}), QString());
    QCOMPARE(partner(0, {"A_MOV001.MP4", "B_MOV001.MP4"}), QString());
    QCOMPARE(partner(0, {"ab12.MP4", "About.mov"}), QString("About.mov")); // 8 characters
    QCOMPARE(partner(0, {"ab1.MP4", "ab1.MP4.mov"}), QString());           // 7
}

void TestPlaylistModel::rows()
{
    add({"a.mp4", "folder/b.mp4", "c.mp4"});
    QCOMPARE(mModel->addDataByUrl(path("c.mp4")), 2);
    QCOMPARE(mModel->addDataByUrl(path("b.mp4")), 1); // the same name is the same recording
    QCOMPARE(mModel->getRowData(1)->url, path("folder/b.mp4"));
    QVERIFY(!mModel->getPreviousDataByCurrentUrl(path("b.mp4")));
    QVERIFY(!mModel->getNextDataByCurrentUrl(path("b.mp4")));
    QCOMPARE(mModel->addDataByUrl(path("C.mp4")), 3);
    for (int row = 0; row < 4; ++row) {
        const QUrl url = mModel->getRowData(row)->url;
        QCOMPARE(mModel->getPreviousDataByCurrentUrl(url), mModel->getRowData(row - 1));
        QCOMPARE(mModel->getNextDataByCurrentUrl(url), mModel->getRowData(row + 1));
    }
    for (int row : {-1, 4}) {
        QVERIFY(!mModel->getRowData(row));
        QCOMPARE(mModel->getVideoSize(row), QSize(1920, 1080));
        QCOMPARE(mModel->getVideoDecodeType(row), 1);
        mModel->setCurPlayPosition(row, 0);
        mModel->updateAllGpsData(row);
    }
}

void TestPlaylistModel::telemetryUntilCleared()
{
    mModel->addDataByUrl(recording("first.mp4"));
    mModel->addDataByUrl(recording("second.mp4"));
    add({"a.mp4", "b.mp4"});
    QSignalSpy samples(mModel.get(), &PlaylistModel::gpsDataChanged);
    QSignalSpy lists(mModel.get(), &PlaylistModel::allGpsDataParserFinished);
    mModel->updateAllGpsData(1);
    mModel->setCurPlayPosition(0, 2);
    QTRY_COMPARE(lists.count(), 1);
    QCOMPARE(lists.first().first().toInt(), 1);
    QCOMPARE(lists.first().last().value<QList<GpsData>>().size(), 3);
    QTRY_COMPARE(samples.count(), 1);
    QCOMPARE(samples.first().first().toInt(), 0);
    QCOMPARE(samples.first().last().value<GpsData>().id, 2);

    mModel->clearAllData();
    QCOMPARE(mModel->rowCount(), 0);
    add({"second.mp4"}); // is no duplicate any more
    QCOMPARE(mModel->rowCount(), 1);
}

void TestPlaylistModel::rowWithoutThread()
{
    QVERIFY(QFile::setPermissions(mDir.path(), QFile::Permissions(0x7777))); // for the ordinary
    const OrdinaryUser user;
    QVERIFY2(user.isActive(), "root may have any number of threads");
    QSignalSpy lists(mModel.get(), &PlaylistModel::allGpsDataParserFinished);
    {
        const ResourceLimit noThread(RLIMIT_NPROC, 0);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("row: 0 \"lonely.mp4\""));
        mModel->addDataByUrl(recording("lonely.mp4"));
        add({"never started.mp4"});
        mModel->updateAllGpsData(0);
        QCOMPARE(lists.count(), 0); // the caller is not yet ready for it
        QTRY_COMPARE(lists.count(), 1);
        QCOMPARE(lists.first().first().toInt(), 0);
        QVERIFY(lists.first().last().value<QList<GpsData>>().isEmpty());
        QCOMPARE(cells(0).last(), QString("-1 x -1"));
    }
    mModel->updateAllGpsData(0);
    QTRY_COMPARE(lists.count(), 2);
    QCOMPARE(lists.last().last().value<QList<GpsData>>().size(), 3);
}

/** Far more rows than descriptors. Workers look for requests every 800 ms: told one after the
 *  other, so many end after minutes, told at once after one such time. */
void TestPlaylistModel::manyRows()
{
    constexpr int rowCount = 300;
    const QUrl url = recording("ride.mp4");
    const ResourceLimit few(RLIMIT_NOFILE, 64);
    const auto descriptors = [] { return QDir("/proc/self/fd").count(); };
    const uint before = descriptors();
    // The tester reads every row again for each that is added.
    delete mModel->findChild<QAbstractItemModelTester *>();
    QSignalSpy changes(mModel.get(), &QAbstractItemModel::dataChanged);
    for (int row = 0; row < rowCount; ++row) {
        const QUrl copy = path(QStringLiteral("ride%1.mp4").arg(row));
        QVERIFY(QFile::link(url.toLocalFile(), copy.toLocalFile()));
        mModel->addDataByUrl(copy);
    }
    QTRY_COMPARE(changes.count(), 4 * rowCount); // added, facts, condition, telemetry
    for (int row = 0; row < rowCount; ++row)
        QCOMPARE(mModel->getVideoSize(row), QSize(2560, 1440));
    QTRY_COMPARE(descriptors(), before);
    QElapsedTimer timer;
    timer.start();
    mModel.reset();
    // One after the other, they would sleep for 240 s on any machine.
    QVERIFY2(timer.elapsed() < 120000, qPrintable(QString::number(timer.elapsed())));
}

QTEST_GUILESS_MAIN(TestPlaylistModel)
#include "tst_playlistmodel.moc"
