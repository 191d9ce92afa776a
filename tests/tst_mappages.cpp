// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "patience.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>
#include <QTestEventLoop>
#include <QtMath>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineView>

#include <algorithm>
#include <cmath>
#include <memory>

namespace {

constexpr int AnswerSeconds = 60;
const QString KeyFile = QStringLiteral(
    "/home/Zoë  Müller/.local/share/Приложение/アプリケーション/<b>&amp;/mapkeys.ini");
const QString AllKeys = QStringLiteral("{google: 'g&k', baidu: 'b&k', file: '%1'}").arg(KeyFile);
constexpr double MetresPerDegree = 111195.0;
const QString OpenStreetMap = QStringLiteral("OpenStreetMap");
const QString Google = QStringLiteral("WG_GoogleMapIndex_en");
const QString Baidu = QStringLiteral("BaiduMapIndex");
const QString GoogleScript = QStringLiteral("https://maps.googleapis.com/maps/api/js");
const QString BaiduScript = QStringLiteral("https://api.map.baidu.com/api");

/** A drive to the north-east, which the tests send to a page in parts. */
const QString Drive = QStringLiteral(R"(
    const at = (id) => [(12240000 + 100 * id) / 1e6, (47970000 + 50 * id) / 1e6];
    const drive = (...ids) => ids.forEach((id) => mapAddPoint(...at(id), id));
    const route = (first, last, count, ...noFix) => {
        for (let i = first; i <= last; ++i)
            loadAllGpsDataOfVideo(...(noFix.includes(i) ? [0, 0] : at(i)), i, count);
    };)");

/** The same places here, as longitude and latitude. */
QPointF at(int id)
{
    return {(12240000 + 100 * id) / 1e6, (47970000 + 50 * id) / 1e6};
}

/** Lets no request leave the machine, and keeps whom it would have reached. */
class RemoteBlocker : public QWebEngineUrlRequestInterceptor
{
public:
    void interceptRequest(QWebEngineUrlRequestInfo &info) override
    {
        const QUrl url = info.requestUrl();
        if (url.isLocalFile() || url.host() == QLatin1String("127.0.0.1"))
            return;
        hosts.insert(url.host());
        info.block(true);
    }

    QSet<QString> hosts;
};

/** Answers for the tile servers, with a picture or not. */
class TileServer : public QTcpServer
{
public:
    TileServer()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, &TileServer::answer);
    }

    bool isDown = true;
    int requests = 0;

private:
    void answer()
    {
        ++requests;
        QTcpSocket *socket = nextPendingConnection();
        const QByteArray picture = "<svg xmlns='http://www.w3.org/2000/svg'/>";
        socket->write(isDown ? "HTTP/1.1 503 Down\r\nContent-Length: 0\r\n"
                             : "HTTP/1.1 200 OK\r\nContent-Type: image/svg+xml\r\n"
                               "Content-Length: " +
                                   QByteArray::number(picture.size()) + "\r\n");
        socket->write("Connection: close\r\n\r\n" + (isDown ? QByteArray() : picture));
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        socket->disconnectFromHost();
    }
};

/** The shift from GCJ-02 to BD-09, as published. */
QPointF bdOf(QPointF gcj)
{
    const double turn = M_PI * 3000 / 180;
    const double z = std::hypot(gcj.x(), gcj.y()) + 0.00002 * std::sin(gcj.y() * turn);
    const double theta = std::atan2(gcj.y(), gcj.x()) + 0.000003 * std::cos(gcj.x() * turn);
    return {z * std::cos(theta) + 0.0065, z * std::sin(theta) + 0.006};
}

QPointF pointOf(const QVariant &coordinates)
{
    const QVariantList list = coordinates.toList();
    return {list.value(0).toDouble(), list.value(1).toDouble()};
}

/** False if the file does not hold @p from. */
bool replaceIn(const QString &path, const QString &from, const QString &to)
{
    QFile file(path);
    QString text;
    if (file.open(QIODevice::ReadWrite))
        text = QString::fromUtf8(file.readAll());
    return text.contains(from) && file.resize(0) && file.write(text.replace(from, to).toUtf8()) > 0;
}

} // namespace

/**
 * The map pages in the real web engine, with real Leaflet, without any network. The scripts of the
 * other providers are local stand-ins, which answer when the test tells them to.
 */
class tst_MapPages : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void drawsAndFitsTheRoute();
    void keepsTheRouteFitted_data();
    void keepsTheRouteFitted();
    void whatTheFitShows_data();
    void whatTheFitShows();
    void showsTheShortWayRound_data();
    void showsTheShortWayRound();
    void drivenPart_data();
    void drivenPart();
    void withoutFix_data();
    void withoutFix();
    void sampleAtAPlace_data();
    void sampleAtAPlace();
    void clearing();
    void following();
    void longRoutesArrive_data();
    void longRoutesArrive();
    void callsBeforeReady_data() { providers(); }
    void callsBeforeReady();
    void datum_data();
    void datum();
    void missingKey_data();
    void missingKey();
    void pathsOfAnyLength_data();
    void pathsOfAnyLength();
    void keysAreNotForTheProvider();
    void unusableProviders_data() { providers(); }
    void unusableProviders();
    void lateProviders();
    void tilesThatFail();
    void namesAreThoseOfTheDialog();

private:
    static void providers();
    void open(const QString &page, const QString &folder = QStringLiteral(MAPS_FOLDER));
    void openStandIn(const QString &page);
    void tellPages(const QString &keys);
    QString folderWith(const QString &googleScript, const QString &baiduScript);
    QVariant run(const QString &script);
    QVariant state(const char *field);
    void settle();
    bool viewContains(QPointF place);
    qint64 pixels(QRgb colour);

    QTemporaryDir mFolder;
    RemoteBlocker mBlocker;
    std::unique_ptr<QWebEngineProfile> mProfile;
    std::unique_ptr<QWebEngineView> mView;
    int mFolderCount = 0;
};

void tst_MapPages::init()
{
    mView.reset();
    mProfile = std::make_unique<QWebEngineProfile>();
    mProfile->setUrlRequestInterceptor(&mBlocker);
    mBlocker.hosts.clear();
    mView = std::make_unique<QWebEngineView>();
    mView->setPage(new QWebEnginePage(mProfile.get(), mView.get()));
    mView->resize(330, 200);
    mView->show();
    QVERIFY(QTest::qWaitForWindowExposed(mView.get()));
}

/** As the program does, which is told of no key that is not the page's own. */
void tst_MapPages::tellPages(const QString &keys)
{
    QWebEngineScript script;
    script.setSourceCode(QStringLiteral("window.talvorMapKeys = %1").arg(keys));
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::MainWorld);
    mView->page()->scripts().clear();
    mView->page()->scripts().insert(script);
}

/** A copy of the pages which finds the providers' scripts elsewhere. */
QString tst_MapPages::folderWith(const QString &googleScript, const QString &baiduScript)
{
    const QString folder = mFolder.filePath(QString::number(++mFolderCount));
    QProcess::execute(QStringLiteral("cp"), {QStringLiteral("-r"), MAPS_FOLDER, folder});
    const bool done = replaceIn(folder + QLatin1String("/google.js"), GoogleScript, googleScript) &&
                      replaceIn(folder + QLatin1String("/baidu.js"), BaiduScript, baiduScript);
    return done ? folder : QString();
}

void tst_MapPages::open(const QString &page, const QString &folder)
{
    QSignalSpy loaded(mView.get(), &QWebEngineView::loadFinished);
    mView->load(QUrl::fromLocalFile(QStringLiteral("%1/%2.html").arg(folder, page)));
    QVERIFY(loaded.wait(PatienceMs)); // which a provider that never answers does not hold up
    QVERIFY(loaded.at(0).at(0).toBool());
    run(Drive);
}

void tst_MapPages::openStandIn(const QString &page)
{
    const QString folder = QUrl::fromLocalFile(QStringLiteral(MAP_STANDINS))
                               .toString()
                               .replace(QLatin1Char('\''), QLatin1String("%27")); // within quotes
    tellPages(AllKeys);
    open(page,
         folderWith(folder + QLatin1String("/google.js"), folder + QLatin1String("/baidu.js")));
    QTRY_VERIFY(run(QStringLiteral("'standIn' in window")).toBool());
}

QVariant tst_MapPages::run(const QString &script)
{
    const auto answer = std::make_shared<QVariant>();
    mView->page()->runJavaScript(script, [answer](const QVariant &value) {
        *answer = value;
        QTestEventLoop::instance().exitLoop();
    });
    QTestEventLoop::instance().enterLoop(AnswerSeconds); // QTest::qWait() starves the web engine.
    return *answer;
}

QVariant tst_MapPages::state(const char *field)
{
    return run(QStringLiteral("talvorMap.state()")).toMap().value(QLatin1String(field));
}

/** Lets the page draw what it has been told. */
void tst_MapPages::settle()
{
    run(QStringLiteral("window.isSettled = false;"
                       "requestAnimationFrame(() => requestAnimationFrame(() => {"
                       "    window.isSettled = true;"
                       "}))"));
    QTRY_VERIFY(run(QStringLiteral("isSettled")).toBool());
}

bool tst_MapPages::viewContains(QPointF place)
{
    const QVariantMap view = state("view").toMap();
    const auto edge = [&view](const char *name) { return view[QLatin1String(name)].toDouble(); };
    return place.x() > edge("west") && place.x() < edge("east") && place.y() > edge("south") &&
           place.y() < edge("north");
}

qint64 tst_MapPages::pixels(QRgb colour)
{
    const QImage image = mView->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const auto *first = reinterpret_cast<const QRgb *>(image.constBits());
    return std::count(first, first + image.width() * image.height(), colour);
}

void tst_MapPages::drawsAndFitsTheRoute()
{
    open(OpenStreetMap);
    QVERIFY(mBlocker.hosts.isEmpty()); // nowhere to show tiles of yet
    const QPointF city(151.215, -33.8567);
    run(QStringLiteral("showMapCenter(151.215, -33.8567);"));
    QTRY_COMPARE(mBlocker.hosts, QSet<QString>{QStringLiteral("tile.openstreetmap.org")});
    QVERIFY(viewContains(city) && !viewContains(at(2)));

    mView->resize(30, 30); // parked out of sight: no size to fit a route to
    run(QStringLiteral("route(0, 39, 40, 0, 1, 17, 39)"));
    QTRY_COMPARE(state("routePoints").toInt(), 36);
    QCOMPARE(state("routeSegments").toInt(), 2);
    QCOMPARE(state("routeBounds").toList(),
             (QVariantList{at(2).x(), at(2).y(), at(38).x(), at(38).y()}));
    QCOMPARE(state("fits").toInt(), 0);
    mView->resize(330, 200);
    QTRY_COMPARE(state("fits").toInt(), 1);
    QVERIFY(viewContains(at(2)) && viewContains(at(38)) && !viewContains(city));

    run(QStringLiteral("drive(15, 16)"));
    QTRY_VERIFY(pixels(qRgb(38, 153, 238)) > 100); // the driven part and the position
    QVERIFY(pixels(qRgb(85, 88, 100)) > 20);       // the rest of the route
    QCOMPARE(state("fits").toInt(), 1);
}

void tst_MapPages::keepsTheRouteFitted_data()
{
    QTest::addColumn<bool>("isMoved");
    QTest::newRow("") << false;
    QTest::newRow("send('pointerdown', {}); send('pointermove', {}); send('pointerup', {});")
        << false; // a click
    QTest::newRow("send('pointerdown', {}); send('pointerup', {});"
                  "send('pointermove', {clientX: 90})")
        << false;
    QTest::newRow("send('wheel', {deltaY: 1})") << true;
    QTest::newRow("send('dblclick', {})") << true;
    QTest::newRow("send('pointerdown', {}); send('pointermove', {buttons: 1, clientX: 20})")
        << true;
    QTest::newRow("document.querySelector('.leaflet-control-zoom-in').click()") << true;
    QTest::newRow("showMapCenter(151, -33)") << true;
    QTest::newRow("mapClearAll()") << true;
    QTest::newRow("send('dblclick', {}); route(0, 38, 39)") << false; // a new route
}

void tst_MapPages::keepsTheRouteFitted()
{
    QFETCH(bool, isMoved);
    open(OpenStreetMap);
    run(QStringLiteral("route(0, 39, 40); const send = (type, options) =>"
                       "    document.getElementById('map').dispatchEvent("
                       "        new PointerEvent(type, {bubbles: true, ...options}))"));
    QTRY_COMPARE(state("fits").toInt(), 1);
    run(QLatin1String(QTest::currentDataTag()));
    settle();
    const int fits = state("fits").toInt();
    for (const QSize size : {QSize(30, 30), QSize(600, 500)}) { // parked, and back
        mView->resize(size);
        QTRY_COMPARE(run(QStringLiteral("innerWidth")).toInt(), size.width());
        settle();
    }
    QCOMPARE(state("fits").toInt() > fits, !isMoved);
}

void tst_MapPages::whatTheFitShows_data()
{
    QTest::addColumn<QVariantList>("bounds"); // west, south, east, north
    const QVariantList all{at(0).x(), at(0).y(), at(39).x(), at(39).y()};
    QTest::newRow("track[17] = [-100, 20]") << all;
    QTest::newRow("track[17] = track[18] = [12.3, 48.2]") << all;
    QTest::newRow("track[3] = [170, 20]; track[5] = [-170, 20]; track[9] = [80, -60]") << all;
    QTest::newRow("track[17] = [0.000001, 0.000001]") << all;
    QTest::newRow("track[17] = [12.2459, 47.9717]") // 500 m off
        << QVariantList{at(0).x(), at(0).y(), 12.2459, at(39).y()};
    QTest::newRow("track[0] = [-100, 20]")
        << QVariantList{at(1).x(), at(1).y(), at(39).x(), at(39).y()};
    QTest::newRow("track[39] = [-100, 20]")
        << QVariantList{at(0).x(), at(0).y(), at(38).x(), at(38).y()};
    QTest::newRow("track = track.map((p, i) => [10 + i, 50]) /* a sample every hour */")
        << QVariantList{10, 50, 49, 50};
    QTest::newRow("track.fill([0, 0], 0, 5); track[5] = [12.3, 48]; /* rows after an outage */"
                  "track = track.map((p, i) => i < 20 ? p : [13.4, 52.5])")
        << QVariantList{at(6).x(), at(6).y(), 13.4, 52.5};
    QTest::newRow("track.fill([0, 0], 25, 39); track[39] = [12.37, 47.97] /* out of a tunnel */")
        << QVariantList{at(0).x(), 47.97, 12.37, at(24).y()};
    QTest::newRow("track = track.map((p, i) => i % 4 === 3 ? [170 - 5 * i, i - 60] : p)")
        << QVariantList{at(0).x(), at(0).y(), at(38).x(), at(38).y()};
    QTest::newRow("track = track.map((p, i) => [179.9981 + i / 1e4 - 360 * (i >= 20), -17])")
        << QVariantList{179.9981, -17, 180.002, -17};
    QTest::newRow("track = track.map((p, i) => [-179.9981 - i / 1e4 + 360 * (i >= 20), -17]);"
                  "track[9] = [0, -17]")
        << QVariantList{-180.002, -17, -179.9981, -17};
}

void tst_MapPages::whatTheFitShows()
{
    QFETCH(QVariantList, bounds);
    open(OpenStreetMap);
    run(QStringLiteral("let track = [...Array(40).keys()].map(at); %1;"
                       "track.forEach((p, i) => loadAllGpsDataOfVideo(...p, i, 40))")
            .arg(QLatin1String(QTest::currentDataTag())));
    QTRY_COMPARE(state("fits").toInt(), 1);
    const QVariantList shown = state("fitBounds").toList();
    for (int i = 0; i < 4; ++i)
        QVERIFY2(std::abs(shown.value(i).toDouble() - bounds.at(i).toDouble()) < 1e-9,
                 qPrintable(run("JSON.stringify(talvorMap.state().fitBounds)").toString()));
    QVERIFY(viewContains({bounds.at(0).toDouble(), bounds.at(1).toDouble()}) &&
            viewContains({bounds.at(2).toDouble(), bounds.at(3).toDouble()}));
    const int points = run(QStringLiteral("track.filter((p) => p[0] !== 0).length")).toInt();
    QVERIFY(qAbs(state("routePoints").toInt() - points) <= 1); // wild fixes are drawn
}

void tst_MapPages::showsTheShortWayRound_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<int>("segments");
    QTest::newRow("OpenStreetMap") << OpenStreetMap << 1;
    QTest::newRow("Google") << Google << 1;
    QTest::newRow("Baidu") << Baidu << 2; // whose map ends there
}

/** A drive across the 180th meridian, which is nowhere near the rest of the world. */
void tst_MapPages::showsTheShortWayRound()
{
    QFETCH(QString, page);
    if (page == OpenStreetMap)
        open(page);
    else
        openStandIn(page);
    run(QStringLiteral("'standIn' in window && standIn.answer();"
                       "const east = (i) => [179.97 + i / 1e3 - 360 * (i > 30), -17];"
                       "for (let i = 0; i < 60; ++i) loadAllGpsDataOfVideo(...east(i), i, 60);"));
    QTRY_COMPARE(state("fits").toInt(), 1);
    QTEST(state("routeSegments").toInt(), "segments");
    const auto width = [this] {
        const QVariantMap view = state("view").toMap();
        const double degrees =
            view[QStringLiteral("east")].toDouble() - view[QStringLiteral("west")].toDouble();
        return degrees > 0 ? degrees : degrees + 360;
    };
    QVERIFY2(width() > 0.055 && width() < 0.5, qPrintable(QString::number(width())));

    const QVariant view = state("view");
    run(QStringLiteral("for (let i = 25; i < 45; ++i) mapAddPoint(...east(i), i);"));
    QTRY_COMPARE(state("drivenPoints").toInt(), 45);
    QCOMPARE(state("view"), view); // which shows the position already
    if (page == OpenStreetMap)     // whose world is drawn again beyond its end
        QVERIFY(qAbs(pointOf(state("position")).x() - 180.014) < 1e-6);

    run(QStringLiteral("mapAddPoint(...east(130), 46);")); // 8 km on
    QTRY_COMPARE(state("drivenPoints").toInt(), 21);
    QTRY_VERIFY(state("view") != view); // gliding there
    QVERIFY(width() < 0.5);
}

void tst_MapPages::drivenPart_data()
{
    QTest::addColumn<int>("points");
    QTest::addColumn<int>("segments");
    QTest::newRow("drive(0, 1, 2, 3)") << 4 << 1;
    QTest::newRow("drive(0, 1, 3, 4, 6) /* at double speed */") << 5 << 1;
    QTest::newRow("drive(0, 1, 1)") << 2 << 1;
    QTest::newRow("drive(0, 1, 2, 20, 21) /* a jump forward */") << 5 << 2;
    QTest::newRow("drive(4, 5, 6, 7, 8, 6, 7) /* a jump back */") << 4 << 1;
    QTest::newRow("drive(0, 1, 2, 20, 21, 2, 3) /* back across a jump forward */") << 4 << 1;
    QTest::newRow("drive(0, 1); mapAddPoint(0, 0, 2); drive(3) /* no fix */") << 3 << 2;
    QTest::newRow("drive(0); mapAddPoint(500, 95, 1); drive(2) /* nonsense */") << 2 << 2;
    QTest::newRow("route(0, 39, 40); drive(30) /* the route up to there */") << 31 << 1;
    QTest::newRow("route(0, 39, 40); drive(30, 12) /* a jump back */") << 13 << 1;
    QTest::newRow("route(0, 39, 40, 5, 6, 7); drive(20) /* the route has gaps */") << 18 << 2;
    QTest::newRow("drive(7, 8); route(0, 39, 40) /* the route comes later */") << 9 << 1;
    QTest::newRow("drive(7, 8); route(0, 20, 40) /* half a route is none */") << 2 << 1;
    QTest::newRow("drive(7, 8); route(5, 39, 40) /* nor is one from the middle */") << 2 << 1;
    QTest::newRow("route(0, 9, 10); mapAddPoint(13.4, 52.5, 0) /* another recording's */")
        << 1 << 1;
    QTest::newRow("mapAddPoint(179.9999, -17, 0); mapAddPoint(-179.9999, -17, 1)") << 2 << 1;
}

void tst_MapPages::drivenPart()
{
    QFETCH(int, points);
    open(OpenStreetMap);
    run(QLatin1String(QTest::currentDataTag()));
    QTRY_COMPARE(state("drivenPoints").toInt(), points);
    QTEST(state("drivenSegments").toInt(), "segments");
}

void tst_MapPages::withoutFix_data()
{
    QTest::addColumn<int>("shownAt"); // the number of a place, -1: none
    QTest::addColumn<bool>("isLost");
    QTest::addColumn<int>("points"); // of the driven part
    QTest::newRow("drive(0, 1); lose(2, 1); lose(3, 1)") << 1 << true << 2;
    QTest::newRow("drive(0, 1); lose(4, 3) /* samples were skipped */") << 1 << true << 2;
    QTest::newRow("drive(0, 1); lose(2, 1); drive(3) /* back at once */") << 3 << false << 3;
    QTest::newRow("drive(0, 1); lose(20, 18) /* a jump into it */") << 18 << true << 2;
    QTest::newRow("drive(30); lose(20, 18) /* back into it */") << 18 << true << 0;
    QTest::newRow("drive(30); lose(2) /* before the first fix */") << -1 << true << 0;
    QTest::newRow("lose(0); lose(1) /* from the beginning */") << -1 << true << 0;
    QTest::newRow("drive(0); mapAddPoint(500, 95, 1) /* nonsense */") << 0 << true << 1;
    QTest::newRow("drive(0, 1); lose(2, 1); mapClearAll(); drive(7)") << 7 << false << 1;
    QTest::newRow("route(0, 39, 40, 5, 6, 7); drive(4); lose(6, 4)") << 4 << true << 5;
}

void tst_MapPages::withoutFix()
{
    QFETCH(int, shownAt);
    QFETCH(bool, isLost);
    open(OpenStreetMap);
    run(QStringLiteral("window.faults = 0; window.onerror = () => { faults += 1; };"
                       "const lose = (id, last) =>"
                       "    mapLoseFix(...(last === undefined ? [null, null] : at(last)), id);"));
    run(QLatin1String(QTest::currentDataTag()));
    settle();
    QCOMPARE(run(QStringLiteral("faults")).toInt(), 0);
    QTEST(state("drivenPoints").toInt(), "points");
    QCOMPARE(pointOf(state("position")), shownAt < 0 ? QPointF() : at(shownAt));
    const auto marks = [this](const char *image) {
        return run(QStringLiteral("document.querySelectorAll('[src$=\"%1\"]').length")
                       .arg(QLatin1String(image)))
            .toInt();
    };
    QCOMPARE(marks("lost.svg"), int(isLost && shownAt >= 0));
    QCOMPARE(marks("position.svg"), int(!isLost));
    if (isLost && shownAt >= 0)
        QTRY_VERIFY(pixels(qRgb(120, 120, 128)) > 30);
}

void tst_MapPages::sampleAtAPlace_data()
{
    QTest::addColumn<double>("longitude"); // in thousandths of a degree
    QTest::addColumn<double>("below");     // pixels below the equator
    QTest::addColumn<int>("played");
    QTest::addColumn<int>("sample");
    QTest::newRow("on a sample") << 2.0 << 0.0 << 0 << 2;
    QTest::newRow("nearly at the next") << 2.7 << 0.0 << 0 << 3;
    QTest::newRow("beside it") << 2.0 << 11.5 << 0 << 2;
    QTest::newRow("too far beside it") << 2.0 << 12.5 << 0 << -1;
    QTest::newRow("crossing, first pass") << 5.0 << 0.0 << 1 << 5;
    QTest::newRow("crossing, second pass") << 5.0 << 0.0 << 14 << 16;
    QTest::newRow("between two passes that do not touch") << 10.5 << 0.0 << 0 << 10;
}

/** East along the equator, which the drive crosses once more: there, places are linear. */
void tst_MapPages::sampleAtAPlace()
{
    QFETCH(double, longitude);
    QFETCH(double, below);
    QFETCH(int, played);
    QFETCH(int, sample);
    open(OpenStreetMap);
    QString calls;
    for (int i = 0; i < 22; ++i) {
        const double east = i < 11 ? i : 5;
        const double north = i < 11 ? 0.0000001 : 16 - i;
        calls += QStringLiteral("loadAllGpsDataOfVideo(%1, %2, %3, 22);")
                     .arg(east / 1000)
                     .arg(north / 1000, 0, 'f', 10)
                     .arg(i);
    }
    run(calls);
    QTRY_COMPARE(state("routePoints").toInt(), 22);
    QTRY_COMPARE(state("fits").toInt(), 1);
    const QVariantMap view = state("view").toMap();
    const double west = view["west"].toDouble();
    const double north = view["north"].toDouble();
    const double x = (longitude / 1000 - west) / (view["east"].toDouble() - west) * 330;
    const double y = north / (north - view["south"].toDouble()) * 200 + below;
    const QString question = QStringLiteral("talvorMap.sampleAt(%1, %2, %3)");
    QCOMPARE(run(question.arg(x).arg(y).arg(played)).toInt(), sample);
    QCOMPARE(run(question.arg(20).arg(20).arg(played)).toInt(), -1); // the control of the zoom
    run(QStringLiteral("mapClearAll()"));
    QTRY_COMPARE(state("routePoints").toInt(), 0);
    QCOMPARE(run(question.arg(x).arg(y).arg(played)).toInt(), -1);
}

void tst_MapPages::clearing()
{
    open(OpenStreetMap);
    run(QStringLiteral("route(0, 39, 40); drive(3, 4); route(0, 20, 40)"));
    QTRY_COMPARE(state("drivenPoints").toInt(), 2); // The half received route replaces the old one.
    QCOMPARE(state("routePoints").toInt(), 0);
    run(QStringLiteral("mapClearAll(); route(21, 39, 40)"));
    QTRY_COMPARE(state("drivenPoints").toInt(), 0);
    QCOMPARE(state("routePoints").toInt(), 0);
    QVERIFY(state("position").isNull());

    run(QStringLiteral("route(0, 39, 40)"));
    QTRY_COMPARE(state("routePoints").toInt(), 40);
    run(QStringLiteral("route(0, 9, 10)"));
    QTRY_COMPARE(state("routePoints").toInt(), 10);
    QCOMPARE(state("fits").toInt(), 2);
    run(QStringLiteral("mapClearAll()"));
    QTRY_COMPARE(state("routePoints").toInt(), 0);
}

void tst_MapPages::following()
{
    open(OpenStreetMap);
    run(QStringLiteral("drive(0)"));
    QTRY_COMPARE(state("drivenPoints").toInt(), 1);
    QVERIFY(viewContains(at(0)));
    const QVariant view = state("view");
    run(QStringLiteral("drive(1)"));
    QTRY_COMPARE(state("drivenPoints").toInt(), 2);
    QCOMPARE(state("view"), view);
    run(QStringLiteral("mapAddPoint(12.3, 48, 2)"));
    QTRY_VERIFY(viewContains({12.3, 48}) && !viewContains(at(0)));
    QCOMPARE(pointOf(state("position")), QPointF(12.3, 48));

    run(QStringLiteral("document.getElementById('map').dispatchEvent(new Event('pointerdown'));"
                       "drive(3)"));
    QTRY_COMPARE(state("drivenPoints").toInt(), 4);
    QVERIFY(!viewContains(at(3))); // A hand on the map keeps it from moving.
}

void tst_MapPages::longRoutesArrive_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("an hour") << 3600;
    QTest::newRow("a day") << 100000;
}

void tst_MapPages::longRoutesArrive()
{
    QFETCH(int, count);
    open(OpenStreetMap);
    const QString call = QStringLiteral("loadAllGpsDataOfVideo(%1, 48.000000, %2, %3)");
    for (int i = 0; i < count; ++i) // one by one, as the program does
        mView->page()->runJavaScript(call.arg(i / 1e6, 0, 'f', 6).arg(i).arg(count));
    QElapsedTimer sinceLastCall;
    sinceLastCall.start();
    QTRY_COMPARE(state("routePoints").toInt(), count);
    qInfo("%d points are drawn after %lld ms", count, sinceLastCall.elapsed());
    QCOMPARE(state("routeSegments").toInt(), 1);
    run(QStringLiteral("drive(...Array(500).keys())"));
    QTRY_COMPARE(state("drivenPoints").toInt(), 500);
    QVERIFY(state("frames").toInt() <= 4); // never one for each point
}

void tst_MapPages::providers()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("script");
    QTest::newRow("Google") << Google << GoogleScript;
    QTest::newRow("Baidu") << Baidu << BaiduScript;
}

void tst_MapPages::callsBeforeReady()
{
    QFETCH(QString, page);
    openStandIn(page);
    run(QStringLiteral("drive(20, 21, 22); mapClearAll();"));
    QCOMPARE(state("held").toInt(), 0);
    run(QStringLiteral("route(0, 9, 10, 4); drive(0, 1, 2, 1);"));
    QCOMPARE(state("held").toInt(), 14);
    run(QStringLiteral("standIn.answer()"));
    QTRY_COMPARE(state("drivenPoints").toInt(), 2);
    const QVariantMap report = run(QStringLiteral("standIn.report()")).toMap();
    // The casing and the route in two segments each, the driven part in one.
    QCOMPARE(report[QStringLiteral("lengths")].toList(), (QVariantList{2, 4, 4, 5, 5}));
    QCOMPARE(report[QStringLiteral("marks")].toStringList().join(QLatin1Char(' ')),
             QStringLiteral("end.svg position.svg start.svg"));
    run(QStringLiteral("mapLoseFix(...at(1), 2); mapMissTelemetry(true)"));
    settle();
    QCOMPARE(run(QStringLiteral("standIn.report().marks.join()")).toString(),
             QStringLiteral("end.svg,lost.svg,start.svg"));
    QCOMPARE(state("empty").toString(), QStringLiteral("No telemetry in this recording"));

    run(QStringLiteral("mapClearAll()"));
    QTRY_COMPARE(state("drivenPoints").toInt(), 0);
    QCOMPARE(run(QStringLiteral("Object.values(standIn.report()).join()")).toString(),
             QStringLiteral(","));
    QVERIFY(mBlocker.hosts.isEmpty());
}

void tst_MapPages::datum_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QPointF>("wgs");
    QTest::addColumn<QPointF>("shown");
    const QPointF shanghai(121.5272106, 31.1774276);
    const QPointF sydney(151.215219, -33.856731);
    QTest::newRow("OpenStreetMap in China") << OpenStreetMap << shanghai << shanghai;
    QTest::newRow("Google in China")
        << Google << shanghai << QPointF(121.531541859215, 31.17530398364597);
    QTest::newRow("Baidu in China") << Baidu << QPointF(114.21892734521, 29.575429778924)
                                    << QPointF(114.2307519546763, 29.57908428837437);
    QTest::newRow("Baidu elsewhere") << Baidu << sydney << bdOf(sydney);
    const std::initializer_list<std::pair<const char *, QPointF>> unshifted = {
        {"Sydney", sydney},           {"Seoul", {126.99118, 37.5527}},
        {"Osaka", {135.5023, 34.69}}, {"Delhi", {77.209, 28.6139}},
        {"Macau", {113.544, 22.199}}, {"Hong Kong", {114.1747, 22.2988}},
        {"Hanoi", {105.85, 21.03}},   {"Taipei", {121.5654, 25.033}}};
    for (const auto &[name, place] : unshifted)
        QTest::newRow(name) << Google << place << place;
}

void tst_MapPages::datum()
{
    QFETCH(QString, page);
    QFETCH(QPointF, wgs);
    QFETCH(QPointF, shown);
    openStandIn(QString(page).replace(OpenStreetMap, Google));
    if (page == OpenStreetMap)
        open(OpenStreetMap);
    run(QStringLiteral("'standIn' in window && standIn.answer(); mapAddPoint(%1, %2, 0)")
            .arg(wgs.x(), 0, 'f', 6)
            .arg(wgs.y(), 0, 'f', 6));
    QTRY_VERIFY(!state("position").isNull());
    const QPointF off = pointOf(state("position")) - shown;
    const double east = off.x() * std::cos(qDegreesToRadians(shown.y()));
    QVERIFY(std::hypot(east, off.y()) * MetresPerDegree < 1.0);
}

void tst_MapPages::missingKey_data()
{
    QTest::addColumn<QString>("sentence");
    const std::initializer_list<std::pair<const char *, const char *>> sentences = {
        {"WG_GoogleMapIndex_zh_CN", "谷歌地图需要您自己的密钥。"},
        {"WG_GoogleMapIndex_zh_TW", "Google 地圖需要您自己的金鑰。"},
        {"WG_GoogleMapIndex_en_talvor", "Google Maps needs a key of your own."},
        {"WG_GoogleMapIndex_en_uk", "Google Maps needs a key of your own."},
        {"WG_GoogleMapIndex_fr", "Google Maps nécessite une clé personnelle."},
        {"WG_GoogleMapIndex_it", "Per Google Maps serve una chiave personale."},
        {"WG_GoogleMapIndex_ja", "Google マップを使うには、ご自身のキーが必要です。"},
        {"WG_GoogleMapIndex_pl", "Usługa Mapy Google wymaga własnego klucza."},
        {"WG_GoogleMapIndex_ru", "Сервису «Google Карты» нужен собственный ключ."},
        {"WG_GoogleMapIndex_de", "Für Google Maps wird ein eigener Schlüssel benötigt."},
        {"WG_GoogleMapIndex_es", "Google Maps necesita una clave propia."},
        {"WG_GoogleMapIndex_pt", "O Google Maps requer uma chave própria."},
        {"WG_GoogleMapIndex_ko", "Google 지도를 사용하려면 본인의 키가 필요합니다."},
        {"WG_GoogleMapIndex_en", "Google Maps needs a key of your own."},
        {"BaiduMapIndex", "百度地図を使うには、ご自身のキーが必要です。"}};
    for (const auto &[page, sentence] : sentences)
        QTest::newRow(page) << QString::fromUtf8(sentence);
}

void tst_MapPages::missingKey()
{
    QFETCH(QString, sentence);
    mProfile->setHttpAcceptLanguage(QStringLiteral("ja")); // for the page in no language of its own
    QString hint;
    // In a browser the page knows the name of the file only.
    for (const QString &file : {QStringLiteral("mapkeys.ini"), KeyFile}) {
        open(QLatin1String(QTest::currentDataTag()));
        const QString message = state("message").toString();
        QVERIFY2(message.startsWith(sentence) && message.endsWith(QLatin1Char('\n') + file),
                 qPrintable(message));
        hint = message.mid(sentence.size(), message.size() - sentence.size() - file.size());
        QVERIFY2(hint.trimmed().size() > 5, qPrintable(hint));
        tellPages(QStringLiteral("{file: '%1'}").arg(KeyFile));
    }
    if (run(QStringLiteral("document.documentElement.lang.slice(0, 2) !== 'en'")).toBool())
        QVERIFY(hint != run(QStringLiteral("`\\n\\n${talvorMap.textsIn('en').keyHint}\\n`")));
    QVERIFY(mBlocker.hosts.isEmpty());
}

void tst_MapPages::pathsOfAnyLength_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("blanks, letters of all sorts and tags") << KeyFile;
    QTest::newRow("no place for a break") << QString(300, QLatin1Char('m'));
    QTest::newRow("higher than the view") << QString(3000, QLatin1Char('m'));
}

/** They stay within the width, can be scrolled to as a whole, and are text only. */
void tst_MapPages::pathsOfAnyLength()
{
    QFETCH(QString, path);
    mView->resize(300, 180);
    tellPages(QStringLiteral("{file: '%1'}").arg(path));
    open(Google);
    run(QStringLiteral("const box = document.getElementById('message');"
                       "const place = document.querySelector('.path');"
                       "const text = box.firstElementChild.getBoundingClientRect();"
                       "getSelection().selectAllChildren(place);"));
    QCOMPARE(run(QStringLiteral("place.textContent")).toString(), path);
    QCOMPARE(run(QStringLiteral("getSelection().toString()")).toString(), path);
    QCOMPARE(run(QStringLiteral("box.querySelectorAll('b').length")).toInt(), 0);
    QVERIFY(run(QStringLiteral("box.scrollWidth <= innerWidth && text.left >= 0 &&"
                               " text.right <= innerWidth && text.top >= 0 &&"
                               " text.bottom <= box.scrollHeight"))
                .toBool());
}

/** Neither the path, which tells the user's name, nor a key that it has not been given. */
void tst_MapPages::keysAreNotForTheProvider()
{
    openStandIn(Google);
    QCOMPARE(run(QStringLiteral("typeof talvorMapKeys")).toString(), QStringLiteral("undefined"));
    QCOMPARE(run(QStringLiteral("new URL(document.querySelector('[src*=standins]').src)"
                                "    .searchParams.get('key')"))
                 .toString(),
             QStringLiteral("g&k"));
    openStandIn(Baidu);
    QCOMPARE(run(QStringLiteral("new URL(document.querySelector('[src*=standins]').src)"
                                "    .searchParams.get('ak')"))
                 .toString(),
             QStringLiteral("b&k"));
}

void tst_MapPages::unusableProviders()
{
    QFETCH(QString, page);
    QFETCH(QString, script);
    openStandIn(page);
    QCOMPARE(state("message").toString(), QString());
    run(QStringLiteral("standIn.answer(); standIn.refuseKey();"));
    const QString refused = state("message").toString();
    QVERIFY(refused.endsWith(QLatin1Char('\n') + KeyFile));

    openStandIn(page); // fails in a web engine that is too old for it
    run(QStringLiteral("delete window.BMap; delete window.google; standIn.answer();"));
    const QString broken = state("message").toString();
    QVERIFY(!broken.isEmpty() && !broken.contains(QLatin1String("key")));

    open(page, folderWith(GoogleScript, BaiduScript)); // the real address, without a network
    QTRY_COMPARE(state("message").toString(), broken);
    QCOMPARE(mBlocker.hosts, QSet<QString>{QUrl(script).host()});
}

void tst_MapPages::lateProviders()
{
    QTcpServer server; // accepts, and says nothing
    QVERIFY(server.listen(QHostAddress::LocalHost));
    const QString silent = QStringLiteral("http://127.0.0.1:%1/").arg(server.serverPort());
    tellPages(AllKeys);
    const QString folder = folderWith(silent, silent);
    QVERIFY(replaceIn(QStringLiteral("%1/%2.html").arg(folder, Google),
                      QStringLiteral("https://*.googleapis.com"), silent));
    open(Google, folder);
    QTRY_VERIFY(server.hasPendingConnections());

    openStandIn(Google);
    run(QStringLiteral("drive(0, 1)"));
    QCOMPARE(state("message").toString(), QString());
    QTRY_VERIFY(!state("message").toString().isEmpty());
    run(QStringLiteral("standIn.answer()")); // after all
    QTRY_COMPARE(state("drivenPoints").toInt(), 2);
    QCOMPARE(state("message").toString(), QString());
}

/** A line says so, and they are asked for again: ever more rarely, but soon when there is hope. */
void tst_MapPages::tilesThatFail()
{
    TileServer server;
    const QString folder = folderWith(GoogleScript, BaiduScript);
    for (const char *file : {"/openstreetmap.js", "/OpenStreetMap.html"})
        QVERIFY(replaceIn(folder + QLatin1String(file),
                          QStringLiteral("https://tile.openstreetmap.org"),
                          QStringLiteral("http://127.0.0.1:%1").arg(server.serverPort())));
    mProfile->setHttpAcceptLanguage(QStringLiteral("de"));
    open(OpenStreetMap, folder);
    run(QStringLiteral("window.waits = [];"
                       "const wait = setTimeout;"
                       "window.setTimeout = (run, ms, ...args) => {"
                       "    if (ms >= 1000)"
                       "        waits.push(ms / 1000);"
                       "    return wait(run, ms > 1000 ? 50 : ms, ...args);"
                       "};"
                       "showMapCenter(12, 48);"));
    QTRY_COMPARE(state("note").toString(),
                 QStringLiteral("Die Kartenbilder lassen sich zurzeit nicht laden."));
    const auto waits = [this] { return run(QStringLiteral("waits.join()")).toString(); };
    QTRY_VERIFY(waits().startsWith(QLatin1String("10,20,40,80,160,300,300,")));
    run(QStringLiteral("window.dispatchEvent(new Event('online'))"));
    QTRY_VERIFY(waits().contains(QLatin1String(",1,")));
    server.isDown = false;
    QTRY_COMPARE(state("note").toString(), QString());

    // What has come is not asked for again.
    const int requests = server.requests;
    const QString before = waits();
    run(QStringLiteral("window.dispatchEvent(new Event('online'))"));
    QTestEventLoop::instance().enterLoopMSecs(200);
    QCOMPARE(waits(), before);
    QCOMPARE(server.requests, requests);

    server.isDown = true;
    run(QStringLiteral("waits.length = 0; showMapCenter(50, 10);"));
    QTRY_VERIFY(waits().startsWith(QLatin1String("10,20,")));
}

/** One provider has one name, in the page and where it is chosen. */
void tst_MapPages::namesAreThoseOfTheDialog()
{
    const std::initializer_list<std::pair<const char *, const char *>> languages = {
        {"Chinese", "zh-CN"}, {"ChineseTraditional", "zh-TW"},
        {"French", "fr"},     {"German", "de"},
        {"Italian", "it"},    {"Japanese", "ja"},
        {"Korean", "ko"},     {"Polish", "pl"},
        {"Portugal", "pt"},   {"Russian", "ru"},
        {"Spanish", "es"}};
    open(OpenStreetMap);
    for (const auto &[file, language] : languages) {
        QFile translations(QStringLiteral("%1/%2.ts").arg(TRANSLATIONS, QLatin1String(file)));
        QVERIFY(translations.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(translations.readAll());
        for (const QString &name : {QStringLiteral("Google"), QStringLiteral("Baidu")}) {
            const QRegularExpression dialog(name + QLatin1String(" Maps</source>\\s*<translation>"
                                                                 "([^<]+)</translation>"));
            const QString wanted = dialog.match(text).captured(1);
            QVERIFY2(!wanted.isEmpty(), file);
            QCOMPARE(run(QStringLiteral("talvorMap.textsIn('%1').%2")
                             .arg(QLatin1String(language), name.toLower()))
                         .toString(),
                     wanted);
        }
        // So is the line for a recording without telemetry, on the map and on the chart.
        const QRegularExpression line(QStringLiteral("No telemetry in this recording</source>\\s*"
                                                     "<translation>([^<]+)</translation>"));
        QCOMPARE(
            run(QStringLiteral("talvorMap.textsIn('%1').noTelemetry").arg(QLatin1String(language)))
                .toString(),
            line.match(text).captured(1));
        // The note is in every language.
        QVERIFY(run(QStringLiteral("talvorMap.textsIn('%1').tilesMissing !=="
                                   " talvorMap.textsIn('en').tilesMissing")
                        .arg(QLatin1String(language)))
                    .toBool());
    }
}

QTEST_MAIN(tst_MapPages)
#include "tst_mappages.moc"
