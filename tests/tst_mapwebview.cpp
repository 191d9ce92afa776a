// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "configuration.h"
#include "gpsuser.h"
#include "mapwebview.h"
#include "patience.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QDesktopWidget>
#include <QDialog>
#include <QKeyEvent>
#include <QLockFile>
#include <QMimeData>
#include <QProcess>
#include <QRegularExpression>
#include <QScreen>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>
#include <QVBoxLayout>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineView>
#include <QWindow>

namespace {

/** Notes the texts of the calls, and makes them. */
class ListeningMap : public MapWebView
{
public:
    using MapWebView::MapWebView;
    QStringList calls;

protected:
    void runScript(const QString &call) override
    {
        calls.append(call);
        MapWebView::runScript(call);
    }
};

/** Lets nothing leave the machine, and keeps what was asked of the providers. */
class Providers : public QWebEngineUrlRequestInterceptor
{
public:
    void interceptRequest(QWebEngineUrlRequestInfo &info) override
    {
        const QUrl url = info.requestUrl();
        info.block(!url.isLocalFile());
        if (url.host().contains("googleapis") || url.host().contains("baidu"))
            asked.append(url);
    }

    QList<QUrl> asked;
};

/** What the page answers. */
QString answerOf(QWebEnginePage *page, const QString &expression)
{
    const auto answer = std::make_shared<QString>(); // which may come too late
    page->runJavaScript(expression, [answer](const QVariant &value) {
        *answer = value.toString();
        QTestEventLoop::instance().exitLoop();
    });
    QTestEventLoop::instance().enterLoop(15); // QTest::qWait() starves the web engine
    return *answer;
}

QString keyFile()
{
    return Configuration::directory() + "/mapkeys.ini";
}

/** A window with shortcuts. */
class Window : public QDialog
{
public:
    int spaces = 0;

protected:
    void keyPressEvent(QKeyEvent *event) override { spaces += event->key() == Qt::Key_Space; }
    void closeEvent(QCloseEvent *event) override { event->accept(); }
};

QElapsedTimer startedTimer()
{
    QElapsedTimer timer;
    timer.start();
    return timer;
}

QString outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(PatienceMs) || process.exitCode() != 0)
        qWarning() << program << arguments << process.errorString();
    return QString::fromLocal8Bit(process.readAllStandardOutput());
}

bool isOnScreen(const QWidget *window)
{
    return outputOf("xwininfo", {"-id", QString::number(window->winId())}).contains("IsViewable");
}

/** Clicks and types as a user. */
void useMouseAt(QPoint place, const QStringList &commands)
{
    const QStringList move{"mousemove", QString::number(place.x()), QString::number(place.y())};
    outputOf("xdotool", move + commands);
}

void setLanguage(int language)
{
    Configuration::GetInstance()->setLanguage(Language_e(language));
}

} // namespace

/** The map view in a window of its own, under a window manager, with the program's own pages. */
class TestMapWebView : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void pages_data();
    void pages();
    void callTexts();
    void tracksAndProviders();
    void pageChangesUnderATrack();
    void longTracksLetOthersBefore();
    void comesBackWhenThePageDies();
    void comesBackWhenAScriptLeaves();
    void newPagesAreToldOfMissingTelemetry();
    void callsWaitForThePage();
    void callsWaitForTheLastOfTwoPages();
    void followsItsPlace();
    void keepsToTheScreen_data();
    void keepsToTheScreen();
    void comesBackWithItsWindow();
    void bringsItsWindowToTheFront();
    void neverFlashes();
    void leavesKeyboardAndProgramAlone();
    void eachPageGetsItsOwnKey_data();
    void eachPageGetsItsOwnKey();
    void newKeysCountAtOnce();
    void copiesThePathOfTheKeys();
    void tellsServersWhoAsks();
    void opensLinksInTheBrowser();
    void offersNothingOfABrowser();
    void oneProgramHasTheCache();
    void openInBrowser(const QUrl &url) { mOpened.append(url.toString()); }

private:
    QRect place() const;
    QString stateOf(const QString &expression);
    void waitForPage();
    void writeKeys(const QByteArray &lines);

    Providers mProviders;
    std::unique_ptr<Window> mWindow;
    ListeningMap *mMap = nullptr;
    QStringList mOpened;
    QWebEngineView *mView = nullptr;
};

void TestMapWebView::init()
{
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    setLanguage(EnglishUS);
    Configuration::GetInstance()->setMaps(MapOpenStreetMap);
    QFile::remove(keyFile());
    mWindow = std::make_unique<Window>();
    mMap = new ListeningMap(mWindow.get());
    (new QVBoxLayout(mWindow.get()))->addWidget(mMap);
    mView = mMap->findChild<QWebEngineView *>();
    connect(Configuration::GetInstance(), &Configuration::mapsChanged, mMap,
            &MapWebView::setMapType);
}

void TestMapWebView::cleanup()
{
    mWindow.reset();
}

/** Where the web view has to lie on the screen. */
QRect TestMapWebView::place() const
{
    return QRect(mMap->mapToGlobal(QPoint(0, 0)), mMap->size());
}

QString TestMapWebView::stateOf(const QString &expression)
{
    return answerOf(mView->page(), expression);
}

/** Until it shows a map. */
void TestMapWebView::waitForPage()
{
    QTRY_COMPARE(stateOf("String(window.talvorMap && talvorMap.state().frames > 0)"),
                 QString("true"));
}

void TestMapWebView::pages_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("page");
    const char *const google[] = {"zh_CN", "zh_TW", "en_talvor", "en_uk", "fr", "it", "ja",
                                  "pl",    "ru",    "de",        "es",    "pt", "ko"};
    for (int language = 0; language < 13; ++language)
        QTest::addRow("Google in %s", google[language])
            << 1 << language << QStringLiteral("WG_GoogleMapIndex_%1.html").arg(google[language]);
    QTest::newRow("Google in no language") << 1 << 99 << "WG_GoogleMapIndex_en.html";
    QTest::newRow("Baidu") << 0 << 4 << "BaiduMapIndex.html";
    QTest::newRow("unknown") << 7 << 4 << "OpenStreetMap.html"; // the page stays
}

void TestMapWebView::pages()
{
    QFETCH(int, type);
    QFETCH(int, language);
    QFETCH(QString, page);
    setLanguage(language);
    mMap->setMapType(MapTypes(type));
    const QUrl url = QUrl::fromLocalFile(QCoreApplication::applicationDirPath() + "/maps/" + page);
    QCOMPARE(mView->page()->requestedUrl(), url);
    QVERIFY2(QFileInfo(url.toLocalFile()).isFile(), "The build has not made this page");
    QVERIFY(mMap->calls.isEmpty());
}

void TestMapWebView::callTexts()
{
    mMap->addPoint({7, 8.5, -33.1234567});
    mMap->clearAll();
    const struct
    {
        int language;
        const char *call;
    } centres[] = {{0, "showMapCenter(116.375, 39.9);"},
                   {2, "showMapCenter(151.215, -33.8567);"},
                   {3, "showMapCenter(-0.126772, 51.5088);"},
                   {99, "showMapCenter(-74.0135, 40.7056);"}};
    QStringList expected{"mapAddPoint(8.500000, -33.123457, 7);", "mapClearAll();"};
    for (const auto &centre : centres) {
        setLanguage(centre.language);
        mMap->setMapType(MapOpenStreetMap);
        expected.append(centre.call);
    }
    QCOMPARE(mMap->calls, expected);
}

void TestMapWebView::tracksAndProviders()
{
    const QVector<QVector<double>> track{{11.5, 48.25}, {0, 0}};
    const QStringList trackCalls{"loadAllGpsDataOfVideo(11.500000, 48.250000, 0, 2)",
                                 "loadAllGpsDataOfVideo(0.000000, 0.000000, 1, 2)"};
    Configuration::GetInstance()->setMaps(MapGoogle);
    mMap->loadAllGpsData(track); // kept for OpenStreetMap
    mMap->setUserData(GPS_USER_DATA_ID, new GPSUser(3, track));
    QCOMPARE(mMap->calls, QStringList());

    Configuration::GetInstance()->setMaps(MapOpenStreetMap);
    const QStringList again = QStringList{"showMapCenter(151.215, -33.8567);", "mapClearAll()"};
    QCOMPARE(mMap->calls, again + trackCalls);

    mMap->calls.clear();
    mMap->loadAllGpsData({});
    mMap->loadAllGpsData(track);
    QCOMPARE(mMap->calls, trackCalls);

    mMap->calls.clear();
    QTimer::singleShot(100, mMap, &MapWebView::clearAll);
    mMap->loadAllGpsData(track); // cleared before it was sent
    QCOMPARE(mMap->calls, QStringList{"mapClearAll();"});
}

/** A long track lets events pass. The page that has come with them gets all of it. */
void TestMapWebView::pageChangesUnderATrack()
{
    constexpr int count = 6000;
    mMap->clearAll();
    mMap->calls.clear();
    QTimer reload;
    connect(&reload, &QTimer::timeout, mMap, [&] {
        if (mMap->calls.isEmpty())
            return;
        reload.stop();
        mMap->setMapType(MapOpenStreetMap);
    });
    reload.start(0);
    mMap->loadAllGpsData(QVector<QVector<double>>(count, {11.5, 48.25}));

    const QString centre = "showMapCenter(151.215, -33.8567);";
    const int reloadedAt = mMap->calls.indexOf(centre);
    QVERIFY2(reloadedAt > 0 && reloadedAt < count, qPrintable(QString::number(reloadedAt)));
    QCOMPARE(mMap->calls.size(), reloadedAt + 1 + count);
    QCOMPARE(mMap->calls.at(reloadedAt + 1),
             QString("loadAllGpsDataOfVideo(11.500000, 48.250000, 0, 6000)"));
}

/** While a long track is sent, the page is only little behind, so that live points come at once. */
void TestMapWebView::longTracksLetOthersBefore()
{
    constexpr int count = 20000;
    mWindow->show();
    QTRY_COMPARE(
        stateOf("loadAllGpsDataOfVideo = () => { window.n = (window.n || 0) + 1; }; 'set'"),
        QString("set"));
    mMap->calls.clear();
    int received = 0;
    int furthestBehind = 0;
    int turns = 0;
    QTimer probe; // one question at a time, which waits behind the calls like a live point
    connect(&probe, &QTimer::timeout, mMap, [&] {
        probe.stop();
        turns += !mMap->calls.isEmpty() && mMap->calls.size() < count;
        const int sent = mMap->calls.size();
        mView->page()->runJavaScript("window.n || 0", [&, sent](const QVariant &n) {
            received = n.toInt();
            furthestBehind = qMax(furthestBehind, mMap->calls.size() - sent);
            if (received < count)
                probe.start(1);
        });
    });
    probe.start(1);
    mMap->loadAllGpsData(QVector<QVector<double>>(count, {11.5, 48.25}));
    QTRY_COMPARE(received, count);
    QCOMPARE(mMap->calls.size(), count);
    QVERIFY(turns > 10);
    QVERIFY2(furthestBehind < count / 5, qPrintable(QString::number(furthestBehind)));
}

void TestMapWebView::comesBackWhenThePageDies()
{
    const QVector<QVector<double>> track{{11.5, 48.25}, {11.5001, 48.2501}};
    const QString lastCall = "loadAllGpsDataOfVideo(11.500100, 48.250100, 1, 2)";
    const QUrl death("chrome://crash/");
    mWindow->resize(320, 280);
    mWindow->show();
    mMap->loadAllGpsData(track);
    mMap->setUserData(GPS_USER_DATA_ID, new GPSUser(3, track));
    int died = 0;
    connect(mView->page(), &QWebEnginePage::renderProcessTerminated, mMap, [&died] { ++died; });
    for (int deaths = 1; deaths <= 3; ++deaths) {
        mMap->calls.clear();
        mView->page()->load(death);
        QTRY_COMPARE(mMap->calls.value(mMap->calls.size() - 1), lastCall);
        mMap->addPoint({deaths, 11.6, 48.2});
        QTRY_COMPARE(stateOf("JSON.stringify(talvorMap.state().position)"), QString("[11.6,48.2]"));
        QCOMPARE(stateOf("String(talvorMap.state().routePoints)"), QString("2"));
        QCOMPARE(died, deaths);
    }
    mView->page()->load(death); // that is enough
    QTRY_COMPARE(died, 4);
    mMap->calls.clear();
    QTestEventLoop::instance().enterLoopMSecs(100);
    QCOMPARE(mView->page()->requestedUrl(), death);
    QCOMPARE(mMap->calls, QStringList());

    mMap->setMapType(MapOpenStreetMap);
    QTRY_COMPARE(stateOf("String(talvorMap.state().routePoints)"), QString("2"));
}

void TestMapWebView::newPagesAreToldOfMissingTelemetry()
{
    const auto line = [this] { return stateOf("window.talvorMap && talvorMap.state().empty"); };
    mMap->setTelemetryMissing(true);
    setLanguage(German);
    mMap->setMapType(MapOpenStreetMap);
    QTRY_COMPARE(line(), QString("Keine Telemetriedaten in dieser Aufnahme"));
    mMap->clearAll(); // of a drive, which there is none of
    setLanguage(French);
    mMap->setMapType(MapGoogle);
    QTRY_COMPARE(line(), QString("Aucune donnée de télémétrie dans cet enregistrement"));
    mMap->setTelemetryMissing(false);
    QTRY_COMPARE(line(), QString());
}

void TestMapWebView::comesBackWhenAScriptLeaves()
{
    mWindow->resize(320, 280);
    mWindow->show();
    waitForPage();
    const QUrl page = mView->url();
    QSignalSpy urls(mView, &QWebEngineView::urlChanged);
    mView->page()->runJavaScript("location.hash = 'still-there'");
    QTRY_COMPARE(urls.size(), 1);
    mView->page()->runJavaScript("window.isOld = true; location.href = 'about:blank'");
    QTRY_VERIFY(urls.contains({QUrl("about:blank")}));
    QTRY_COMPARE(mView->url(), page);
    waitForPage();
    QCOMPARE(stateOf("String(window.isOld)"), QString("undefined"));
}

void TestMapWebView::callsWaitForThePage()
{
    mWindow->resize(320, 280);
    mWindow->show();
    // Within the wait for the page; the point before it belongs to the page before.
    mMap->addPoint({1, 11.4, 48.1});
    QTimer::singleShot(0, mMap, [this] { mMap->addPoint({5, 11.5, 48.2}); });
    mMap->setMapType(MapOpenStreetMap);
    QTRY_COMPARE(stateOf("JSON.stringify(talvorMap.state().position)"), QString("[11.5,48.2]"));
    QCOMPARE(stateOf("talvorMap.state().drivenPoints"), QString("1"));
}

/** The web engine then reports one end of loading for both, sometimes too early. */
void TestMapWebView::callsWaitForTheLastOfTwoPages()
{
    for (int gapMs = 0; gapMs < 20; ++gapMs) {
        QElapsedTimer sinceFirst;
        sinceFirst.start();
        mMap->setMapType(MapBaidu);
        while (sinceFirst.elapsed() < gapMs)
            QCoreApplication::processEvents();
        mMap->setMapType(MapGoogle);
        for (int id = 0; id < 100; ++id) {
            mMap->addPoint({id, 11.5, 48.2});
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents,
                                            1);
        }
        // Without a key, the page itself holds the calls that reach it.
        QString held;
        for (int attempt = 0; attempt < 2000 && held != "100"; ++attempt) {
            QTestEventLoop::instance().enterLoopMSecs(20);
            held = stateOf("String(talvorMap.state().held)");
        }
        QCOMPARE(held, QString("100"));
    }
}

void TestMapWebView::followsItsPlace()
{
    QCOMPARE(int(mView->windowFlags()), 0x80B);
    mWindow->setGeometry(100, 120, 320, 280);
    mWindow->show();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get(), PatienceMs));
    QTRY_VERIFY(mView->isVisible());
    QTRY_COMPARE(mView->geometry(), place());
    mWindow->move(300, 200);
    QTRY_COMPARE(mView->geometry(), place());
    mWindow->resize(500, 400);
    QTRY_COMPARE(mView->geometry(), place());
    mWindow->showMaximized();
    QTRY_VERIFY(mMap->width() > 1000);
    QTRY_COMPARE(mView->geometry(), place());
    mWindow->showNormal();
    QTRY_VERIFY(mMap->width() < 1000);
    QTRY_COMPARE(mView->geometry(), place());

    mMap->setWebViewVisible(false);
    QCOMPARE(mView->geometry(), QRect(0, QApplication::desktop()->height(), 1, 1));
    QVERIFY(mView->isVisible());
    mMap->setWebViewVisible(true);
    QCOMPARE(mView->geometry(), place());
    mMap->hide();
    QVERIFY(!mView->isVisible());
    mMap->show();
    QTRY_VERIFY(mView->isVisible());
}

void TestMapWebView::keepsToTheScreen_data()
{
    QTest::addColumn<QPoint>("offset"); // of the place's corner from the screen's
    QTest::newRow("out at the left") << QPoint(-200, 300);
    QTest::newRow("out at the right") << QPoint(1500, 300);
    QTest::newRow("out at the bottom") << QPoint(300, 900);
    QTest::newRow("hardly in at the left") << QPoint(-293, 300);
    QTest::newRow("hardly in at the bottom") << QPoint(300, 988);
    QTest::newRow("on no screen") << QPoint(1601, 300);
}

/** Window managers would push what is nearly out of sight back into it. */
void TestMapWebView::keepsToTheScreen()
{
    QFETCH(QPoint, offset);
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    QCOMPARE(screen, QRect(0, 0, 1600, 1000));
    mMap->setFixedSize(300, 250);
    mWindow->layout()->setContentsMargins(300, 20, 300, 20); // what stays in sight
    mWindow->setGeometry(100, 120, 900, 290);
    mWindow->show();
    QTRY_VERIFY(isOnScreen(mView));
    QCOMPARE(mView->geometry(), place());
    const QRect wanted = QRect(offset, mMap->size()) & screen;

    mWindow->move(mWindow->pos() + offset - place().topLeft());
    QTRY_COMPARE(place().topLeft(), offset);
    if (wanted.width() < 20 || wanted.height() < 20) {
        QTRY_VERIFY(!mView->isVisible());
        mMap->hide();
        mMap->show();
        QVERIFY(!mView->isVisible());
    } else {
        QTRY_COMPARE(mView->geometry(), wanted);
        QVERIFY(mView->isVisible());
    }
    mWindow->move(100, 120);
    QTRY_VERIFY(mView->isVisible());
    QTRY_COMPARE(mView->geometry(), place());
}

/** The window manager minimises and restores both together. */
void TestMapWebView::comesBackWithItsWindow()
{
    mWindow->setGeometry(100, 120, 320, 280);
    mWindow->show();
    QTRY_VERIFY(isOnScreen(mView));
    const QString window = QString::number(mWindow->winId());
    for (int i = 0; i < 4; ++i) {
        outputOf("xdotool", {"windowminimize", window});
        QTRY_VERIFY(mWindow->isMinimized() && !isOnScreen(mView));
        outputOf("xdotool", {"windowmap", window});
        QTRY_VERIFY(!mWindow->isMinimized() && isOnScreen(mWindow.get()) && isOnScreen(mView));
        QTRY_COMPARE(mView->geometry(), place());
    }
}

void TestMapWebView::bringsItsWindowToTheFront()
{
    mWindow->setGeometry(100, 120, 320, 280);
    mWindow->show();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get(), PatienceMs));
    QTRY_VERIFY(isOnScreen(mView));
    QWidget cover;
    cover.setGeometry(mWindow->geometry().translated(0, 150));
    cover.show();
    QVERIFY(QTest::qWaitForWindowActive(&cover, PatienceMs));
    const auto stacking = [] { return outputOf("xprop", {"-root", "_NET_CLIENT_LIST_STACKING"}); };
    const auto isAbove = [&stacking](const QWidget &upper, const QWidget &lower) {
        const QString ids = stacking();
        const auto at = [&ids](WId id) { return ids.indexOf(QString::number(id, 16)); };
        return at(upper.winId()) > at(lower.winId());
    };
    QTRY_VERIFY(isAbove(cover, *mView) && isAbove(*mView, *mWindow));

    useMouseAt(place().topLeft() + QPoint(100, 20), {"click", "1"});
    QTRY_VERIFY(isAbove(*mView, *mWindow) && isAbove(*mWindow, cover));
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get(), PatienceMs));
}

/** The page is dark, and so is what can be seen before there is a page. */
void TestMapWebView::neverFlashes()
{
    mWindow->setStyleSheet("background: black");
    mWindow->setGeometry(100, 120, 320, 280);
    mWindow->show();
    QTRY_COMPARE(mView->geometry(), place());
    const QRect middle(place().center(), QSize(1, 1));
    QSet<QRgb> colours;
    for (int page = 0; page < 2; ++page) {
        for (QElapsedTimer shown = startedTimer(); shown.elapsed() < 1000;) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
            const QPixmap grab =
                QGuiApplication::primaryScreen()->grabWindow(0, middle.x(), middle.y(), 1, 1);
            colours.insert(grab.toImage().pixel(0, 0));
        }
        mMap->setMapType(MapGoogle);
    }
    for (const QRgb colour : colours)
        QVERIFY2(qGray(colour) < 128, qPrintable(QColor(colour).name()));
    QVERIFY(colours.contains(qRgb(37, 37, 40)));
}

void TestMapWebView::leavesKeyboardAndProgramAlone()
{
    mWindow->setGeometry(100, 120, 320, 280);
    mWindow->show();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get(), PatienceMs));
    QTRY_VERIFY(mView->isVisible());
    useMouseAt(place().center(), {"click", "1", "key", "space"});
    QTRY_COMPARE(mWindow->spaces, 1);
    const QStringList ofView{"-id", QString::number(mView->winId()), "WM_HINTS"};
    QVERIFY(outputOf("xprop", ofView).contains("accepts input or input focus: False"));

    QTimer::singleShot(0, mWindow.get(), &QWidget::close);
    QTimer tooLate; // gone with this test: after an exit, no other event loop runs
    connect(&tooLate, &QTimer::timeout, this, [] { QCoreApplication::exit(1); });
    tooLate.start(5000);
    QCOMPARE(QCoreApplication::exec(), 0); // ended by the last window
    QVERIFY(!mView->isVisible());
}

void TestMapWebView::writeKeys(const QByteArray &lines)
{
    QFile file(keyFile());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(lines) == lines.size());
}

void TestMapWebView::eachPageGetsItsOwnKey_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("page");
    QTest::addColumn<QStringList>("seen");
    QTest::newRow("Google") << 1 << "WG_GoogleMapIndex_en_talvor.html"
                            << QStringList{"file", keyFile(), "google", "G</script>'\"\\%1\"};z"};
    QTest::newRow("Baidu") << 0 << "BaiduMapIndex.html"
                           << QStringList{"baidu", "B-key", "file", keyFile()};
    QTest::newRow("OpenStreetMap") << 2 << "OpenStreetMap.html" << QStringList();
    QTest::newRow("another than was loaded") << 1 << "BaiduMapIndex.html" << QStringList();
}

/** Before its own scripts run, and none in it. */
void TestMapWebView::eachPageGetsItsOwnKey()
{
    QFETCH(int, type);
    QFETCH(QString, page);
    writeKeys("google=G</script>'\"\\%1\"};z\nbaidu=B-key\n");
    mView->page()->setUrlRequestInterceptor(&mProviders);
    for (const MapTypes before : {MapGoogle, MapBaidu})
        mMap->setMapType(before);
    mMap->setMapType(MapTypes(type));

    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir("maps"));
    QFile probe(folder.filePath("maps/" + page));
    QVERIFY(probe.open(QIODevice::WriteOnly));
    probe.write(
        "<script>"
        "const own = JSON.stringify(Object.entries(window.talvorMapKeys || {}).sort().flat());"
        "const frames = [];"
        "window.onmessage = ({ data }) => frames.push(data);"
        "if (parent !== window)"
        "    parent.postMessage(own, '*');"
        "else"
        "    document.write(`<iframe src=\"${location.href}\"></iframe>`);"
        "</script>");
    probe.close();
    QWebEngineProfile profile;
    QWebEnginePage other(&profile);
    other.scripts().insert(mView->page()->scripts().toList());
    QSignalSpy loaded(&other, &QWebEnginePage::loadFinished);
    other.load(QUrl::fromLocalFile(probe.fileName()));
    QVERIFY(loaded.wait());
    const QByteArray own = answerOf(&other, "own").toUtf8();
    QTEST(QJsonDocument::fromJson(own).toVariant().toStringList(), "seen");
    QTRY_COMPARE(answerOf(&other, "frames.join()"), QString("[]"));
}

/** The whole way to the provider, from a page that says where its key belongs. */
void TestMapWebView::newKeysCountAtOnce()
{
    mView->page()->setUrlRequestInterceptor(&mProviders);
    mMap->setMapType(MapGoogle);
    QTRY_COMPARE(stateOf("(document.querySelector('.path') || {}).textContent"), keyFile());
    for (const char *key : {"first", "second"}) {
        writeKeys(QByteArray("google=") + key);
        mProviders.asked.clear();
        mMap->setMapType(MapGoogle);
        QTRY_VERIFY(!mProviders.asked.isEmpty());
        QCOMPARE(QUrlQuery(mProviders.asked.at(0)).queryItemValue("key"), QString(key));
    }
    QCOMPARE(mProviders.asked.at(0).host(), QString("maps.googleapis.com"));
}

/** With the mouse alone: the map does not take the keyboard, and has no menu. */
void TestMapWebView::copiesThePathOfTheKeys()
{
    mMap->setMapType(MapGoogle);
    mWindow->setGeometry(100, 120, 320, 280);
    mWindow->show();
    QTRY_VERIFY(isOnScreen(mView));
    QTRY_COMPARE(stateOf("(document.querySelector('.path') || {}).textContent"), keyFile());
    const QStringList corner =
        stateOf("const r = document.querySelector('.path').getClientRects()[0];"
                "[r.left + 20, (r.top + r.bottom) / 2].map(Math.round).join()")
            .split(',');
    QGuiApplication::clipboard()->clear();
    useMouseAt(place().topLeft() + QPoint(corner.value(0).toInt(), corner.value(1).toInt()),
               {"click", "1"});
    QTRY_COMPARE(QGuiApplication::clipboard()->text(), keyFile());
}

void TestMapWebView::tellsServersWhoAsks()
{
    setLanguage(German);
    mMap->setMapType(MapOpenStreetMap);
    QTRY_COMPARE(stateOf("document.documentElement.lang"), QString("de"));

    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    // The map itself asks its provider only.
    mView->page()->profile()->setUrlRequestInterceptor(nullptr);
    QWebEnginePage page(mView->page()->profile());
    page.load(QUrl(QString("http://127.0.0.1:%1/").arg(server.serverPort())));
    QTRY_VERIFY(server.hasPendingConnections());
    QTcpSocket *socket = server.nextPendingConnection();
    QByteArray request;
    QTRY_VERIFY((request += socket->readAll()).contains("\r\n\r\n"));
    const QString text = QString::fromLatin1(request);
    const auto header = [&text](const QString &name) {
        const QRegularExpression line(name + ": ([^\r]*)\r\n");
        return line.match(text).captured(1);
    };
    QVERIFY2(header("Accept-Language").startsWith("de"), request.constData());
    const QString agent = header("User-Agent");
    QCOMPARE(agent, MapWebView::userAgent(CONTACT));

    const QString program = QString("TalvorPlayer/%1").arg(VERSION);
    QCOMPARE(MapWebView::userAgent(QString()), program);
    QCOMPARE(MapWebView::userAgent("a%1@example.org"), program + " (a%1@example.org)");
}

void TestMapWebView::opensLinksInTheBrowser()
{
    mWindow->setGeometry(100, 120, 320, 280);
    mWindow->show();
    QTRY_VERIFY(isOnScreen(mView));
    waitForPage();
    QDesktopServices::setUrlHandler("https", this, "openInBrowser");
    const QUrl page = mView->page()->url();
    const QString middleOfLink =
        stateOf("const r = document.querySelector('.leaflet-control-attribution a')"
                "    .getBoundingClientRect();"
                "[(r.left + r.right) / 2, (r.top + r.bottom) / 2].map(Math.round).join()");
    const QStringList offset = middleOfLink.split(',');
    useMouseAt(place().topLeft() + QPoint(offset.value(0).toInt(), offset.value(1).toInt()),
               {"click", "1"});
    QTRY_COMPARE(mOpened, QStringList("https://www.openstreetmap.org/copyright"));
    QCOMPARE(mView->page()->url(), page);
    QDesktopServices::unsetUrlHandler("https");
}

/** No menu with what a browser can do, and no place to drop a file that would replace the map. */
void TestMapWebView::offersNothingOfABrowser()
{
    mWindow->setGeometry(100, 120, 320, 280);
    mWindow->show();
    QTRY_VERIFY(isOnScreen(mView));
    waitForPage();
    stateOf("window.addEventListener('contextmenu', () => { window.isAsked = true; }); 1");
    useMouseAt(place().center(), {"click", "3"});
    QTRY_COMPARE(stateOf("String(window.isAsked)"), QString("true"));
    stateOf("1"); // so that what the web engine tells the program has arrived
    QVERIFY(!QApplication::activePopupWidget());

    QMimeData file;
    file.setUrls({QUrl::fromLocalFile("/etc/hostname")});
    QDragEnterEvent enter(QPoint(100, 100), Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(mView->windowHandle(), &enter);
    QVERIFY(!enter.isAccepted());
}

/** Two profiles of one program must not have one folder, so the other program is a lock only. */
void TestMapWebView::oneProgramHasTheCache()
{
    const auto cacheOf = [](const MapWebView &map) {
        return map.findChild<QWebEngineView *>()->page()->profile()->httpCacheType();
    };
    QCOMPARE(cacheOf(*mMap), QWebEngineProfile::DiskHttpCache);
    QLockFile lock(mView->page()->profile()->cachePath() + "/lock");
    QVERIFY(!lock.tryLock());
    mWindow.reset();
    QVERIFY(lock.tryLock());
    Configuration::GetInstance()->setMaps(MapGoogle); // which is not waited for
    QCOMPARE(cacheOf(MapWebView()), QWebEngineProfile::MemoryHttpCache);
    lock.unlock();
    QCOMPARE(cacheOf(MapWebView()), QWebEngineProfile::DiskHttpCache);
}

QTEST_MAIN(TestMapWebView)
#include "tst_mapwebview.moc"
