// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QDirIterator>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>
#include <QtMath>
#include <QWebEngineProfile>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineView>

#include <cmath>
#include <memory>
#include <optional>

#include <unistd.h>

namespace {

constexpr int RouteLength = 40;
const QString SentGoogleScript = QStringLiteral("https://maps.googleapis.com/maps/api/js");
const QString SentBaiduScript = QStringLiteral("https://api.map.baidu.com/api");

/** Lets no request leave the machine, and keeps those that wanted to. */
class RemoteBlocker : public QWebEngineUrlRequestInterceptor
{
public:
    void interceptRequest(QWebEngineUrlRequestInfo &info) override
    {
        const QUrl url = info.requestUrl();
        if (url.isLocalFile() || url.scheme() == QLatin1String("data") ||
            url.host() == QLatin1String("127.0.0.1"))
            return;
        hosts.insert(url.host());
        info.block(true);
    }

    QSet<QString> hosts;
};

struct Place
{
    double lng;
    double lat;
};

/** Where the car is at a sample: it drives north-east. The program sends six decimals. */
Place placeOf(int id)
{
    return {(12240000 + 100 * id) / 1e6, (47970000 + 50 * id) / 1e6};
}

QString coordinates(Place place)
{
    return QStringLiteral("%1, %2").arg(place.lng, 0, 'f', 6).arg(place.lat, 0, 'f', 6);
}

QString addPoint(Place place, int id)
{
    return QStringLiteral("mapAddPoint(%1, %2);").arg(coordinates(place)).arg(id);
}

QString drive(const QVector<int> &ids)
{
    QString calls;
    for (int id : ids)
        calls += addPoint(placeOf(id), id);
    return calls;
}

QString routePoint(Place place, int index, int count)
{
    return QStringLiteral("loadAllGpsDataOfVideo(%1, %2, %3)\n")
        .arg(coordinates(place))
        .arg(index)
        .arg(count);
}

/** The calls for samples @p first to @p last of a route; those of @p noFix are at (0, 0). */
QString route(int first = 0, int last = RouteLength - 1, int count = RouteLength,
              const QVector<int> &noFix = {})
{
    QString calls;
    for (int i = first; i <= last; ++i)
        calls += routePoint(noFix.contains(i) ? Place{0, 0} : placeOf(i), i, count);
    return calls;
}

/** The second step of the shift for Baidu, as published. */
Place bdOf(Place gcj)
{
    const double turn = M_PI * 3000 / 180;
    const double z = std::hypot(gcj.lng, gcj.lat) + 0.00002 * std::sin(gcj.lat * turn);
    const double theta = std::atan2(gcj.lat, gcj.lng) + 0.000003 * std::cos(gcj.lng * turn);
    return {z * std::cos(theta) + 0.0065, z * std::sin(theta) + 0.006};
}

QString readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

bool writeFile(const QString &path, const QString &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) > 0;
}

bool copyFolder(const QString &from, const QString &to)
{
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    bool copied = files.hasNext();
    while (files.hasNext()) {
        const QFileInfo target(to + files.next().mid(from.size()));
        copied = QDir().mkpath(target.path()) && QFile::copy(files.filePath(), target.filePath()) &&
                 copied;
    }
    return copied;
}

} // namespace

Q_DECLARE_METATYPE(Place)

/**
 * The map pages in the real web engine, with real Leaflet, without any network. The scripts of the
 * other providers are local stand-ins, which answer when the test tells them to.
 */
class tst_MapPages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void routeIsDrawnAndFittedOnce();
    void drivenPart_data();
    void drivenPart();
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
    void unusableProviders_data();
    void unusableProviders();
    void serverThatNeverAnswers();

private:
    static void providers();
    void open(const QString &folder, const QString &page);
    void openOpenStreetMap() { open(QStringLiteral(MAPS_FOLDER), QStringLiteral("OpenStreetMap")); }
    void openStandIn(const QString &page);
    QString folderWith(const QString &googleScript, const QString &baiduScript);
    QVariant run(const QString &script);
    QVariant state(const char *field)
    {
        return run(QStringLiteral("talvorMap.state()")).toMap().value(QLatin1String(field));
    }
    bool viewContains(Place place);

    QTemporaryDir mFolder;
    RemoteBlocker mBlocker;
    QString mStandIns;
    std::unique_ptr<QWebEngineProfile> mProfile;
    std::unique_ptr<QWebEngineView> mView;
    int mFolderCount = 0;
};

void tst_MapPages::initTestCase()
{
    const QUrl scripts = QUrl::fromLocalFile(QStringLiteral(MAP_STANDINS));
    mStandIns = folderWith(scripts.toString() + QLatin1String("/google.js"),
                           scripts.toString() + QLatin1String("/baidu.js"));
}

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

/** A copy of the pages with keys, whose providers' scripts are elsewhere. */
QString tst_MapPages::folderWith(const QString &googleScript, const QString &baiduScript)
{
    const QString folder = mFolder.filePath(QString::number(++mFolderCount));
    bool done = copyFolder(QStringLiteral(MAPS_FOLDER), folder);
    done = QFile::remove(folder + QLatin1String("/keys.js")) && done;
    done = writeFile(folder + QLatin1String("/keys.js"),
                     QStringLiteral("window.talvorMapKeys = { google: 'k', baidu: ' k ' };")) &&
           done;
    const std::initializer_list<std::array<QString, 3>> scripts = {
        {QStringLiteral("/google.js"), SentGoogleScript, googleScript},
        {QStringLiteral("/baidu.js"), SentBaiduScript, baiduScript}};
    for (const auto &[name, sent, replacement] : scripts) {
        const QString text = readFile(folder + name);
        done = text.contains(sent) && QFile::remove(folder + name) && done;
        done = writeFile(folder + name, QString(text).replace(sent, replacement)) && done;
    }
    return done ? folder : QString();
}

void tst_MapPages::open(const QString &folder, const QString &page)
{
    QSignalSpy loaded(mView.get(), &QWebEngineView::loadFinished);
    mView->load(QUrl::fromLocalFile(QStringLiteral("%1/%2.html").arg(folder, page)));
    QVERIFY(loaded.wait(20000));
    QVERIFY(loaded.at(0).at(0).toBool());
}

void tst_MapPages::openStandIn(const QString &page)
{
    QVERIFY(!mStandIns.isEmpty());
    open(mStandIns, page);
    QTRY_VERIFY(run(QStringLiteral("'standIn' in window")).toBool());
}

QVariant tst_MapPages::run(const QString &script)
{
    const auto answer = std::make_shared<std::optional<QVariant>>();
    mView->page()->runJavaScript(script, [answer](const QVariant &value) { *answer = value; });
    return QTest::qWaitFor([answer] { return answer->has_value(); }, 30000) ? **answer : QVariant();
}

bool tst_MapPages::viewContains(Place place)
{
    const QVariantMap view = state("view").toMap();
    const auto edge = [&view](const char *name) { return view[QLatin1String(name)].toDouble(); };
    return place.lng > edge("west") && place.lng < edge("east") && place.lat > edge("south") &&
           place.lat < edge("north");
}

void tst_MapPages::routeIsDrawnAndFittedOnce()
{
    openOpenStreetMap();
    const Place city{151.215, -33.8567};
    run(QStringLiteral("showMapCenter(%1)").arg(coordinates(city)));
    QTRY_VERIFY(viewContains(city));
    QCOMPARE(mBlocker.hosts, QSet<QString>{QStringLiteral("tile.openstreetmap.org")});

    // No fix at the start, in the middle and at the end.
    const QVector<int> noFix{0, 1, 17, RouteLength - 1};
    mView->resize(30, 30); // parked out of sight: no size to fit a route to
    run(route(0, RouteLength - 1, RouteLength, noFix));
    QTRY_COMPARE(state("routePoints").toInt(), RouteLength - noFix.size());
    QCOMPARE(state("fits").toInt(), 0);
    mView->resize(330, 200);
    QTRY_COMPARE(state("fits").toInt(), 1);
    QCOMPARE(state("routeSegments").toInt(), 2);
    const Place first = placeOf(2);
    const Place last = placeOf(RouteLength - 2);
    QCOMPARE(state("routeBounds").toList(),
             (QVariantList{first.lng, first.lat, last.lng, last.lat}));
    QVERIFY(viewContains(first) && viewContains(last) && !viewContains(city));

    run(drive({2, 3, 4, 5}));
    const auto pixels = [this](QRgb colour) {
        const QImage image = mView->grab().toImage();
        int count = 0;
        for (int i = 0; i < image.width() * image.height(); ++i)
            count += image.pixel(i % image.width(), i / image.width()) == colour ? 1 : 0;
        return count;
    };
    QTRY_VERIFY(pixels(qRgb(38, 153, 238)) > 50); // driven part and position
    QVERIFY(pixels(qRgb(85, 88, 100)) > 200);     // the rest of the route
    QCOMPARE(state("fits").toInt(), 1);
}

void tst_MapPages::drivenPart_data()
{
    QTest::addColumn<QString>("calls");
    QTest::addColumn<int>("points");
    QTest::addColumn<int>("segments");
    QTest::newRow("second by second") << drive({0, 1, 2, 3}) << 4 << 1;
    QTest::newRow("at double speed") << drive({0, 1, 3, 4, 6}) << 5 << 1;
    QTest::newRow("the same sample again") << drive({0, 1, 1}) << 2 << 1;
    QTest::newRow("a jump forward") << drive({0, 1, 2, 20, 21}) << 5 << 2;
    QTest::newRow("a jump back") << drive({4, 5, 6, 7, 8, 6, 7}) << 4 << 1;
    QTest::newRow("back across a jump forward") << drive({0, 1, 2, 20, 21, 2, 3}) << 4 << 1;
    QTest::newRow("no fix between") << drive({0, 1}) + addPoint({0, 0}, 2) + drive({3}) << 3 << 2;
    QTest::newRow("nonsense between") << drive({0}) + addPoint({500, 95}, 1) + drive({2}) << 2 << 2;
    QTest::newRow("the route up to the sample") << route() + drive({30}) << 31 << 1;
    QTest::newRow("a jump back on the route") << route() + drive({30, 12}) << 13 << 1;
    QTest::newRow("gaps of the route") << route(0, 39, 40, {5, 6, 7}) + drive({20}) << 18 << 2;
    QTest::newRow("the route comes later") << drive({7, 8}) + route() << 9 << 1;
    QTest::newRow("half a route is none") << drive({7, 8}) + route(0, 20) << 2 << 1;
    QTest::newRow("a route without its beginning") << drive({7, 8}) + route(5) << 2 << 1;
    QTest::newRow("another recording's route")
        << route() + addPoint({13.4, 52.5}, 0) + addPoint({13.401, 52.5}, 1) << 2 << 1;
    QTest::newRow("across the 180th meridian")
        << addPoint({179.9999, -17}, 0) + addPoint({-179.9999, -17}, 1) << 2 << 2;
}

void tst_MapPages::drivenPart()
{
    QFETCH(QString, calls);
    QFETCH(int, points);
    openOpenStreetMap();
    run(calls);
    QTRY_COMPARE(state("drivenPoints").toInt(), points);
    QTEST(state("drivenSegments").toInt(), "segments");
}

void tst_MapPages::clearing()
{
    openOpenStreetMap();
    run(route() + drive({3, 4}) + route(0, 20));
    QTRY_COMPARE(state("drivenPoints").toInt(), 2); // The half received route has replaced the old.
    QCOMPARE(state("routePoints").toInt(), 0);
    run(QStringLiteral("mapClearAll();") + route(21));
    QTRY_COMPARE(state("drivenPoints").toInt(), 0);
    QCOMPARE(state("routePoints").toInt(), 0);
    QVERIFY(state("position").isNull());

    run(route());
    QTRY_COMPARE(state("routePoints").toInt(), RouteLength);
    run(route(0, 9, 10));
    QTRY_COMPARE(state("routePoints").toInt(), 10);
    QCOMPARE(state("fits").toInt(), 2);
    run(QStringLiteral("mapClearAll()"));
    QTRY_COMPARE(state("routePoints").toInt(), 0);
}

void tst_MapPages::following()
{
    openOpenStreetMap();
    run(addPoint(placeOf(0), 0));
    QTRY_VERIFY(viewContains(placeOf(0)));
    const QVariant view = state("view");
    run(addPoint(placeOf(1), 1));
    QTRY_COMPARE(state("drivenPoints").toInt(), 2);
    QCOMPARE(state("view"), view);
    const Place away{12.3, 48.0};
    run(addPoint(away, 2));
    QTRY_VERIFY(viewContains(away));
    QCOMPARE(state("position").toList(), (QVariantList{away.lng, away.lat}));

    // A hand on the map keeps it from moving.
    run(QStringLiteral("document.getElementById('map').dispatchEvent(new Event('pointerdown'));") +
        addPoint(placeOf(3), 3));
    QTRY_COMPARE(state("drivenPoints").toInt(), 4);
    QVERIFY(!viewContains(placeOf(3)));
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
    openOpenStreetMap();
    for (int i = 0; i < count; ++i) // one by one, as the program does
        mView->page()->runJavaScript(routePoint(placeOf(i), i, count));
    QElapsedTimer sinceLastCall;
    sinceLastCall.start();
    QTRY_COMPARE_WITH_TIMEOUT(state("routePoints").toInt(), count, 60000);
    qInfo("%d points are drawn after %lld ms", count, sinceLastCall.elapsed());
    QCOMPARE(state("routeSegments").toInt(), 1);
    QVERIFY(state("frames").toInt() <= 3); // never one for each point
}

void tst_MapPages::providers()
{
    QTest::addColumn<QString>("page");
    QTest::newRow("Google") << QStringLiteral("WG_GoogleMapIndex_fr");
    QTest::newRow("Baidu") << QStringLiteral("BaiduMapIndex");
}

void tst_MapPages::callsBeforeReady()
{
    QFETCH(QString, page);
    openStandIn(page);
    run(drive({20, 21, 22}) + QStringLiteral("mapClearAll();"));
    QCOMPARE(state("held").toInt(), 0);
    run(route(0, 9, 10, {4}) + drive({0, 1, 2, 1}));
    QCOMPARE(state("held").toInt(), 14);
    run(QStringLiteral("standIn.answer()"));
    QTRY_COMPARE(state("drivenPoints").toInt(), 2);
    const QVariantMap report = run(QStringLiteral("standIn.report()")).toMap();
    QList<int> lengths;
    for (const QVariant &line : report[QStringLiteral("lines")].toList())
        lengths.append(line.toList().size());
    // Route and casing in two segments each, the driven part in one.
    std::sort(lengths.begin(), lengths.end());
    QCOMPARE(lengths, (QList<int>{2, 4, 4, 5, 5}));
    QCOMPARE(report[QStringLiteral("marks")].toList().size(), 3);

    run(QStringLiteral("mapClearAll()"));
    QTRY_COMPARE(run(QStringLiteral("standIn.report()")).toMap(),
                 (QVariantMap{{QStringLiteral("lines"), QVariantList()},
                              {QStringLiteral("marks"), QVariantList()}}));
    QVERIFY(mBlocker.hosts.isEmpty());
}

void tst_MapPages::datum_data()
{
    QTest::addColumn<Place>("wgs");
    QTest::addColumn<Place>("gcj");
    const auto unshifted = [](const char *name, Place place) {
        QTest::newRow(name) << place << place;
    };
    QTest::newRow("Shanghai") << Place{121.5272106, 31.1774276}
                              << Place{121.531541859215, 31.17530398364597};
    QTest::newRow("Hubei") << Place{114.21892734521, 29.575429778924}
                           << Place{114.2307519546763, 29.57908428837437};
    unshifted("Sydney", {151.215219, -33.856731});
    unshifted("New York", {-74.013476, 40.705562});
    unshifted("Seoul", {126.99118, 37.552738});
    unshifted("Osaka", {135.5023, 34.6937});
    unshifted("Delhi", {77.209, 28.6139});
    unshifted("Hong Kong", {114.1747, 22.2988});
    unshifted("Macau", {113.5439, 22.1987});
    unshifted("Taipei", {121.5654, 25.033});
}

void tst_MapPages::datum()
{
    QFETCH(Place, wgs);
    QFETCH(Place, gcj);
    constexpr double Metre = 1.0 / 111195.0; // in degrees: what the formula is known to keep
    const auto isNear = [](Place expected, const QVariant &shown) {
        const QVariantList at = shown.toMap()[QStringLiteral("marks")].toList().value(0).toList();
        return std::abs(at.value(1).toDouble() - expected.lng) < Metre &&
               std::abs(at.value(2).toDouble() - expected.lat) < Metre;
    };
    for (const auto &[page, expected] :
         {std::pair{"WG_GoogleMapIndex_en", gcj}, std::pair{"BaiduMapIndex", bdOf(gcj)}}) {
        openStandIn(QLatin1String(page));
        run(QStringLiteral("standIn.answer();") + addPoint(wgs, 0));
        QTRY_VERIFY(!state("position").isNull());
        QVERIFY2(isNear(expected, run(QStringLiteral("standIn.report()"))), page);
    }
    openOpenStreetMap();
    run(addPoint(wgs, 0));
    QTRY_VERIFY(!state("position").isNull());
    QVERIFY(std::abs(state("position").toList().at(0).toDouble() - wgs.lng) < 1e-6);
}

void tst_MapPages::missingKey_data()
{
    QTest::addColumn<QString>("sentence");
    const std::initializer_list<std::pair<const char *, const char *>> sentences = {
        {"WG_GoogleMapIndex_zh_CN", "Google 地图需要您自己的密钥。"},
        {"WG_GoogleMapIndex_zh_TW", "Google 地圖需要您自己的金鑰。"},
        {"WG_GoogleMapIndex_en_talvor", "Google Maps needs a key of your own."},
        {"WG_GoogleMapIndex_en_uk", "Google Maps needs a key of your own."},
        {"WG_GoogleMapIndex_fr", "Google Maps nécessite une clé personnelle."},
        {"WG_GoogleMapIndex_it", "Per Google Maps serve una chiave personale."},
        {"WG_GoogleMapIndex_ja", "Google マップを使うには、ご自身のキーが必要です。"},
        {"WG_GoogleMapIndex_pl", "Aby korzystać z Google Maps, potrzebny jest własny klucz."},
        {"WG_GoogleMapIndex_ru", "Для Google Maps нужен собственный ключ."},
        {"WG_GoogleMapIndex_de", "Für Google Maps wird ein eigener Schlüssel benötigt."},
        {"WG_GoogleMapIndex_es", "Google Maps necesita una clave propia."},
        {"WG_GoogleMapIndex_pt", "O Google Maps requer uma chave própria."},
        {"WG_GoogleMapIndex_ko", "Google 지도를 사용하려면 본인의 키가 필요합니다."},
        {"WG_GoogleMapIndex_en", "Google Maps needs a key of your own."},
        {"BaiduMapIndex", "百度地图需要您自己的密钥。"},
    };
    for (const auto &[page, sentence] : sentences)
        QTest::newRow(page) << QString::fromUtf8(sentence);
}

void tst_MapPages::missingKey()
{
    QFETCH(QString, sentence);
    open(QStringLiteral(MAPS_FOLDER), QLatin1String(QTest::currentDataTag()));
    const QString message = state("message").toString();
    QVERIFY2(message.startsWith(sentence), qPrintable(message));
    QVERIFY(message.contains(QLatin1String("keys.js")));
    QVERIFY(mBlocker.hosts.isEmpty());
}

void tst_MapPages::unusableProviders_data()
{
    providers();
}

void tst_MapPages::unusableProviders()
{
    QFETCH(QString, page);
    openStandIn(page);
    QCOMPARE(state("message").toString(), QString());
    run(QStringLiteral("standIn.answer(); standIn.refuseKey();"));
    const QString refused = state("message").toString();
    QVERIFY(refused.contains(QLatin1String("keys.js")));

    // The real address, without a network; nobody else is asked.
    open(folderWith(SentGoogleScript, SentBaiduScript), page);
    QTRY_VERIFY(!state("message").toString().isEmpty());
    QVERIFY(state("message").toString() != refused);
    const bool isGoogle = page.contains(QLatin1String("Google"));
    const QUrl asked(isGoogle ? SentGoogleScript : SentBaiduScript);
    QCOMPARE(mBlocker.hosts, QSet<QString>{asked.host()});

    // A script that breaks, as in a web engine too old for it.
    openStandIn(page);
    run(QStringLiteral("(window.google || window.BMap).maps = window.BMap = null;"
                       "standIn.answer();"));
    QVERIFY(!state("message").toString().isEmpty());
}

void tst_MapPages::serverThatNeverAnswers()
{
    QTcpServer server; // accepts, and says nothing
    QVERIFY(server.listen(QHostAddress::LocalHost));
    const QString url = QStringLiteral("http://127.0.0.1:%1/").arg(server.serverPort());
    QElapsedTimer timer;
    timer.start();
    open(folderWith(url, url), QStringLiteral("WG_GoogleMapIndex_pl"));
    QVERIFY2(timer.elapsed() < 8000, "the page does not count as loaded");
    run(drive({0, 1}));
    QTRY_VERIFY(server.hasPendingConnections());
    QCOMPARE(state("message").toString(), QString());
    QTRY_VERIFY_WITH_TIMEOUT(!state("message").toString().isEmpty(), 15000);

    // It answers after all.
    QFile standIn(QStringLiteral(MAP_STANDINS "/google.js"));
    QVERIFY(standIn.open(QIODevice::ReadOnly));
    QTcpSocket *connection = server.nextPendingConnection();
    connection->write("HTTP/1.0 200 OK\r\nContent-Type: text/javascript\r\n\r\n" +
                      standIn.readAll());
    connection->disconnectFromHost();
    QTRY_VERIFY(run(QStringLiteral("'standIn' in window")).toBool());
    run(QStringLiteral("standIn.answer()"));
    QTRY_COMPARE(state("drivenPoints").toInt(), 2);
    QCOMPARE(state("message").toString(), QString());
}

int main(int argc, char **argv)
{
    if (geteuid() == 0) // The engine's sandbox refuses to run as root.
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QApplication application(argc, argv);
    tst_MapPages test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_mappages.moc"
