// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "computeinfo.h"
#include "configuration.h"
#include "controlpanel.h"
#include "elidedlabel.h"
#include "mainwindows.h"
#include "mapwebview.h"
#include "mediafile.h"
#include "patience.h"
#include "playareamanager.h"
#include "playlistmodel.h"
#include "recordingwriter.h"
#include "screenshotnotice.h"
#include "speedtray.h"

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QSlider>
#include <QStandardPaths>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTestEventLoop>
#include <QTextDocument>
#include <QTimer>
#include <QWebEnginePage>
#include <QWebEngineView>

#include <memory>

namespace {

const QString Title = QStringLiteral("Talvor Player V1.6 20200828");
const QRect DefaultRect(483, 166, 921, 628);

/** What the computer can do. */
struct Capability
{
    bool decodesH265;
    bool decodesH264;
    bool isFast;
};

/** Real input, through the X server and the window manager. */
void xdotool(const QString &arguments)
{
    const int status =
        QProcess::execute(QStringLiteral("xdotool"), arguments.split(QLatin1Char(' ')));
    QVERIFY2(status == 0, qPrintable(arguments));
}

} // namespace

Q_DECLARE_METATYPE(Capability)

/** Frame and title bar of the main window, under a window manager. */
class tst_MainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void restoresGeometry_data();
    void restoresGeometry();
    void confirmsGeometryOnce();
    void staysReachableOnASmallScreen();
    void closingStoresGeometry();
    void maximizes_data();
    void maximizes();
    void minimizes();
    void dragsByAFreeArea();
    void escapeAndEnterLeaveItOpen();
    void titlesAreElided();
    void changingTheLanguage();
    void allLanguagesAndBack();
    void savingSettingsReloadsTheMap_data();
    void savingSettingsReloadsTheMap();
    void changingTheSpeedUnit();
    void showsTheVolume();
    void openingAFolderChangesNothing();
    void screenshotsAreTold();
    void noticesOfScreenshots_data();
    void noticesOfScreenshots();
    void warnsOfLargeRecordings_data();
    void warnsOfLargeRecordings();

private:
    void open();
    template <typename Widget = QWidget>
    Widget *child(const char *name) const
    {
        return mWindow->findChild<Widget *>(QLatin1String(name));
    }

    std::unique_ptr<MainWindows> mWindow;
};

void tst_MainWindow::init()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Quellfern"));
    QCoreApplication::setApplicationName(Title);
    Configuration::GetInstance()->setMainwindowsRect(DefaultRect);
    Configuration::GetInstance()->setMainwindowsIsMaximize(false);
    Configuration::GetInstance()->setMaps(MapBaidu); // which is not waited for
    Configuration::GetInstance()->setLanguage(EnglishUS);
}

void tst_MainWindow::cleanup()
{
    mWindow.reset();
}

void tst_MainWindow::open()
{
    mWindow = std::make_unique<MainWindows>();
    mWindow->show();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get(), PatienceMs));
}

void tst_MainWindow::restoresGeometry_data()
{
    QTest::addColumn<QRect>("stored");
    QTest::addColumn<bool>("maximized");
    QTest::addColumn<QRect>("expected"); // empty: as large as the screen
    QTest::newRow("on the screen") << QRect(50, 60, 1000, 700) << false << QRect(50, 60, 1000, 700);
    QTest::newRow("monitor gone") << QRect(10000, 60, 1000, 700) << false << DefaultRect;
    QTest::newRow("partly to the right")
        << QRect(1100, 60, 980, 700) << false << QRect(620, 60, 980, 700);
    QTest::newRow("beyond the corner")
        << QRect(-300, -200, 1000, 700) << false << QRect(0, 0, 1000, 700);
    QTest::newRow("too large") << QRect(-100, 50, 2000, 1100) << false << QRect(0, 0, 1600, 1000);
    QTest::newRow("maximised") << QRect(50, 60, 1000, 700) << true << QRect();
}

void tst_MainWindow::restoresGeometry()
{
    QFETCH(const QRect, stored);
    QFETCH(const bool, maximized);
    QFETCH(const QRect, expected);
    Configuration::GetInstance()->setMainwindowsRect(stored);
    Configuration::GetInstance()->setMainwindowsIsMaximize(maximized);
    open();
    QCOMPARE(mWindow->isMaximized(), maximized);
    QCOMPARE(child<QPushButton>("pBtn_Maximize")->isChecked(), maximized);
    if (maximized)
        QTRY_COMPARE(mWindow->size(), QSize(1600, 1000));
    else
        QTRY_COMPARE(mWindow->geometry(), expected);
}

/** A window manager may make Qt believe the window to be elsewhere, but later the user moves it. */
void tst_MainWindow::confirmsGeometryOnce()
{
    mWindow = std::make_unique<MainWindows>();
    const QPoint frame(4, 24);
    mWindow->move(DefaultRect.topLeft() + frame);
    mWindow->show();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get(), PatienceMs));
    QTRY_COMPARE(mWindow->geometry(), DefaultRect);

    const QRect moved = DefaultRect.translated(-50, 60);
    mWindow->setGeometry(moved);
    QTRY_COMPARE(mWindow->geometry(), moved);
    mWindow->hide();
    mWindow->show();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get(), PatienceMs));
    QCOMPARE(mWindow->geometry(), moved);
}

void tst_MainWindow::staysReachableOnASmallScreen()
{
    mWindow = std::make_unique<MainWindows>();
    mWindow->setMinimumSize(1700, 1100);
    mWindow->show();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get(), PatienceMs));
    QTRY_COMPARE(mWindow->geometry(), QRect(0, 0, 1700, 1100)); // its title at least
}

void tst_MainWindow::closingStoresGeometry()
{
    open();
    mWindow->setGeometry(120, 90, 1000, 640);
    QTRY_COMPARE(mWindow->geometry(), QRect(120, 90, 1000, 640));
    QTest::mouseClick(child("pBtn_Close"), Qt::LeftButton);
    QVERIFY(!mWindow->isVisible());
    const QSettings file(
        QStandardPaths::standardLocations(QStandardPaths::AppLocalDataLocation).constFirst() +
            QStringLiteral("/configuration.ini"),
        QSettings::IniFormat);
    QCOMPARE(file.value(QStringLiteral("mainwindowsRect")).toRect(), QRect(120, 90, 1000, 640));
    QCOMPARE(file.value(QStringLiteral("mainwindowsIsMaximize")).toBool(), false);
}

void tst_MainWindow::maximizes_data()
{
    QTest::addColumn<bool>("byButton");
    QTest::newRow("button") << true;
    QTest::newRow("double click on the title bar") << false;
}

void tst_MainWindow::maximizes()
{
    QFETCH(const bool, byButton);
    open();
    auto *button = child<QPushButton>("pBtn_Maximize");
    const auto toggle = [&] {
        if (byButton)
            QTest::mouseClick(button, Qt::LeftButton);
        else
            QTest::mouseDClick(child("wgt_Header"), Qt::LeftButton, {}, QPoint(400, 3));
    };
    toggle();
    QTRY_COMPARE(mWindow->geometry(), QRect(0, 0, 1600, 1000));
    QVERIFY(button->isChecked());
    QCOMPARE(button->toolTip(), QStringLiteral("Restore Down"));
    QCOMPARE(button->accessibleName(), button->toolTip());
    toggle();
    QTRY_COMPARE(mWindow->geometry(), DefaultRect);
    QVERIFY(!button->isChecked());
    QCOMPARE(button->toolTip(), QStringLiteral("Maximize"));
}

void tst_MainWindow::minimizes()
{
    open();
    QTest::mouseClick(child("pBtn_Minimize"), Qt::LeftButton);
    QTRY_VERIFY(mWindow->isMinimized());
    mWindow->showNormal();
    QTRY_VERIFY(mWindow->isActiveWindow());
}

void tst_MainWindow::dragsByAFreeArea()
{
    open();
    QTRY_COMPARE(mWindow->geometry(), DefaultRect);
    const QPoint grip = mWindow->geometry().topLeft() + QPoint(500, 20); // in the title bar
    xdotool(QStringLiteral("mousemove %1 %2 mousedown 1").arg(grip.x()).arg(grip.y()));
    QCoreApplication::processEvents();
    xdotool(QStringLiteral("mousemove_relative --sync -- -70 40"));
    QTRY_COMPARE(mWindow->geometry().topLeft(), DefaultRect.topLeft() + QPoint(-70, 40));
    xdotool(QStringLiteral("mouseup 1"));
    QCoreApplication::processEvents();
    xdotool(QStringLiteral("mousemove_relative --sync -- 30 30"));
    QCoreApplication::processEvents();
    QCOMPARE(mWindow->geometry().topLeft(), DefaultRect.topLeft() + QPoint(-70, 40)); // let go
}

void tst_MainWindow::escapeAndEnterLeaveItOpen()
{
    open();
    for (const char *key : {"Escape", "Return", "KP_Enter"})
        xdotool(QStringLiteral("key %1").arg(QLatin1String(key)));
    QCoreApplication::processEvents();
    QVERIFY(mWindow->isVisible());
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_MainWindow::titlesAreElided()
{
    open();
    const auto *label = child<QLabel>("lbl_FileName");
    const QString name = QStringLiteral("A") + QString(300, QLatin1Char('m')) + QStringLiteral("Z");
    mWindow->setTitleFileName(name);
    QVERIFY(label->text().startsWith(QLatin1Char('A')) && label->text().endsWith(QLatin1Char('Z')));
    QVERIFY(label->text().contains(QChar(0x2026)));
    QCOMPARE(label->toolTip(), name);
    QTRY_COMPARE(mWindow->geometry(), DefaultRect); // a long name does not widen the window
    QCOMPARE(child<QLabel>("lbl_Title")->text(), Title);

    const int narrow = label->text().size();
    mWindow->resize(1400, 700);
    QTRY_VERIFY(label->text().size() > narrow);
}

void tst_MainWindow::changingTheLanguage()
{
    open();
    mWindow->setTitleFileName(QStringLiteral("MOVA0001.MP4"));
    QTest::mouseClick(child("pBtn_Maximize"), Qt::LeftButton);
    Configuration::GetInstance()->setMaps(MapGoogle);
    Configuration::GetInstance()->setLanguage(EnglishUK);
    const auto *map = child<MapWebView>("wgt_MapView")->findChild<QWebEngineView *>()->page();
    QTRY_COMPARE(map->requestedUrl().fileName(), QStringLiteral("WG_GoogleMapIndex_en_uk.html"));
    mWindow->resize(1500, 900);
    QCOMPARE(mWindow->windowTitle(), Title);
    QCOMPARE(child<QLabel>("lbl_Title")->text(), Title);
    QCOMPARE(child<QLabel>("lbl_FileName")->text(), QString());
    QCOMPARE(child<QPushButton>("pBtn_Maximize")->toolTip(), QStringLiteral("Restore Down"));
    QCOMPARE(QCoreApplication::applicationVersion(), QStringLiteral("1.0.0.090311"));
}

void tst_MainWindow::allLanguagesAndBack()
{
    open();
    const auto texts = [this] {
        const QAbstractItemModel *playlist = child<QTableView>("tbl_PlayListView")->model();
        return QStringList{child<QPushButton>("pBtn_Close")->toolTip(),
                           child<QPushButton>("btn_Stop")->toolTip(),
                           playlist->headerData(0, Qt::Horizontal).toString()};
    };
    const QStringList english = texts();
    QCOMPARE(english, QStringList({"Close", "Stop", "File Name"}));
    QSet<QStringList> seen;
    for (int language = Chinese; language <= Korean; ++language) {
        Configuration::GetInstance()->setLanguage(Language_e(language));
        seen.insert(texts());
        QCOMPARE(child<QLabel>("lbl_Title")->text(), Title);
        QCOMPARE(QCoreApplication::organizationName(), QStringLiteral("Quellfern"));
    }
    QCOMPARE(seen.size(), 12); // the two kinds of English read the same
    Configuration::GetInstance()->setLanguage(EnglishUS);
    QCOMPARE(texts(), english);
}

void tst_MainWindow::savingSettingsReloadsTheMap_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<int>("maps");
    QTest::addColumn<int>("loads"); // of pages, as the map view logs them
    QTest::addColumn<QString>("page");
    QTest::newRow("nothing") << int(EnglishUS) << int(MapBaidu) << 0 << "BaiduMapIndex.html en-US";
    QTest::newRow("language") << int(German) << int(MapBaidu) << 1 << "BaiduMapIndex.html de";
    QTest::newRow("map") << int(EnglishUS) << int(MapGoogle) << 1
                         << "WG_GoogleMapIndex_en_talvor.html en";
    QTest::newRow("both") << int(French) << int(MapGoogle) << 1 << "WG_GoogleMapIndex_fr.html fr";
    QTest::newRow("another country's")
        << int(EnglishUK) << int(MapOpenStreetMap) << 1 << "OpenStreetMap.html en-GB";
}

void tst_MainWindow::savingSettingsReloadsTheMap()
{
    QFETCH(int, language);
    QFETCH(int, maps);
    open();
    QWebEnginePage *shown = mWindow->findChild<QWebEngineView *>()->page();
    const auto pageTold = [shown](const QString &question) {
        const auto answer = std::make_shared<QString>(); // which may come too late
        shown->runJavaScript(question, [answer](const QVariant &value) {
            *answer = value.toString();
            QTestEventLoop::instance().exitLoop();
        });
        QTestEventLoop::instance().enterLoop(5); // QTest::qWait() starves the web engine
        return *answer;
    };
    const QString question =
        QStringLiteral("document.readyState + ' ' + location.pathname.split('/').pop() + ' ' + "
                       "document.documentElement.lang");
    QTRY_VERIFY(pageTold(question).startsWith("complete BaiduMapIndex.html"));
    static int loads;
    loads = 0;
    const auto before =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &line) {
            loads += line.contains("SetMapType", Qt::CaseInsensitive) ? 1 : 0;
        });
    QTimer::singleShot(0, mWindow.get(), [language, maps] {
        QWidget *dialog = QApplication::activeModalWidget();
        dialog->findChild<QComboBox *>("cBox_Language")->setCurrentIndex(language);
        dialog->findChild<QComboBox *>("cBox_Maps")->setCurrentIndex(maps);
        QTest::mouseClick(dialog->findChild<QPushButton *>("pBtn_OK"), Qt::LeftButton);
    });
    QTest::mouseClick(child("pBtn_Step"), Qt::LeftButton);
    QCOMPARE(Configuration::GetInstance()->language(), Language_e(language));
    QCOMPARE(Configuration::GetInstance()->maps(), MapTypes(maps));
    QFETCH(QString, page);
    QString told;
    const auto isComplete = [&] { return (told = pageTold(question)) == "complete " + page; };
    const bool isShown = QTest::qWaitFor(isComplete, PatienceMs);
    qInstallMessageHandler(before);
    QVERIFY2(isShown, qPrintable(told));
    QTEST(loads, "loads");
}

void tst_MainWindow::changingTheSpeedUnit()
{
    open();
    const auto *bar = child<QLabel>("pBtn_SP");
    auto *gauge = child<SpeedTray>("wgt_Speed");
    child<ControlPanel>("wgt_ControlPanel")->setGpsSpeed(100);
    gauge->setSpeed(100);
    for (const int unit : {1, 0}) {
        QTimer::singleShot(0, mWindow.get(), [unit] {
            QWidget *dialog = QApplication::activeModalWidget();
            dialog->findChild<QComboBox *>("cBox_SpeedUnit")->setCurrentIndex(unit);
            QTest::mouseClick(dialog->findChild<QPushButton *>("pBtn_OK"), Qt::LeftButton);
        });
        QTest::mouseClick(child("pBtn_Step"), Qt::LeftButton);
        QCOMPARE(Configuration::GetInstance()->speedUnit(), unit);
        QCOMPARE(bar->text(), unit == 1 ? QString("062 MPH") : QString("100 km/h"));
        QCOMPARE(gauge->speedText(), unit == 1 ? QString("62 MPH") : QString("100 km/h"));
        QCOMPARE(gauge->needleAngleDeg(), unit == 1 ? -59 : -13);
    }
}

/** On a logarithmic scale: 1 - 100^-v for a volume v of 1. */
void tst_MainWindow::showsTheVolume()
{
    open();
    const auto *slider = child<QSlider>("hSlider_Volume");
    QCOMPARE(slider->value(), 99);
    child<PlayAreaManager>("wgt_PlayArea")->setVolume(20);
    QTRY_COMPARE(slider->value(), 60);
}

void tst_MainWindow::openingAFolderChangesNothing()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkpath("CARD.MP4"));
    Configuration::GetInstance()->setVideoFilePath(QDir::rootPath());
    open();
    QTimer::singleShot(0, mWindow.get(), [&] {
        auto *dialog = mWindow->findChild<QFileDialog *>();
        dialog->setFileMode(QFileDialog::Directory); // some desktops' dialogs give folders as well
        dialog->findChild<QLineEdit *>()->setText(folder.filePath("CARD.MP4"));
        QMetaObject::invokeMethod(dialog, "accept");
    });
    QTest::mouseClick(child("btn_OpenFile"), Qt::LeftButton);
    QCOMPARE(child<QTableView>("tbl_PlayListView")->model()->rowCount(), 0);
    QCOMPARE(Configuration::GetInstance()->videoFilePath(), QDir::rootPath());
}

void tst_MainWindow::screenshotsAreTold()
{
    const QTemporaryDir folder;
    const QString recording = folder.filePath("ride.mp4");
    QVERIFY(makeMediaFile(recording, 20));
    const QDir shots(folder.filePath("<b>shots"));
    Configuration::GetInstance()->setScreenshotSavePath(shots.path());
    open();
    mWindow->openRecordings({QUrl::fromLocalFile(recording)});
    QTRY_COMPARE(child<ControlPanel>("wgt_ControlPanel")->state(), QMediaPlayer::PlayingState);
    const auto *label = child<QLabel>("lbl_FileName");
    QTest::mouseClick(child("btn_ScreenShot"), Qt::LeftButton);
    QTRY_VERIFY(label->text().startsWith("Screenshot saved: "));
    const QStringList images = shots.entryList(QDir::Files);
    QCOMPARE(images.size(), 1);
    QTextDocument toolTip;
    toolTip.setHtml(label->toolTip());
    QCOMPARE(toolTip.toPlainText(), "Screenshot saved: " + shots.filePath(images.first()));
    QTRY_COMPARE(label->text(), QStringLiteral("ride.mp4"));
    QCOMPARE(label->toolTip(), QString());

    Configuration::GetInstance()->setScreenshotSavePath(recording + "/below");
    QTest::mouseClick(child("btn_ScreenShot"), Qt::LeftButton);
    QTRY_VERIFY(label->text().startsWith("No screenshot: "));
    QVERIFY2(!label->toolTip().contains("saved"), "by the request before");
    Configuration::GetInstance()->setLanguage(EnglishUK);
    QCOMPARE(label->text(), QString());
}

void tst_MainWindow::noticesOfScreenshots_data()
{
    QTest::addColumn<QVector<ScreenshotResult>>("results"); // of two cameras
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("details");
    const ScreenshotResult front{ScreenshotResult::Saved, "/shots/front.jpeg"};
    const ScreenshotResult rear{ScreenshotResult::Saved, "/shots/rear.jpeg"};
    const ScreenshotResult noRear{ScreenshotResult::NoImage, "/shots/rear.jpeg"};
    const ScreenshotResult noTool{ScreenshotResult::NoTool, "/bin/ffmpeg"};
    const QString frontSaved = "Screenshot saved: /shots/front.jpeg";
    const QString notWritten = "No screenshot: /shots/rear.jpeg could not be written";
    QTest::newRow("both") << QVector<ScreenshotResult>{front, rear} << "Screenshots saved in /shots"
                          << frontSaved + "\nScreenshot saved: /shots/rear.jpeg";
    QTest::newRow("one failed") << QVector<ScreenshotResult>{noRear, front} << notWritten
                                << notWritten + "\n" + frontSaved;
    QTest::newRow("both failed") << QVector<ScreenshotResult>{noTool, noTool}
                                 << "No screenshot: the program /bin/ffmpeg is missing"
                                 << "";
}

void tst_MainWindow::noticesOfScreenshots()
{
    QFETCH(QVector<ScreenshotResult>, results);
    ElidedLabel label;
    label.resize(800, 30);
    label.setFullText("ride.mp4", QFont());
    ScreenshotNotice notice(&label);
    for (int request = 0; request < 2; ++request) { // each by itself
        notice.begin();
        for (const ScreenshotResult &result : qAsConst(results))
            notice.tell(result);
        QTEST(label.text(), "text");
        QTEST(label.toolTip(), "details");
    }
    label.setFullText("next.mp4", QFont());
    QCOMPARE(label.text(), QStringLiteral("next.mp4"));
}

void tst_MainWindow::warnsOfLargeRecordings_data()
{
    QTest::addColumn<QByteArray>("coding");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<Capability>("capability");
    QTest::addColumn<QString>("warning"); // what it ends with; empty for none
    const QSize large(3840, 2160);
    const Capability none{false, false, false};
    QTest::newRow("large H.265") << QByteArray("hvc1") << large << none << "H.265 (HEVC).";
    QTest::newRow("large H.264") << QByteArray("avc1") << large << none << "H.264 (AVC).";
    QTest::newRow("large, other") << QByteArray("vp09") << large << none << "";
    QTest::newRow("four million") << QByteArray("hvc1") << QSize(2500, 1600) << none << "";
    QTest::newRow("one more") << QByteArray("hvc1") << QSize(3809, 1051) << none
                              << "H.265 (HEVC)."; // 4003259
    QTest::newRow("capable") << QByteArray("hvc1") << large << Capability{true, false, true} << "";
    QTest::newRow("of the other") << QByteArray("avc1") << large << Capability{true, false, true}
                                  << "H.264 (AVC).";
    QTest::newRow("weak processor")
        << QByteArray("hvc1") << large << Capability{true, true, false} << "H.265 (HEVC).";
}

void tst_MainWindow::warnsOfLargeRecordings()
{
    QFETCH(QByteArray, coding);
    QFETCH(QSize, size);
    QFETCH(Capability, capability);
    QFETCH(QString, warning);
    ComputeInfo *computer = ComputeInfo::GetInstance();
    computer->isHDDecodeH265 = capability.decodesH265;
    computer->isHDDecodeH264 = capability.decodesH264;
    computer->mCpuLevelH = capability.isFast;
    computer->hardwareInfo = QStringLiteral("Some Graphics 4000");
    const QTemporaryDir folder;
    RecordingWriter writer;
    writer.tracks = {Mp4::videoTrack(quint16(size.width()), quint16(size.height()), 300, coding)};
    QVERIFY(writer.save(folder.filePath("large.mp4")));
    open();
    mWindow->openRecordings({QUrl::fromLocalFile(folder.filePath("large.mp4"))});
    const auto *model =
        static_cast<const PlaylistModel *>(child<QTableView>("tbl_PlayListView")->model());
    QTRY_COMPARE(model->getVideoSize(0), size);

    QString text;
    QString title;
    QTimer box;
    connect(&box, &QTimer::timeout, this, [&] {
        auto *shown = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!shown)
            return;
        text = shown->text();
        title = shown->windowTitle();
        shown->accept();
    });
    box.start(20);
    QCOMPARE(mWindow->isSuportH264orH265(0), warning.isEmpty());
    QVERIFY2(warning.isEmpty() ? text.isEmpty() : text.endsWith(warning), qPrintable(text));
    QCOMPARE(title, warning.isEmpty() ? QString() : QStringLiteral("Error Some Graphics 4000"));
}

QTEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
