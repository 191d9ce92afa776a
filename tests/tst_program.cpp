// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "commandline.h"
#include "configuration.h"
#include "directiontray.h"
#include "gpsuser.h"
#include "gyrochartview.h"
#include "mainwindows.h"
#include "mapwebview.h"
#include "mediafile.h"
#include "playareamanager.h"
#include "speedtray.h"

#include <QApplication>
#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTestEventLoop>
#include <QTimer>
#include <QToolButton>
#include <QWebEnginePage>
#include <QWebEngineView>

#include <memory>

namespace {

constexpr int PairSeconds = 20;

/** What the camera measured in this second: everything moves, so that no second looks like
 *  another. */
TelemetryBlock sampleOf(int second)
{
    TelemetryBlock block;
    block.time = QByteArrayLiteral("202603140926") + QByteArray::number(10 + second);
    block.latitudeRef = 'S';
    block.latitude = "3352" + QByteArray::number(1000 + 50 * second); // 33 degrees, 52.1 minutes on
    block.longitude = "15112" + QByteArray::number(3000 + 50 * second);
    block.setSpeed(40 + second);
    return block;
}

QString dateTimeTextOf(int second)
{
    return QStringLiteral("2026/03/14 09:26:%1").arg(10 + second);
}

QString positionTextOf(int second)
{
    const double latitude = 33 + (52 + (1000 + 50 * second) / 10000.0) / 60;
    const double longitude = 151 + (12 + (3000 + 50 * second) / 10000.0) / 60;
    return QStringLiteral("S%1,E%2").arg(latitude, 0, 'f', 6).arg(longitude, 0, 'f', 6);
}

/** As the page writes it: with the six decimals that it was told. */
QString mapPositionOf(int second)
{
    const QString text = positionTextOf(second);
    const double latitude = text.mid(1, 9).toDouble();
    const double longitude = text.mid(12).toDouble();
    return QStringLiteral("[%1,%2]").arg(longitude, 0, 'g', 9).arg(-latitude, 0, 'g', 8);
}

QString speedTextOf(int second)
{
    return QStringLiteral("0%1 km/h").arg(40 + second);
}

} // namespace

/** The whole program: real window, real recordings, real time. */
class tst_Program : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void playsAPairNamedAsArguments();
    void showsTheSamplesOfTheSecond();
    void fillsChartAndMap_data();
    void fillsChartAndMap();
    void samplesNotToBeShown();
    void keepsTheTrackThatCameLast();
    void keysAndSeeking();
    void rateVolumeAndMute();
    void previousAndNext();
    void slidingToTheEndSkipsNothing();
    void playsAListToItsEnd();
    void droppedRecordingPlays();
    void openDialogPlaysTheFirst();
    void stopResets();
    void closingWhileTelemetryArrives_data();
    void closingWhileTelemetryArrives();
    void unplayableFilesDoNoHarm();

private:
    QString path(const char *name) const { return mFolder.filePath(QLatin1String(name)); }
    void openArguments(const QStringList &names);
    void playPair();
    void pauseAt(int second);
    int second() const { return child<QSlider>("hSlider_Seek")->value(); }
    QString text(const char *label) const { return child<QLabel>(label)->text(); }
    QVector<QPointF> chartLine(int index) const;
    QString map(const QString &field) const;
    void click(const char *button) const
    {
        QTest::mouseClick(child<QWidget>(button), Qt::LeftButton);
    }
    template <typename Widget>
    Widget *child(const char *name) const
    {
        return mWindow->findChild<Widget *>(QLatin1String(name));
    }
    PlayAreaManager *area() const { return child<PlayAreaManager>("wgt_PlayArea"); }
    QMediaPlayer *player() const { return area()->mainPlayer()->player(); }

    QTemporaryDir mFolder;
    std::unique_ptr<MainWindows> mWindow;
};

void tst_Program::initTestCase()
{
    QApplication::setQuitOnLastWindowClosed(false); // there is a window for each test
    QCoreApplication::setOrganizationName(QStringLiteral("Quellfern"));
    QCoreApplication::setApplicationName(QStringLiteral("Talvor Player V1.6 20200828"));
    QList<TelemetryBlock> samples;
    for (int i = 0; i < PairSeconds; ++i)
        samples.append(sampleOf(i));
    QVERIFY(makeMediaFile(path("MOVA0001.MP4"), PairSeconds, samples));
    QVERIFY(makeMediaFile(path("MOVB0001.MP4"), PairSeconds, samples));
    for (const char *name : {"one.mp4", "two #2 100%.mp4", "three.mp4"})
        QVERIFY(makeMediaFile(path(name), 2));
}

void tst_Program::init()
{
    mWindow = std::make_unique<MainWindows>();
    mWindow->show();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get()));
}

void tst_Program::cleanup()
{
    mWindow.reset();
}

void tst_Program::openArguments(const QStringList &names)
{
    CommandLine commandLine;
    QVERIFY(commandLine.parse(QStringList(QStringLiteral("talvor-player")) + names));
    mWindow->openRecordings(commandLine.recordings());
}

void tst_Program::playPair()
{
    openArguments({path("MOVA0001.MP4"), path("MOVB0001.MP4")});
    QTRY_COMPARE(area()->state(), QMediaPlayer::PlayingState);
    QTRY_VERIFY(player()->position() > 0);
}

void tst_Program::pauseAt(int second)
{
    QTRY_VERIFY(child<QSlider>("hSlider_Seek")->maximum() == PairSeconds);
    if (area()->state() == QMediaPlayer::PlayingState)
        QTest::keyClick(mWindow.get(), Qt::Key_Space);
    QTRY_COMPARE(area()->state(), QMediaPlayer::PausedState);
    area()->seek(second);
    QTRY_COMPARE(this->second(), second);
}

void tst_Program::playsAPairNamedAsArguments()
{
    playPair();
    QTRY_COMPARE(area()->secondPlayer()->player()->state(), QMediaPlayer::PlayingState);
    const QAbstractItemModel *model = child<QTableView>("tbl_PlayListView")->model();
    QCOMPARE(model->rowCount(), 2);
    for (int row = 0; row < 2; ++row) {
        QTRY_COMPARE(model->index(row, 1).data().toString(), QStringLiteral("00:00:20"));
        QCOMPARE(model->index(row, 4).data().toString(), QStringLiteral("320 x 180"));
    }
    QCOMPARE(text("lbl_FileName"), QStringLiteral("MOVA0001.MP4"));
    QVERIFY(child<QPushButton>("btn_PlayOrPause")->isChecked());
    QVERIFY(child<QPushButton>("btn_Stop")->isEnabled());
}

void tst_Program::showsTheSamplesOfTheSecond()
{
    playPair();
    QTRY_VERIFY(text("lbl_GpsDateTime").startsWith(QLatin1String("2026/03/14 09:26:1"))); // live
    for (const int second : {7, 3, 18}) {
        pauseAt(second);
        QTRY_COMPARE(text("lbl_GpsDateTime"), dateTimeTextOf(second));
        QCOMPARE(text("lbl_LongitudeAndLatitude"), positionTextOf(second));
        QCOMPARE(text("pBtn_SP"), speedTextOf(second));
        QCOMPARE(child<SpeedTray>("wgt_Speed")->shownSpeed(), 40 + second);
        // As far in latitude as in longitude, of which a degree is cos(33.87 degrees) as long; and
        // mirrored into the north, as all directions are: atan(0.830) is 39.7 degrees.
        const auto *compass = static_cast<DirectionTray *>(child<QWidget>("wgt_Direction"));
        QCOMPARE(compass->headingDeg(), 39);
        QCOMPARE(chartLine(3).value(0).x(), double(second));
        QTRY_COMPARE(map("position"), mapPositionOf(second));
    }
}

/** The points of a line of the chart; 3 is the cursor. */
QVector<QPointF> tst_Program::chartLine(int index) const
{
    const auto series = child<GyroChartView>("gView_GyroChart")->chart()->series();
    return static_cast<QtCharts::QLineSeries *>(series.at(index))->pointsVector();
}

/** What the page says of itself. */
QString tst_Program::map(const QString &field) const
{
    const auto answer = std::make_shared<QString>(); // which may come too late
    const QString question = QStringLiteral("JSON.stringify(talvorMap.state().%1)").arg(field);
    const auto *view = mWindow->findChild<QWebEngineView *>();
    view->page()->runJavaScript(question, [answer](const QVariant &value) {
        *answer = value.toString();
        QTestEventLoop::instance().exitLoop();
    });
    QTestEventLoop::instance().enterLoop(5); // QTest::qWait() starves the web engine
    return *answer;
}

void tst_Program::fillsChartAndMap_data()
{
    QTest::addColumn<int>("samples");
    QTest::addColumn<int>("points");
    QTest::addColumn<int>("samplesPerPoint");
    // The recording has 20 seconds of 30 frames: 570 samples are enough for one each second.
    QTest::newRow("a sample a frame") << 600 << 20 << 30;
    QTest::newRow("the last second is missing") << 570 << 19 << 30;
    QTest::newRow("too few for the frames") << 569 << 569 << 1;
    QTest::newRow("a sample a second") << 20 << 20 << 1;
    QTest::newRow("none") << 0 << 0 << 1;
}

void tst_Program::fillsChartAndMap()
{
    QFETCH(int, samples);
    QFETCH(int, points);
    QFETCH(int, samplesPerPoint);
    playPair();
    QList<GpsData> list;
    for (int i = 0; i < samples; ++i) {
        GpsData sample;
        sample.latitude = 48 + 0.001 * i;
        sample.longitude = i % 10 == 9 ? 11.0 : 11.001; // not straight
        sample.gsensorX = float(i) / 1000;
        list.append(sample);
    }
    mWindow->onAllGpsDataParserFinished(0, list);
    const QVector<QPointF> line = chartLine(0);
    QCOMPARE(line.size(), points);
    for (int i = 0; i < points; ++i)
        QCOMPARE(line.at(i), QPointF(i, double(float(i * samplesPerPoint) / 1000)));
    QTRY_COMPARE(map("routePoints"), QString::number(samples > 0 ? samples : PairSeconds));
}

/** Samples of a recording that is not played, without a fix, and after the end. */
void tst_Program::samplesNotToBeShown()
{
    playPair();
    pauseAt(7);
    QTRY_COMPARE(map("position"), mapPositionOf(7));
    GpsData sample;
    sample.id = 11;
    sample.speed = 111;
    const auto *gauge = child<SpeedTray>("wgt_Speed");
    mWindow->onGpsDataChanged(1, sample);
    mWindow->onAllGpsDataParserFinished(1, {sample});
    QCOMPARE(gauge->shownSpeed(), 47);
    QCOMPARE(chartLine(0).size(), PairSeconds);
    QCOMPARE(area()->state(), QMediaPlayer::PausedState);

    mWindow->onGpsDataChanged(0, sample); // no fix
    QCOMPARE(gauge->shownSpeed(), 111);
    QCOMPARE(chartLine(3).value(0).x(), 11.0);
    QCOMPARE(map("position"), mapPositionOf(7));

    click("btn_Stop");
    mWindow->onGpsDataChanged(0, sample);
    mWindow->onAllGpsDataParserFinished(0, {sample});
    QCOMPARE(gauge->shownSpeed(), 0);
    QCOMPARE(area()->state(), QMediaPlayer::StoppedState);
    for (int line = 0; line < 4; ++line)
        QVERIFY(chartLine(line).isEmpty());
    QTRY_COMPARE(map("routePoints"), QString("0"));
    QCOMPARE(map("position"), QString("null"));
}

/** A track is kept for the next page, and sending one lets another be delivered. */
void tst_Program::keepsTheTrackThatCameLast()
{
    playPair();
    QTimer::singleShot(100, mWindow.get(), [this] {
        mWindow->onAllGpsDataParserFinished(0, {GpsData(), GpsData()});
    });
    mWindow->onAllGpsDataParserFinished(0, {GpsData()});
    const QObject *view = child<MapWebView>("wgt_MapView");
    const auto *kept = static_cast<const GPSUser *>(view->userData(GPS_USER_DATA_ID));
    QCOMPARE(kept->allGpsData.size(), 2);
}

void tst_Program::keysAndSeeking()
{
    playPair();
    pauseAt(5);
    QTest::keyClick(mWindow.get(), Qt::Key_Right);
    QTRY_COMPARE(second(), 6);
    QTest::keyClick(mWindow.get(), Qt::Key_Left);
    QTRY_COMPARE(second(), 5);
    QCOMPARE(text("lbl_PlayTime"), QStringLiteral("00:05/00:20"));

    auto *slider = child<QSlider>("hSlider_Seek");
    QTest::mousePress(slider, Qt::LeftButton, {}, QPoint(slider->width() / 2, 7));
    QTRY_COMPARE(area()->state(), QMediaPlayer::PausedState);
    QTest::mouseRelease(slider, Qt::LeftButton, {}, QPoint(slider->width() / 2, 7));
    QTRY_COMPARE(area()->state(), QMediaPlayer::PlayingState); // always plays on
    QTRY_VERIFY(qAbs(second() - PairSeconds / 2) <= 1);

    QTest::keyClick(mWindow.get(), Qt::Key_Space);
    QTRY_COMPARE(area()->state(), QMediaPlayer::PausedState);
    QTest::keyClick(mWindow.get(), Qt::Key_Space);
    QTRY_COMPARE(area()->state(), QMediaPlayer::PlayingState);
}

void tst_Program::rateVolumeAndMute()
{
    playPair();
    click("pBtn_Down");
    QTRY_COMPARE(player()->playbackRate(), 2.0);
    click("pBtn_Up");
    click("pBtn_Up");
    QTRY_COMPARE(player()->playbackRate(), 0.5);

    child<QSlider>("hSlider_Volume")->setValue(50);
    QTRY_COMPARE(player()->volume(), 15); // -ln(1 - 0.50) / ln(100) = 0.1505
    click("tBtn_Mute");
    QTRY_VERIFY(player()->isMuted());
    click("tBtn_Mute");
    QTRY_VERIFY(!player()->isMuted());
    QVERIFY(area()->secondPlayer()->player()->isMuted());
}

void tst_Program::previousAndNext()
{
    openArguments({path("one.mp4"), path("two #2 100%.mp4"), path("three.mp4")});
    QTRY_COMPARE(area()->state(), QMediaPlayer::PlayingState);
    click("btn_Next");
    QCOMPARE(text("lbl_FileName"), QStringLiteral("two #2 100%.mp4"));
    click("btn_Previous");
    QCOMPARE(text("lbl_FileName"), QStringLiteral("one.mp4"));
    click("btn_Previous"); // none before the first
    QCOMPARE(text("lbl_FileName"), QStringLiteral("one.mp4"));
}

void tst_Program::slidingToTheEndSkipsNothing()
{
    openArguments({path("one.mp4"), path("two #2 100%.mp4"), path("three.mp4")});
    auto *slider = child<QSlider>("hSlider_Seek");
    QTRY_COMPARE(slider->maximum(), 2);
    QTRY_COMPARE(area()->state(), QMediaPlayer::PlayingState);
    QTest::mousePress(slider, Qt::LeftButton, {}, QPoint(slider->width() / 2, 7));
    QTRY_COMPARE(area()->state(), QMediaPlayer::PausedState);
    QMouseEvent move(QEvent::MouseMove, QPointF(slider->width() + 20, 7), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(slider, &move);
    QTRY_COMPARE(slider->value(), 2);
    QTRY_VERIFY2(player()->position() > 1800, qPrintable(QString::number(player()->position())));
    QCOMPARE(text("lbl_FileName"), QStringLiteral("one.mp4")); // still held
    QTest::mouseRelease(slider, Qt::LeftButton, {}, QPoint(slider->width() + 20, 7));
    QTRY_COMPARE(text("lbl_FileName"), QStringLiteral("two #2 100%.mp4"));
    QTRY_VERIFY(area()->state() == QMediaPlayer::PlayingState && second() >= 1);
    QCOMPARE(text("lbl_FileName"), QStringLiteral("two #2 100%.mp4"));
}

void tst_Program::playsAListToItsEnd()
{
    QList<int> played;
    connect(area(), &PlayAreaManager::positionChanged, mWindow.get(), [&](qint64, int row) {
        if (played.isEmpty() || played.last() != row)
            played.append(row);
    });
    openArguments({path("one.mp4"), path("two #2 100%.mp4"), path("three.mp4")});
    QTRY_COMPARE_WITH_TIMEOUT(played.size(), 3, 15000);
    QTRY_COMPARE(area()->state(), QMediaPlayer::PlayingState);
    QTRY_COMPARE_WITH_TIMEOUT(area()->state(), QMediaPlayer::StoppedState, 15000);
    QCOMPARE(played, QList<int>({0, 1, 2})); // none skipped, none twice
    QTRY_VERIFY(!child<QPushButton>("btn_Stop")->isEnabled());
    QVERIFY(!child<QPushButton>("btn_PlayOrPause")->isChecked());
    QCOMPARE(second(), 0);
    QCOMPARE(text("lbl_FileName"), QString());
    QVERIFY(!QSignalSpy(player(), &QMediaPlayer::stateChanged).wait(1500)); // and it stays stopped
}

void tst_Program::droppedRecordingPlays()
{
    QMimeData mime;
    mime.setUrls({QUrl::fromLocalFile(path("two #2 100%.mp4"))});
    QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(area(), &enter);
    QDropEvent drop(QPointF(9, 9), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(area(), &drop);
    QCOMPARE(text("lbl_FileName"), QStringLiteral("two #2 100%.mp4"));
    QTRY_VERIFY(player()->position() > 500);
}

void tst_Program::openDialogPlaysTheFirst()
{
    Configuration::GetInstance()->setVideoFilePath(QDir::homePath());
    QTimer::singleShot(0, mWindow.get(), [this] {
        auto *dialog = mWindow->findChild<QFileDialog *>();
        dialog->setDirectory(mFolder.path());
        dialog->findChild<QLineEdit *>()->setText(QStringLiteral("\"one.mp4\" \"three.mp4\""));
        QMetaObject::invokeMethod(dialog, "accept");
    });
    click("btn_OpenFile");
    QCOMPARE(child<QTableView>("tbl_PlayListView")->model()->rowCount(), 2);
    QCOMPARE(text("lbl_FileName"), QStringLiteral("one.mp4"));
    QCOMPARE(Configuration::GetInstance()->videoFilePath(), mFolder.path());
    QTRY_COMPARE(area()->state(), QMediaPlayer::PlayingState);
}

void tst_Program::stopResets()
{
    playPair();
    QTRY_VERIFY(second() >= 2);
    click("btn_Stop");
    QTRY_COMPARE(area()->state(), QMediaPlayer::StoppedState);
    // The backend may report an old position once more, which must not be shown.
    QSignalSpy(area(), &PlayAreaManager::positionChanged).wait(300);
    QCOMPARE(text("lbl_LongitudeAndLatitude"), QStringLiteral("00.000000,000.000000"));
    QCOMPARE(text("pBtn_SP"), QStringLiteral("000 km/h"));
    QCOMPARE(text("lbl_FileName"), QString());
    QCOMPARE(second(), 0);
    click("btn_PlayOrPause"); // the row is still selected
    QTRY_COMPARE(area()->state(), QMediaPlayer::PlayingState);
    QCOMPARE(text("lbl_FileName"), QStringLiteral("MOVA0001.MP4"));
}

void tst_Program::closingWhileTelemetryArrives_data()
{
    QTest::addColumn<bool>("isChartFilled");
    QTest::newRow("into the chart") << false;
    QTest::newRow("into the map") << true;
}

/** Events pass while chart and map are given a long drive, and closing is one of them. */
void tst_Program::closingWhileTelemetryArrives()
{
    QFETCH(bool, isChartFilled);
    playPair();
    pauseAt(5);
    QTRY_COMPARE(chartLine(0).size(), PairSeconds);
    QTimer closing;
    connect(&closing, &QTimer::timeout, mWindow.get(), [&] {
        if (isChartFilled ? area()->state() == QMediaPlayer::PlayingState
                          : chartLine(0).size() < PairSeconds)
            mWindow->close();
    });
    closing.start(0);
    QList<GpsData> drive;
    for (int i = 0; i < 10000; ++i) {
        drive.append(GpsData());
        drive.last().latitude = 1 + i / 1e6;
    }
    mWindow->onAllGpsDataParserFinished(0, drive);
    closing.stop();
    QVERIFY(!mWindow->isVisible());
    QTRY_COMPARE(area()->state(), QMediaPlayer::StoppedState);

    // What the page draws with its next point is still the drive before.
    mWindow->show();
    child<MapWebView>("wgt_MapView")->addPoint({1, 11, 48});
    QTRY_COMPARE(map("position"), QString("[11,48]"));
    QCOMPARE(map("routePoints"), QString::number(PairSeconds));
}

void tst_Program::unplayableFilesDoNoHarm()
{
    QFile text(path("letter.mp4"));
    QVERIFY(text.open(QIODevice::WriteOnly) && text.write("Dear driver,") > 0);
    text.close();
    openArguments({path("letter.mp4"), path("missing.mp4"), path("one.mp4")});
    QCOMPARE(child<QTableView>("tbl_PlayListView")->model()->rowCount(), 2);
    QTRY_VERIFY(player()->mediaStatus() == QMediaPlayer::InvalidMedia);
    click("btn_Next");
    QTRY_COMPARE(area()->state(), QMediaPlayer::PlayingState);
    QTRY_VERIFY(player()->position() > 0);
}

QTEST_MAIN(tst_Program)
#include "tst_program.moc"
