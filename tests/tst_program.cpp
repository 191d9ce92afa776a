// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "commandline.h"
#include "configuration.h"
#include "directiontray.h"
#include "gpsuser.h"
#include "gyrochartview.h"
#include "mainwindows.h"
#include "mapclicks.h"
#include "mapwebview.h"
#include "mediafile.h"
#include "patience.h"
#include "pendingstart.h"
#include "playareamanager.h"
#include "rowdata.h"
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
    void showsWhereThereIsNoFix();
    void saysThatThereIsNoTelemetry();
    void keepsTheTrackThatCameLast();
    void keysAndSeeking();
    void clickingTheChart_data();
    void clickingTheChart();
    void clickingTheMap();
    void rateVolumeAndMute();
    void previousAndNext();
    void slidingToTheEndSkipsNothing();
    void clickingTheVeryEndOfAPair();
    void playsAListToItsEnd();
    void droppedRecordingPlays();
    void openDialogPlaysTheFirst();
    void quickNextLoadsTheLastOnly();
    void stoppingWhileTheNextOneWaits();
    void startsDoNotNest();
    void manyDroppedLoadTheLastOnly();
    void showsTheFirstSecondAndForgetsTheLastRecording();
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
    for (const char *name : {"one.mp4", "two #2 100%.mp4", "three.mp4", "four.avi"})
        QVERIFY(makeMediaFile(path(name), 2));
    QFile text(path("letter.mp4"));
    QVERIFY(text.open(QIODevice::WriteOnly) && text.write("Dear driver,") > 0);
}

void tst_Program::init()
{
    mWindow = std::make_unique<MainWindows>();
    mWindow->show();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get(), PatienceMs));
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
    constexpr int askSeconds = 5; // until it is asked again: a question to a page that goes is lost
    for (int i = 0; i < PatienceMs / 1000 / askSeconds && answer->isEmpty(); ++i) {
        view->page()->runJavaScript(question, [answer](const QVariant &value) {
            *answer = value.toString();
            QTestEventLoop::instance().exitLoop();
        });
        QTestEventLoop::instance().enterLoop(askSeconds); // QTest::qWait() starves the web engine
    }
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

    sample.longitude = 11; // on the equator
    mWindow->onGpsDataChanged(0, sample);
    QTRY_COMPARE(map("position"), QString("[11,0]"));

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

/** Without a fix in the seconds 0, 1, and 8 to 17, wherever one comes from. */
void tst_Program::showsWhereThereIsNoFix()
{
    QList<TelemetryBlock> samples;
    for (int i = 0; i < PairSeconds; ++i)
        samples.append(i < 2 || (i >= 8 && i < 18) ? TelemetryBlock() : sampleOf(i));
    QVERIFY(makeMediaFile(path("tunnel.mp4"), PairSeconds, samples));
    openArguments({path("tunnel.mp4")});
    QTRY_VERIFY(player()->position() > 0);
    const struct
    {
        int second;
        int shownAt; // -1: nowhere
    } steps[] = {{5, 5}, {15, 7}, {19, 19}, {9, 7}, {0, -1}, {3, 3}};
    for (const auto &[second, shownAt] : steps) {
        pauseAt(second);
        const bool hasFix = second == shownAt;
        QTRY_COMPARE(chartLine(3).value(0).x(), double(second)); // the g-sensor goes on
        QCOMPARE(text("pBtn_SP"), hasFix ? speedTextOf(second) : QStringLiteral("000 km/h"));
        for (const char *name : {"pBtn_SP", "lbl_LongitudeAndLatitude"})
            QCOMPARE(child<QLabel>(name)->isEnabled(), hasFix);
        for (const char *name : {"wgt_Speed", "wgt_Direction"})
            QCOMPARE(child<QWidget>(name)->accessibleDescription().contains("no position fix"),
                     !hasFix);
        QTRY_COMPARE(map("position"), shownAt < 0 ? QString("null") : mapPositionOf(shownAt));
        QCOMPARE(map("isLost"), QString(!hasFix && shownAt >= 0 ? "true" : "false"));
    }
    pauseAt(15);
    QTRY_VERIFY(!child<QLabel>("pBtn_SP")->isEnabled());
    click("btn_Stop");
    QVERIFY(child<QLabel>("pBtn_SP")->isEnabled());
    QVERIFY(!child<QWidget>("wgt_Direction")->accessibleDescription().contains("fix"));
}

void tst_Program::saysThatThereIsNoTelemetry()
{
    const auto *line = child<QLabel>("lbl_NoTelemetry");
    const QString text = QStringLiteral("No telemetry in this recording");
    QVERIFY(!line->isVisible());
    for (const bool isStopped : {true, false}) {
        openArguments({path("one.mp4")});
        QVERIFY(!line->isVisible()); // nobody knows yet
        QTRY_VERIFY(line->isVisible());
        QCOMPARE(line->text(), text);
        QVERIFY(child<QWidget>("gView_GyroChart")->rect().contains(line->geometry()));
        QCOMPARE(map("empty"), QString("\"%1\"").arg(text));
        if (isStopped)
            click("btn_Stop");
        else
            openArguments({path("MOVA0001.MP4")});
        QVERIFY(!line->isVisible());
        QTRY_COMPARE(map("empty"), QString("\"\""));
    }
    QTRY_COMPARE(chartLine(0).size(), PairSeconds);
    QVERIFY(!line->isVisible());
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
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(mWindow.get(), &held);
    QCOMPARE(area()->state(), QMediaPlayer::PausedState);
    QTest::keyClick(mWindow.get(), Qt::Key_Space);
    QTRY_COMPARE(area()->state(), QMediaPlayer::PlayingState);
}

void tst_Program::clickingTheChart_data()
{
    QTest::addColumn<bool>("plays");
    QTest::newRow("playing") << true;
    QTest::newRow("paused") << false;
}

/** Both recordings go where the mouse is; what was paused stays so. */
void tst_Program::clickingTheChart()
{
    QFETCH(const bool, plays);
    auto *chart = child<GyroChartView>("gView_GyroChart");
    const QRectF lines = chart->chart()->plotArea();
    const auto placeOf = [&](int second) {
        const double x = lines.left() + lines.width() * second / (PairSeconds - 1);
        return QPointF(x, lines.center().y()).toPoint();
    };
    QTest::mouseClick(chart->viewport(), Qt::LeftButton, {}, placeOf(9)); // nothing to go to yet
    QCOMPARE(area()->state(), QMediaPlayer::StoppedState);
    playPair();
    pauseAt(1);
    if (plays)
        area()->play();
    QTest::mousePress(chart->viewport(), Qt::LeftButton, {}, placeOf(5));
    QCOMPARE(area()->state(), QMediaPlayer::PausedState);
    QTRY_COMPARE(second(), 5);
    QMouseEvent drag(QEvent::MouseMove, placeOf(12), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(chart->viewport(), &drag);
    QTRY_COMPARE(second(), 12);
    QCOMPARE(area()->secondPlayer()->player()->position(), qint64(12000));
    QTRY_COMPARE(chartLine(3).value(0).x(), 12.0);
    QTest::mouseRelease(chart->viewport(), Qt::LeftButton, {}, placeOf(12));
    QCOMPARE(area()->state(), plays ? QMediaPlayer::PlayingState : QMediaPlayer::PausedState);
}

/** At double rate; a page that lies about it moves nothing. */
void tst_Program::clickingTheMap()
{
    playPair();
    pauseAt(1);
    click("pBtn_Down");
    QTRY_COMPARE(map("fits"), QString("1"));
    const auto number = [this](const char *field) { return map(QLatin1String(field)).toDouble(); };
    auto *view = mWindow->findChild<QWebEngineView *>();
    const QStringList sides{"view.west", "view.east", "view.north", "view.south"};
    QVector<double> bounds;
    for (const QString &side : sides)
        bounds.append(map(side).toDouble());
    const double lastLongitude = number("routeBounds[2]");
    const double lastLatitude = number("routeBounds[1]"); // it goes to the south-east
    const QPoint end((lastLongitude - bounds[0]) / (bounds[1] - bounds[0]) * view->width(),
                     (lastLatitude - bounds[2]) / (bounds[3] - bounds[2]) * view->height());
    QTest::mouseClick(view->focusProxy(), Qt::LeftButton, {}, end);
    QTRY_COMPARE(second(), PairSeconds - 1);
    QCOMPARE(area()->state(), QMediaPlayer::PausedState);
    QCOMPARE(area()->secondPlayer()->player()->position(), qint64(PairSeconds - 1) * 1000);

    area()->seek(5);
    QTRY_COMPARE(second(), 5);
    for (const char *lie : {"20", "-1", "'3'", "1e99", "NaN", "{}", "undefined"}) {
        view->page()->runJavaScript(QStringLiteral("talvorMap.sampleAt = () => %1").arg(lie));
        QSignalSpy clicks(child<MapWebView>("wgt_MapView")->clicks(), &MapClicks::clicked);
        QTest::mouseClick(view->focusProxy(), Qt::LeftButton, {}, end);
        QTRY_COMPARE(clicks.size(), 1);
        map("fits"); // answered behind it
    }
    QCOMPARE(second(), 5);
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
    emit area()->ended(); // at the same time
    click("btn_Next");
    QCoreApplication::processEvents();
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

void tst_Program::clickingTheVeryEndOfAPair()
{
    playPair();
    auto *slider = child<QSlider>("hSlider_Seek");
    QTRY_COMPARE(slider->maximum(), PairSeconds);
    QTest::mouseClick(slider, Qt::LeftButton, {}, QPoint(slider->width() - 1, 7));
    // The row of the rear recording comes next, with the front one beside it.
    QTRY_COMPARE(text("lbl_FileName"), QStringLiteral("MOVB0001.MP4"));
    const QMediaPlayer *second = area()->secondPlayer()->player();
    qint64 secondMs = second->position(); // read before the main one's, not to have passed that
    while (player()->position() == 0) {
        QCOMPARE(secondMs, 0);
        QVERIFY(QSignalSpy(player(), &QMediaPlayer::positionChanged).wait(PatienceMs));
        secondMs = second->position();
    }
    QTRY_VERIFY(second->position() > 0);
    QVERIFY(second->position() < PairSeconds * 1000 / 2);
}

void tst_Program::playsAListToItsEnd()
{
    QList<int> played;
    connect(area(), &PlayAreaManager::positionChanged, mWindow.get(), [&](qint64, int row) {
        if (played.isEmpty() || played.last() != row)
            played.append(row);
    });
    // The last whole second of each begins long before its end.
    connect(area(), &PlayAreaManager::durationChanged, mWindow.get(),
            [&] { mWindow->durationChanged(1999); });
    qint64 lastMs = 0;
    connect(player(), &QMediaPlayer::positionChanged, mWindow.get(), [&](qint64 positionMs) {
        lastMs =
            area()->mainRow() && area()->mainRow()->id == 0 ? qMax(lastMs, positionMs) : lastMs;
    });
    openArguments({path("four.avi"), path("two #2 100%.mp4"), path("three.mp4")});
    QTRY_COMPARE(played.size(), 3);
    QTRY_COMPARE(area()->state(), QMediaPlayer::PlayingState);
    QTRY_COMPARE(area()->state(), QMediaPlayer::StoppedState);
    QCOMPARE(played, QList<int>({0, 1, 2})); // none skipped, none twice
    QVERIFY2(lastMs > 1800, qPrintable(QString::number(lastMs)));
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
    const auto choose = [this](const QString &names) {
        QTimer::singleShot(0, mWindow.get(), [this, names] {
            auto *dialog = mWindow->findChild<QFileDialog *>();
            dialog->setDirectory(mFolder.path());
            dialog->findChild<QLineEdit *>()->setText(names);
            QMetaObject::invokeMethod(dialog, "accept");
        });
        click("btn_OpenFile");
    };
    choose(QStringLiteral("\"one.mp4\" \"three.mp4\" \"MOVB0001.MP4\""));
    QCOMPARE(child<QTableView>("tbl_PlayListView")->model()->rowCount(), 3);
    QCOMPARE(text("lbl_FileName"), QStringLiteral("one.mp4"));
    QCOMPARE(Configuration::GetInstance()->videoFilePath(), mFolder.path());
    QTRY_COMPARE(area()->state(), QMediaPlayer::PlayingState);

    // One that is in the list already, and a new one.
    choose(QStringLiteral("\"three.mp4\" \"four.avi\""));
    QCOMPARE(child<QTableView>("tbl_PlayListView")->model()->rowCount(), 4);
    QCOMPARE(text("lbl_FileName"), QStringLiteral("three.mp4"));
}

/** What the main player is given, but for nothing. */
class LoadedMedia
{
public:
    explicit LoadedMedia(QMediaPlayer *player) : mSpy(player, &QMediaPlayer::mediaChanged) {}

    QStringList names()
    {
        QStringList names;
        for (const QList<QVariant> &arguments : mSpy) {
            const auto media = arguments.first().value<QMediaContent>();
            if (!media.isNull())
                names.append(media.request().url().fileName());
        }
        mSpy.clear();
        return names;
    }

private:
    QSignalSpy mSpy;
};

void tst_Program::quickNextLoadsTheLastOnly()
{
    QStringList names;
    for (int i = 0; i < 12; ++i) {
        names.append(mFolder.filePath(QStringLiteral("copy%1.mp4").arg(i + 10)));
        QFile::copy(path("one.mp4"), names.last());
    }
    LoadedMedia loaded(player());
    QSignalSpy settled(area(), &PlayAreaManager::settled);
    openArguments(names);
    for (int i = 1; i <= 10; ++i) { // the list follows at once
        click("btn_Next");
        QCOMPARE(text("lbl_FileName"), QStringLiteral("copy%1.mp4").arg(i + 10));
        QCOMPARE(child<QTableView>("tbl_PlayListView")->currentIndex().row(), i);
    }
    click("btn_Previous");
    QTRY_VERIFY(player()->position() > 500);
    QCOMPARE(loaded.names(), QStringList({"copy19.mp4"}));
    QVERIFY(!settled.isEmpty()); // what the next one waits for
    // While one is being loaded, the next one waits, and comes when that is unloaded.
    bool wasDisturbed = false;
    bool isLoaded = true;
    const auto look = [&](const QMediaContent &media) {
        wasDisturbed = wasDisturbed || !area()->isSettled() || (isLoaded && !media.isNull());
        isLoaded = !media.isNull();
    };
    connect(player(), &QMediaPlayer::mediaChanged, mWindow.get(), look);
    const auto goOn = [this](QMediaPlayer::MediaStatus status) {
        if (status == QMediaPlayer::LoadingMedia)
            mWindow->previousClicked();
    };
    connect(player(), &QMediaPlayer::mediaStatusChanged, mWindow.get(), goOn, Qt::QueuedConnection);
    mWindow->previousClicked();
    QTRY_COMPARE(text("lbl_FileName"), QStringLiteral("copy10.mp4"));
    QTRY_VERIFY(player()->position() > 500);
    QVERIFY(!wasDisturbed);
}

/** Where the list was stopped does not depend on how quickly it was gone through. */
void tst_Program::stoppingWhileTheNextOneWaits()
{
    const QString last = mFolder.filePath(QStringLiteral("last.mp4"));
    QFile::copy(path("one.mp4"), last);
    openArguments({path("one.mp4"), last});
    QTRY_VERIFY(player()->position() > 0);
    click("btn_Next");
    click("btn_Next"); // past the end of the list, which stops
    QCOMPARE(area()->state(), QMediaPlayer::StoppedState);
    QTRY_COMPARE(area()->mainRow()->id, 1);
    QTRY_COMPARE(player()->mediaStatus(), QMediaPlayer::LoadedMedia);
    QCOMPARE(area()->state(), QMediaPlayer::StoppedState);
    click("btn_Previous");
    QTRY_VERIFY(player()->position() > 0);
    QCOMPARE(text("lbl_FileName"), QStringLiteral("one.mp4"));
}

void tst_Program::startsDoNotNest()
{
    const RowData row;
    PendingStart start(area());
    int depth = 0;
    QVector<int> depths;
    connect(&start, &PendingStart::due, this, [&] {
        depths.append(++depth);
        if (depths.size() < 3)
            start.request(&row);
        QTest::qWait(100);
        --depth;
    });
    start.request(&row);
    QTRY_COMPARE(depths, QVector<int>({1, 1, 1}));
}

void tst_Program::manyDroppedLoadTheLastOnly()
{
    QList<QUrl> urls;
    for (int i = 0; i < 200; ++i) {
        const QString name = mFolder.filePath(QStringLiteral("drop%1.mp4").arg(i));
        QFile::link(path("one.mp4"), name);
        urls.append(QUrl::fromLocalFile(name));
    }
    QMimeData mime;
    mime.setUrls(urls);
    LoadedMedia loaded(player());
    QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(area(), &enter);
    QDropEvent drop(QPointF(9, 9), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(area(), &drop);
    QCOMPARE(text("lbl_FileName"), QStringLiteral("drop199.mp4"));
    QTRY_VERIFY(player()->position() > 0);
    QCOMPARE(loaded.names(), QStringList({"drop199.mp4"}));
}

void tst_Program::showsTheFirstSecondAndForgetsTheLastRecording()
{
    playPair();
    QCOMPARE(text("lbl_GpsDateTime"), dateTimeTextOf(0));
    QCOMPARE(text("lbl_LongitudeAndLatitude"), positionTextOf(0));
    QCOMPARE(child<SpeedTray>("wgt_Speed")->shownSpeed(), 40);
    QCOMPARE(chartLine(3).value(0).x(), 0.0);
    QTRY_COMPARE(map("position"), mapPositionOf(0));
    pauseAt(18);
    QTRY_COMPARE(text("lbl_GpsDateTime"), dateTimeTextOf(18));
    QTest::keyClick(mWindow.get(), Qt::Key_Space);
    QTRY_COMPARE(area()->state(), QMediaPlayer::PlayingState);
    QVERIFY(text("lbl_GpsDateTime") != dateTimeTextOf(0)); // not once more

    openArguments({path("one.mp4")});
    mWindow->onAllGpsDataParserFinished(0, {GpsData()}); // too late
    const auto *compass = static_cast<DirectionTray *>(child<QWidget>("wgt_Direction"));
    for (int i = 0; i < 2; ++i) { // at once, and then, without telemetry
        QCOMPARE(text("lbl_GpsDateTime"), QStringLiteral("0000/00/00 00:00:00"));
        QCOMPARE(text("lbl_LongitudeAndLatitude"), QStringLiteral("N00.000000,E000.000000"));
        QCOMPARE(text("pBtn_SP"), QStringLiteral("000 km/h"));
        QCOMPARE(child<SpeedTray>("wgt_Speed")->shownSpeed(), 0);
        QCOMPARE(compass->headingDeg(), 0);
        QVERIFY(chartLine(0).isEmpty() && chartLine(3).isEmpty());
        if (i == 0)
            QCOMPARE(text("lbl_PlayTime"), QStringLiteral("00:00/00:00"));
        QTRY_VERIFY(player()->position() > 500);
    }
    QCOMPARE(map("position"), QString("null"));
}

void tst_Program::stopResets()
{
    playPair();
    QTRY_VERIFY(second() >= 2);
    emit area()->ended(); // at the same time
    click("btn_Stop");
    QTRY_COMPARE(area()->state(), QMediaPlayer::StoppedState);
    // The backend may report an old position once more, which must not be shown.
    QSignalSpy(area(), &PlayAreaManager::positionChanged).wait(300);
    QCOMPARE(text("lbl_LongitudeAndLatitude"), QStringLiteral("00.000000,000.000000"));
    QCOMPARE(text("pBtn_SP"), QStringLiteral("000 km/h"));
    QCOMPARE(text("lbl_FileName"), QString());
    QCOMPARE(second(), 0);
    const auto *slider = child<QSlider>("hSlider_Seek");
    QTest::mouseClick(child<QWidget>("hSlider_Seek"), Qt::LeftButton, {},
                      QPoint(slider->width() / 2, 7));
    QVERIFY(!slider->isEnabled());
    QCOMPARE(area()->state(), QMediaPlayer::StoppedState);
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
    openArguments({path("letter.mp4"), path("missing.mp4"), path("one.mp4")});
    QCOMPARE(child<QTableView>("tbl_PlayListView")->model()->rowCount(), 2);
    QTRY_VERIFY(area()->mainPlayer()->loader()->hasFailed());
    click("btn_Next");
    QTRY_COMPARE(area()->state(), QMediaPlayer::PlayingState);
    QTRY_VERIFY(player()->position() > 0);
}

QTEST_MAIN(tst_Program)
#include "tst_program.moc"
