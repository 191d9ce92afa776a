// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "playlistmodel.h"
#include "recordingwriter.h"
#include "rowdata.h"

#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

namespace {
constexpr int Nobody = -1;

/** Stands for a language: its texts are the source texts in brackets, in two contexts only. */
class BracketTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const bool isKnown =
            qstrcmp(context, "QInstaller") == 0 || qstrcmp(context, "PlaylistModel") == 0;
        return isKnown ? '[' + QString::fromUtf8(source) + ']' : QString();
    }
};
} // namespace

class TestPlaylistModel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void sizeTexts_data();
    void sizeTexts();
    void durationTexts();
    void headers();
    void translatedTexts();
    void freshRow();
    void cells();
    void addingAnnouncesTheRow();
    void sameNameIsSameRecording();
    void unreadableFiles();
    void videoInfoFillsTheRow();
    void videoInfoOfOtherRows();
    void partner_data();
    void partner();
    void neighbours();
    void outOfRange();
    void forwardsTelemetry();
    void clearing();
    void manyRows_data();
    void manyRows();

private:
    QUrl path(const QString &name) const;
    QUrl recording(const QString &name, quint32 durationS = 10, int sampleCount = 0) const;
    QString cell(int row, int column, int role = Qt::DisplayRole) const;
    void awaitVideoInfo(int row) const;

    QTemporaryDir mDir;
    std::unique_ptr<PlaylistModel> mModel;
    std::unique_ptr<QAbstractItemModelTester> mTester;
};

void TestPlaylistModel::initTestCase()
{
    QLoggingCategory::setFilterRules("*.debug=false");
    QVERIFY(mDir.isValid());
}

/** Every test runs under the model tester, which ends the program at the first fault. Only
 *  dataChanged is kept from it: the ranges that the view is given are not those of the table (one
 *  column too many, or empty), and addingAnnouncesTheRow() compares them instead. */
void TestPlaylistModel::init()
{
    mModel = std::make_unique<PlaylistModel>();
    mTester = std::make_unique<QAbstractItemModelTester>(
        mModel.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    disconnect(mModel.get(), &QAbstractItemModel::dataChanged, mTester.get(), nullptr);
}

void TestPlaylistModel::cleanup()
{
    mTester.reset();
    mModel.reset();
}

/** A file that need not exist. */
QUrl TestPlaylistModel::path(const QString &name) const
{
    return QUrl::fromLocalFile(mDir.filePath(name));
}

/** 30 frames a second, 2560 x 1440, H.265. */
QUrl TestPlaylistModel::recording(const QString &name, quint32 durationS, int sampleCount) const
{
    RecordingWriter writer;
    writer.duration = durationS * writer.timeScale;
    writer.tracks = {Mp4::videoTrack(2560, 1440, durationS * 30, "hvc1", 86400)};
    QList<TelemetryBlock> samples;
    for (int i = 0; i < sampleCount; ++i) {
        samples.append(TelemetryBlock());
        samples.last().setSpeed(10 + i);
    }
    writer.setTelemetry(sampleCount == 0 ? 0 : 1, samples);
    if (!writer.save(mDir.filePath(name)))
        qFatal("No recording to test with");
    return path(name);
}

QString TestPlaylistModel::cell(int row, int column, int role) const
{
    return mModel->data(mModel->index(row, column), role).toString();
}

void TestPlaylistModel::awaitVideoInfo(int row) const
{
    QTRY_VERIFY(mModel->getRowData(row)->width != -1);
}

void TestPlaylistModel::sizeTexts_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<int>("precision");
    QTest::addColumn<QString>("text");

    QTest::newRow("nothing") << qint64(0) << 0 << "0 bytes";
    QTest::newRow("last in bytes") << qint64(1023) << 0 << "1023 bytes";
    QTest::newRow("first in KB") << qint64(1024) << 0 << "1 KB";
    QTest::newRow("rounded up") << qint64(1536) << 0 << "2 KB";
    QTest::newRow("rounded down") << qint64(1535) << 0 << "1 KB";
    QTest::newRow("last in KB") << qint64((1 << 20) - 1) << 0 << "1024 KB";
    QTest::newRow("first in MB") << qint64(1 << 20) << 0 << "1 MB";
    QTest::newRow("beyond 32 bits") << (qint64(5) << 30) << 0 << "5 GB";
    QTest::newRow("TB") << (qint64(1) << 40) << 0 << "1 TB";
    QTest::newRow("PB") << (qint64(1) << 50) << 0 << "1 PB";
    QTest::newRow("largest") << std::numeric_limits<qint64>::max() << 0 << "8 EB";
    QTest::newRow("one decimal") << qint64(1536) << 1 << "1.5 KB";
    QTest::newRow("decimals of bytes") << qint64(1000) << 2 << "1000.00 bytes";
    QTest::newRow("three decimals") << qint64(1300000) << 3 << "1.240 MB";
}

void TestPlaylistModel::sizeTexts()
{
    QFETCH(qint64, bytes);
    QFETCH(int, precision);
    QTEST(mModel->tohumanReadableSize(bytes, precision), "text");
}

void TestPlaylistModel::durationTexts()
{
    const QList<QPair<quint32, QString>> expectations{
        {0, "00:00:00"},           {59, "00:00:59"},         {60, "00:01:00"},
        {3599, "00:59:59"},        {3600, "01:00:00"},       {86399, "23:59:59"},
        {86400, "00:00:00"},       {90061, "01:01:01"},      {2147483647, "03:14:07"},
        {2147483648u, "03:14:08"}, {4294967295u, "06:28:15"}};
    mModel->addDataByUrl(recording("long.mp4", 90061));
    awaitVideoInfo(0);
    QCOMPARE(cell(0, 1), QString("01:01:01"));
    VideoInfo info;
    for (const auto &expectation : expectations) {
        info.duration = expectation.first;
        mModel->onVideoInfoChanged(0, info);
        QCOMPARE(cell(0, 1), expectation.second);
    }
}

void TestPlaylistModel::headers()
{
    mModel->addDataByUrl(path("a.mp4"));
    mModel->addDataByUrl(path("b.mp4"));
    const QStringList titles{"File Name", "Duration", "Create Date", "Size", "Resolution"};
    QCOMPARE(mModel->columnCount(), titles.size());
    for (int column = 0; column < titles.size(); ++column)
        QCOMPARE(mModel->headerData(column, Qt::Horizontal).toString(), titles.at(column));
    QVERIFY(!mModel->headerData(5, Qt::Horizontal).isValid());
    QVERIFY(!mModel->headerData(-1, Qt::Horizontal).isValid());

    QCOMPARE(mModel->headerData(0, Qt::Vertical).toString(), QString("0"));
    QCOMPARE(mModel->headerData(1, Qt::Vertical).toString(), QString("1"));
    QVERIFY(!mModel->headerData(2, Qt::Vertical).isValid());
    for (int role : {Qt::DecorationRole, Qt::ToolTipRole, Qt::TextAlignmentRole, Qt::EditRole}) {
        QVERIFY(!mModel->headerData(0, Qt::Horizontal, role).isValid());
        QVERIFY(!mModel->headerData(0, Qt::Vertical, role).isValid());
    }
}

void TestPlaylistModel::translatedTexts()
{
    BracketTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(mModel->headerData(1, Qt::Horizontal).toString(), QString("[Duration]"));
    QCOMPARE(mModel->tohumanReadableSize(100, 0), QString("100 [bytes]"));
    QCOMPARE(mModel->tohumanReadableSize(2048, 0), QString("2 [KB]"));
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(mModel->headerData(1, Qt::Horizontal).toString(), QString("Duration"));
}

void TestPlaylistModel::freshRow()
{
    const QString name = QStringLiteral("Fahrt #1 50%20 süd.MP4");
    QCOMPARE(mModel->addDataByUrl(recording(name)), 0);
    QCOMPARE(cell(0, 0), name);
    QCOMPARE(cell(0, 1), QString("00:00:00"));
    QCOMPARE(cell(0, 4), QString("-1 x -1"));
    QCOMPARE(mModel->getCurPlayFileDuration(0), 0);
    QCOMPARE(mModel->getVideoSize(0), QSize(-1, -1));
    const RowData *row = mModel->getRowData(0);
    QCOMPARE(row->id, 0);
    QCOMPARE(row->url, path(name));
    QCOMPARE(row->size, QFileInfo(mDir.filePath(name)).size());
}

void TestPlaylistModel::cells()
{
    const QUrl url = recording("cells.mp4");
    QFile file(url.toLocalFile());
    QVERIFY(file.open(QFile::Append));
    QVERIFY(file.resize(3 << 20));
    // Neither a later change nor the date in the recording is the date shown.
    QVERIFY(file.setFileTime(QDateTime({2001, 2, 3}, {4, 5}), QFileDevice::FileModificationTime));
    file.close();
    mModel->addDataByUrl(url);
    awaitVideoInfo(0);
    const QDateTime birth = QFileInfo(url.toLocalFile()).birthTime();
    QCOMPARE(cell(0, 2), birth.toString("yyyy/MM/dd hh:mm:ss"));
    QCOMPARE(cell(0, 3), QString("3 MB"));

    for (int column = 0; column < 5; ++column) {
        const QModelIndex index = mModel->index(0, column);
        QCOMPARE(mModel->data(index, Qt::TextAlignmentRole).toInt(), 132);
        for (int role : {Qt::EditRole, Qt::DecorationRole, Qt::ToolTipRole, Qt::FontRole,
                         Qt::CheckStateRole, Qt::UserRole})
            QVERIFY(!mModel->data(index, role).isValid());
    }
    QVERIFY(!mModel->data(QModelIndex()).isValid());
}

void TestPlaylistModel::addingAnnouncesTheRow()
{
    QList<QRect> ranges;
    connect(
        mModel.get(), &QAbstractItemModel::dataChanged, this,
        [&ranges](const QModelIndex &first, const QModelIndex &last) {
            ranges.append({QPoint(first.column(), first.row()), QPoint(last.column(), last.row())});
        });
    QSignalSpy inserted(mModel.get(), &QAbstractItemModel::rowsInserted);
    for (int row = 0; row < 3; ++row) {
        QCOMPARE(mModel->addDataByUrl(path(QString::number(row))), row);
        QCOMPARE(inserted.takeFirst().mid(1), QVariantList({row, row}));
        QCOMPARE(ranges, QList<QRect>{QRect(QPoint(0, row), QPoint(5, row))});
        ranges.clear();
    }
    const QRect empty(QPoint(-1, -1), QPoint(-1, -1));
    QTRY_COMPARE(ranges, QList<QRect>({empty, empty, empty}));
}

void TestPlaylistModel::sameNameIsSameRecording()
{
    QVERIFY(QDir(mDir.path()).mkpath("front") && QDir(mDir.path()).mkpath("rear"));
    QCOMPARE(mModel->addDataByUrl(recording("other.mp4")), 0);
    QCOMPARE(mModel->addDataByUrl(recording("front/ride.mp4")), 1);
    QSignalSpy inserted(mModel.get(), &QAbstractItemModel::rowsInserted);
    QSignalSpy changed(mModel.get(), &QAbstractItemModel::dataChanged);
    QCOMPARE(mModel->addDataByUrl(recording("front/ride.mp4")), 1);
    QCOMPARE(mModel->addDataByUrl(recording("rear/ride.mp4")), 1);
    QCOMPARE(mModel->addDataByUrl(recording("other.mp4")), 0);
    QCOMPARE(mModel->rowCount(), 2);
    QCOMPARE(inserted.count() + changed.count(), 0);
    QCOMPARE(mModel->getRowData(1)->url, path("front/ride.mp4"));

    QCOMPARE(mModel->addDataByUrl(recording("front/RIDE.mp4")), 2);
}

void TestPlaylistModel::unreadableFiles()
{
    QCOMPARE(mModel->addDataByUrl(path("absent.mp4")), 0);
    QVERIFY(QDir(mDir.path()).mkpath("folder.mp4"));
    QCOMPARE(mModel->addDataByUrl(path("folder.mp4")), 1);
    QFile garbage(mDir.filePath("garbage.avi"));
    QVERIFY(garbage.open(QFile::WriteOnly));
    garbage.write(QByteArray(2048, '\xff'));
    garbage.close();
    QCOMPARE(mModel->addDataByUrl(path("garbage.avi")), 2);
    for (int row = 0; row < 3; ++row) {
        awaitVideoInfo(row);
        QCOMPARE(cell(row, 1), QString("00:00:00"));
        QCOMPARE(cell(row, 4), QString("0 x 0"));
    }
    QCOMPARE(cell(0, 0), QString("absent.mp4"));
    QCOMPARE(cell(0, 2), QString());
    QCOMPARE(cell(0, 3), QString("0 bytes"));
    QCOMPARE(cell(2, 3), QString("2 KB"));
}

void TestPlaylistModel::videoInfoFillsTheRow()
{
    mModel->addDataByUrl(path("absent.mp4"));
    mModel->addDataByUrl(recording("ride.mp4", 65));
    awaitVideoInfo(1);
    QCOMPARE(cell(1, 1), QString("00:01:05"));
    QCOMPARE(cell(1, 4), QString("2560 x 1440"));
    QCOMPARE(mModel->getCurPlayFileDuration(1), 65);
    QCOMPARE(mModel->getVideoframerate(1), 30.0f);
    QCOMPARE(mModel->getVideoDecodeType(1), 2);
    QCOMPARE(mModel->getVideoSize(1), QSize(2560, 1440));
}

void TestPlaylistModel::videoInfoOfOtherRows()
{
    for (const char *name : {"a.mp4", "b.mp4"})
        mModel->addDataByUrl(path(name));
    awaitVideoInfo(0);
    awaitVideoInfo(1);
    QSignalSpy changed(mModel.get(), &QAbstractItemModel::dataChanged);
    VideoInfo info;
    info.width = 640;
    info.height = 480;
    for (int id : {-1, 2, 1 << 30})
        mModel->onVideoInfoChanged(id, info);
    QCOMPARE(changed.count(), 0);
    mModel->onVideoInfoChanged(1, info);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(cell(0, 4), QString("0 x 0"));
    QCOMPARE(cell(1, 4), QString("640 x 480"));
}

void TestPlaylistModel::partner_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<int>("main");
    QTest::addColumn<int>("partner");
    using Names = QStringList;

    QTest::newRow("MOV: same end") << Names{"MOV_0001.MP4", "MOVB0001.MP4"} << 0 << 1;
    QTest::newRow("MOV: in any case") << Names{"mov_001a.mp4", "MOVB001A.MP4"} << 0 << 1;
    QTest::newRow("MOV: other beginning") << Names{"MOV_0001.MP4", "Rear0001.mp4"} << 0 << 1;
    QTest::newRow("MOV: first of two")
        << Names{"B_0001.MP4", "MOV_0001.MP4", "C_0001.MP4"} << 1 << 0;
    QTest::newRow("MOV: not itself") << Names{"MOV_0001.MP4", "MOV_0002.MP4"} << 0 << Nobody;
    QTest::newRow("MOV: not by start") << Names{"MOV_0001.MP4", "MOV_0001.AVI"} << 0 << Nobody;
    QTest::newRow("MOV: end is the end")
        << Names{"MOV_0001.MP4", "MOVB0001.MP4.avi"} << 0 << Nobody;
    QTest::newRow("MOV: 7 of 8") << Names{"MOV_0001.MP4", "MOV_1001.MP4"} << 0 << Nobody;
    QTest::newRow("MOV within the name") << Names{"A_MOV001.MP4", "B_MOV001.MP4"} << 0 << Nobody;
    QTest::newRow("other start but for 7") << Names{"0314F_01.MP4", "0314R_01.MP4"} << 0 << Nobody;
    QTest::newRow("same start but for 7") << Names{"20260314_F1.MP4", "20260314_R1.MP4"} << 0 << 1;
    QTest::newRow("start in any case") << Names{"ride5_F1.MP4", "RIDE5-rear.avi"} << 0 << 1;
    QTest::newRow("first of two starts")
        << Names{"ride5_R1.MP4", "ride5_F1.MP4", "ride5_R2.MP4"} << 1 << 0;
    QTest::newRow("not by end") << Names{"FRONT001.MP4", "REAR_001.MP4"} << 0 << Nobody;
    QTest::newRow("8 characters") << Names{"ab12.MP4", "About.mov"} << 0 << 1;
    QTest::newRow("7 characters") << Names{"ab1.MP4", "ab1.MP4.mov"} << 0 << Nobody;
}

void TestPlaylistModel::partner()
{
    QFETCH(QStringList, names);
    QFETCH(int, main);
    QFETCH(int, partner);
    for (const QString &name : names)
        mModel->addDataByUrl(path(name));
    const RowData *found = mModel->getRelateDataByMainData(*mModel->getRowData(main));
    QCOMPARE(found ? found->fileName : QString(), names.value(partner));
    QCOMPARE(found, mModel->getRowData(partner));
}

void TestPlaylistModel::neighbours()
{
    QVERIFY(!mModel->getPreviousDataByCurrentUrl(path("a.mp4")));
    QVERIFY(!mModel->getNextDataByCurrentUrl(path("a.mp4")));
    QList<QUrl> urls;
    for (const char *name : {"a.mp4", "b.mp4", "c.mp4"})
        urls.append(path(name));
    for (const QUrl &url : urls)
        mModel->addDataByUrl(url);
    for (int row = 0; row < urls.size(); ++row) {
        QCOMPARE(mModel->getPreviousDataByCurrentUrl(urls.at(row)), mModel->getRowData(row - 1));
        QCOMPARE(mModel->getNextDataByCurrentUrl(urls.at(row)), mModel->getRowData(row + 1));
    }
    for (const QUrl &url : {path("folder/b.mp4"), path("absent.mp4"), QUrl()}) {
        QVERIFY(!mModel->getPreviousDataByCurrentUrl(url));
        QVERIFY(!mModel->getNextDataByCurrentUrl(url));
    }
}

void TestPlaylistModel::outOfRange()
{
    mModel->addDataByUrl(path("a.mp4"));
    for (int row : {-1, 1, 99}) {
        QVERIFY(!mModel->getRowData(row));
        QCOMPARE(mModel->getVideoSize(row), QSize(1920, 1080));
        QCOMPARE(mModel->getVideoDecodeType(row), 1);
        mModel->setCurPlayPosition(row, 0);
        mModel->updateAllGpsData(row);
        QVERIFY(!mModel->index(row, 0).isValid());
    }
    QVERIFY(!mModel->index(0, 5).isValid());
    QVERIFY(!mModel->index(0, -1).isValid());
    const QModelIndex inside = mModel->index(0, 0);
    QVERIFY(inside.isValid() && !inside.parent().isValid());
    QCOMPARE(mModel->rowCount(inside), 0);
}

void TestPlaylistModel::forwardsTelemetry()
{
    mModel->addDataByUrl(recording("three.mp4", 10, 3));
    mModel->addDataByUrl(recording("five.mp4", 10, 5));
    QSignalSpy samples(mModel.get(), &PlaylistModel::gpsDataChanged);
    QSignalSpy lists(mModel.get(), &PlaylistModel::allGpsDataParserFinished);
    awaitVideoInfo(0);
    awaitVideoInfo(1);

    mModel->updateAllGpsData(1);
    QTRY_COMPARE(lists.count(), 1);
    QCOMPARE(lists.first().first().toInt(), 1);
    const auto list = lists.first().last().value<QList<GpsData>>();
    QCOMPARE(list.size(), 5);
    QCOMPARE(list.last().speed, 14);

    mModel->setCurPlayPosition(0, 2);
    QTRY_COMPARE(samples.count(), 1);
    QCOMPARE(samples.first().first().toInt(), 0);
    QCOMPARE(samples.first().last().value<GpsData>().id, 2);
    QCOMPARE(samples.first().last().value<GpsData>().speed, 12);
    QCOMPARE(lists.count(), 1);
}

void TestPlaylistModel::clearing()
{
    for (const char *name : {"a.mp4", "b.mp4"})
        mModel->addDataByUrl(path(name));
    const QModelIndex stale = mModel->index(1, 0);
    QSignalSpy willReset(mModel.get(), &QAbstractItemModel::modelAboutToBeReset);
    QSignalSpy reset(mModel.get(), &QAbstractItemModel::modelReset);
    QSignalSpy workerGone(&mModel->getRowData(1)->parser, &QObject::destroyed);
    mModel->clearAllData();
    QCOMPARE(willReset.count(), 1);
    QCOMPARE(reset.count(), 1);
    QCOMPARE(workerGone.count(), 1);
    QCOMPARE(mModel->rowCount(), 0);
    QVERIFY(!mModel->getRowData(0));
    QVERIFY(!mModel->data(stale).isValid());

    QCOMPARE(mModel->addDataByUrl(recording("a.mp4", 42)), 0);
    QTRY_COMPARE(mModel->getCurPlayFileDuration(0), 42);
    QCOMPARE(mModel->rowCount(), 1);
}

void TestPlaylistModel::manyRows_data()
{
    QTest::addColumn<bool>("isDestroyed");
    QTest::addColumn<bool>("isServing");

    QTest::newRow("destroyed") << true << true;
    QTest::newRow("destroyed while starting") << true << false;
    QTest::newRow("cleared") << false << true;
    QTest::newRow("cleared while starting") << false << false;
}

/** Workers look for requests every 800 ms; when all are told at once, the last ends after that. */
void TestPlaylistModel::manyRows()
{
    constexpr int rowCount = 200;
    QFETCH(bool, isDestroyed);
    QFETCH(bool, isServing);
    const QUrl url = recording("ride.mp4", 10, 3);
    mTester.reset(); // it reads every row again for each that is added
    QSignalSpy infos(mModel.get(), &QAbstractItemModel::dataChanged);
    for (int row = 0; row < rowCount; ++row) {
        const QString name = mDir.filePath(QStringLiteral("ride%1.mp4").arg(row));
        QFile::link(url.toLocalFile(), name);
        mModel->addDataByUrl(QUrl::fromLocalFile(name));
    }
    if (isServing)
        QTRY_COMPARE_WITH_TIMEOUT(infos.count(), 2 * rowCount, 30000);

    QElapsedTimer timer;
    timer.start();
    if (isDestroyed)
        mModel.reset();
    else
        mModel->clearAllData();
    QVERIFY2(timer.elapsed() < 1500, qPrintable(QString::number(timer.elapsed())));
    if (!isDestroyed)
        QCOMPARE(mModel->rowCount(), 0);
}

QTEST_GUILESS_MAIN(TestPlaylistModel)
#include "tst_playlistmodel.moc"
