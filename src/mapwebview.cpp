// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "mapwebview.h"

#include "gpsuser.h"
#include "linkclicks.h"
#include "mapclicks.h"
#include "mappage.h"
#include "maprequests.h"
#include "overlaywindow.h"
#include "pagecalls.h"

#include <QColor>
#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QEvent>
#include <QLockFile>
#include <QTime>
#include <QUrl>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineView>

#include <iterator>

namespace {

constexpr int PageLoadMs = 1000;
constexpr int SettleMs = 500;
constexpr int EventSliceMs = 100;
constexpr int CallsPerTurn = 500; // of a long track, before others may make theirs
constexpr int TileCacheBytes = 100 * 1024 * 1024;

constexpr QRgb MapBackground = qRgb(37, 37, 40); // that of the pages, which paint it too late

const char GooglePagePrefix[] = "WG_";
const QString KeyScript = QStringLiteral("keys");

// By language, as the settings number them; the last is for all others.
const char *const GooglePages[] = {
    "GoogleMapIndex_zh_CN.html", "GoogleMapIndex_zh_TW.html", "GoogleMapIndex_en_talvor.html",
    "GoogleMapIndex_en_uk.html", "GoogleMapIndex_fr.html",    "GoogleMapIndex_it.html",
    "GoogleMapIndex_ja.html",    "GoogleMapIndex_pl.html",    "GoogleMapIndex_ru.html",
    "GoogleMapIndex_de.html",    "GoogleMapIndex_es.html",    "GoogleMapIndex_pt.html",
    "GoogleMapIndex_ko.html",    "GoogleMapIndex_en.html",
};

// What pages in no language of their own are told, likewise.
const char *const PageLanguages[] = {"zh-CN", "zh-TW", "en-US", "en-GB", "fr", "it", "ja",
                                     "pl",    "ru",    "de",    "es",    "pt", "ko", "en-US"};

struct MapCentre
{
    double longitude;
    double latitude;
};

// Likewise: what the map shows before a recording has brought a route. Both Chinese variants share
// one centre; the third, English, lies south of the equator.
constexpr MapCentre Centres[] = {
    {116.3753, 39.9},
    {116.3753, 39.9},
    {151.215219, -33.856731},
    {-0.1267719269, 51.5087958794},
    {2.349872, 48.852969},
    {12.49875, 41.896463},
    {139.766909, 35.681151},
    {21.005988, 52.231847},
    {37.617487, 55.75203},
    {13.393621, 52.517892},
    {-3.712177, 40.423428},
    {-9.139509, 38.71217},
    {126.991179927, 37.5527383075},
    {-74.013476, 40.705562},
};

template <typename Table>
const auto &ofLanguage(const Table &table)
{
    const int language = Configuration::GetInstance()->language();
    const int last = int(std::size(table)) - 1;
    return table[language >= 0 && language < last ? language : last];
}

QString fixed(double degrees)
{
    return QStringLiteral("%1").arg(degrees, 0, 'f', 6);
}

/** Tells a page of its key before its own scripts run. The page before it may be loading still, and
 *  another may take its place: neither is told. */
QWebEngineScript keyScript(const QString &fileName, const QByteArray &keys)
{
    const QString source = QStringLiteral(
        "if (location.protocol === 'file:' && location.pathname.endsWith('/maps/%1'))"
        " window.talvorMapKeys = %2;");
    QWebEngineScript script;
    script.setName(KeyScript);
    script.setSourceCode(source.arg(fileName, QString::fromUtf8(keys)));
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::MainWorld);
    script.setRunsOnSubFrames(false);
    return script;
}

/** The first profile starts the web engine, which finds out by then that it may send no datagrams
 *  (WebRTC), and programs that are started later need not know. */
QWebEngineProfile *makeProfile(const QString &name, QObject *parent)
{
    const char variable[] = "QTWEBENGINE_CHROMIUM_FLAGS";
    const bool isSet = qEnvironmentVariableIsSet(variable);
    const QByteArray flags = qgetenv(variable);
    qputenv(variable, flags + " --force-webrtc-ip-handling-policy=disable_non_proxied_udp");
    auto *profile = new QWebEngineProfile(name, parent);
    if (isSet)
        qputenv(variable, flags);
    else
        qunsetenv(variable);
    return profile;
}

} // namespace

MapWebView::MapWebView(QWidget *parent) : QWidget(parent)
{
    qRegisterMetaType<QVector<QVector<double>>>("QVector<QVector<double> >");
    qRegisterMetaType<QVector<double>>("QVector<double>");
    setupWebView();
    mKeys.createUserFile();
    setMapType(Configuration::GetInstance()->maps());
    if (parent)
        topWindow = parent->window();
    if (topWindow)
        topWindow->installEventFilter(this);
    installEventFilter(this);
}

MapWebView::~MapWebView()
{
    delete webView;
}

void MapWebView::updatePosition()
{
    mOverlay->cover();
}

void MapWebView::dropTrack()
{
    ++mDropCount;
}

QString MapWebView::userAgent(const QString &contact)
{
    const QString program = QStringLiteral("TalvorPlayer/" TALVOR_VERSION);
    return contact.isEmpty() ? program : QStringLiteral("%1 (%2)").arg(program, contact);
}

void MapWebView::delay_time(int ms)
{
    qDebug() << "------ 将延时" << ms << " ms ------";
    const QTime deadline = QTime::currentTime().addMSecs(ms);
    while (QTime::currentTime() < deadline)
        QCoreApplication::processEvents(QEventLoop::AllEvents, EventSliceMs);
}

bool MapWebView::eventFilter(QObject *watched, QEvent *event)
{
    const bool isOwn = watched == this;
    if (isOwn || watched == topWindow) {
        if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
            updatePosition();
        else if (isOwn && event->type() == QEvent::Show)
            mOverlay->show();
        else if (isOwn && event->type() == QEvent::Hide)
            mOverlay->hide();
    }
    return QWidget::eventFilter(watched, event);
}

void MapWebView::setMapType(MapTypes type)
{
    switch (type) {
    case MapBaidu:
        qDebug() << "百度地图 setMapType map-baidu";
        loadPageOf(type, QStringLiteral("BaiduMapIndex.html"));
        break;
    case MapGoogle:
        loadPageOf(type, QLatin1String(GooglePagePrefix) + QLatin1String(ofLanguage(GooglePages)));
        qDebug() << "谷歌地图 SetMapType Google Map";
        break;
    case MapOpenStreetMap:
        qDebug() << "OSM地图 setMapType map-OpenstreetMap";
        loadOpenStreetMap();
        break;
    }
}

void MapWebView::addPoint(const MapPoint &point)
{
    runScript(QStringLiteral("mapAddPoint(%1, %2, %3);")
                  .arg(fixed(point.longitude), fixed(point.latitude))
                  .arg(point.id));
}

void MapWebView::clearAll()
{
    const int dropCount = ++mDropCount;
    delay_time(SettleMs);
    qDebug() << "ClearAll Map";
    // Another one, called in the meantime, has cleared the map, and a track may be there by now.
    if (dropCount == mDropCount)
        runScript(QStringLiteral("mapClearAll();"));
}

void MapWebView::loseFix(int sampleId, const std::optional<MapPoint> &lastFix)
{
    const QString longitude = lastFix ? fixed(lastFix->longitude) : QStringLiteral("null");
    const QString latitude = lastFix ? fixed(lastFix->latitude) : QStringLiteral("null");
    runScript(QStringLiteral("window.mapLoseFix && mapLoseFix(%1, %2, %3);")
                  .arg(longitude, latitude)
                  .arg(sampleId));
}

void MapWebView::setTelemetryMissing(bool isMissing)
{
    if (isMissing == mIsTelemetryMissing)
        return;
    mIsTelemetryMissing = isMissing;
    tellTelemetry();
}

void MapWebView::setWebViewVisible(bool visible)
{
    qDebug() << "setWebViewVisible";
    if (visible)
        updatePosition();
    else
        mOverlay->park();
}

void MapWebView::loadAllGpsData(QVector<QVector<double>> allGpsData)
{
    const int dropCount = mDropCount;
    delay_time(SettleMs);
    if (dropCount == mDropCount && Configuration::GetInstance()->maps() == MapOpenStreetMap) {
        if (allGpsData.isEmpty()) {
            qDebug() << "地图没有轨迹";
        } else {
            qDebug() << "地图有轨迹，将加载全部";
            sendTrack(allGpsData);
        }
    }
    allDataLoaded = true;
}

void MapWebView::setWheelZoomValid()
{
    wheelZoomValid = true;
}

void MapWebView::runScript(const QString &call)
{
    mCalls->run(call);
}

void MapWebView::setupWebView()
{
    webView = new QWebEngineView(this);
    // A profile with a name keeps its tiles on disk.
    auto *profile = makeProfile(QStringLiteral("map"), this);
    keepTilesOnDisk(profile);
    profile->setHttpUserAgent(userAgent(QStringLiteral(TALVOR_CONTACT)));
    mRequests = new MapRequests(profile);
    auto *page = new MapPage(profile, webView);
    webView->setPage(page);
    auto *clicks = new LinkClicks(webView);
    connect(page, &MapPage::linkClicked, clicks, &LinkClicks::follow);
    connect(page, &MapPage::windowWanted, clicks, &LinkClicks::followInWindow);
    mClicks = new MapClicks(webView);
    webView->page()->setBackgroundColor(MapBackground);
    mCalls = new PageCalls(webView->page(), this);
    connect(mCalls, &PageCalls::pageLost, this, &MapWebView::loadPageAgain);

    mOverlay = new OverlayWindow(webView, this, this);
    webView->setContextMenuPolicy(Qt::NoContextMenu);
    webView->setAcceptDrops(false);
}

// The cache on disk serves one program at a time; a second one keeps its tiles in memory.
void MapWebView::keepTilesOnDisk(QWebEngineProfile *profile)
{
    profile->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
    QDir().mkpath(profile->cachePath());
    mCacheLock = std::make_unique<QLockFile>(profile->cachePath() + QStringLiteral("/lock"));
    mCacheLock->setStaleLockTime(0);
    if (mCacheLock->tryLock())
        profile->setHttpCacheMaximumSize(TileCacheBytes);
    else
        profile->setHttpCacheType(QWebEngineProfile::MemoryHttpCache);
}

void MapWebView::loadPage(const QString &fileName)
{
    webView->page()->profile()->setHttpAcceptLanguage(QLatin1String(ofLanguage(PageLanguages)));
    mRequests->readHosts();
    mCalls->load(QUrl::fromLocalFile(MapRequests::folder() + fileName));
    if (mIsTelemetryMissing)
        tellTelemetry(); // for a new page knows nothing
}

void MapWebView::tellTelemetry()
{
    runScript(QStringLiteral("window.mapMissTelemetry && mapMissTelemetry(%1);")
                  .arg(QLatin1String(mIsTelemetryMissing ? "true" : "false")));
}

/** With the provider's key and no other. */
void MapWebView::loadPageOf(MapTypes provider, const QString &fileName)
{
    QWebEngineScriptCollection &scripts = webView->page()->scripts();
    scripts.remove(scripts.findScript(KeyScript));
    const QByteArray keys = mKeys.forPage(provider);
    if (!keys.isEmpty())
        scripts.insert(keyScript(fileName, keys));
    loadPage(fileName);
}

void MapWebView::loadPageAgain()
{
    setMapType(Configuration::GetInstance()->maps());
}

void MapWebView::loadOpenStreetMap()
{
    loadPageOf(MapOpenStreetMap, QStringLiteral("OpenStreetMap.html"));
    delay_time(PageLoadMs);
    const MapCentre &centre = ofLanguage(Centres);
    runScript(QStringLiteral("showMapCenter(%1, %2);").arg(centre.longitude).arg(centre.latitude));
    qDebug() << "显示 OSM 地图中心点";
    if (allDataLoaded)
        sendTrackAgain();
}

void MapWebView::sendTrackAgain()
{
    qDebug() << "setMapType map-osm";
    const auto *stored = static_cast<GPSUser *>(userData(GPS_USER_DATA_ID));
    if (!stored)
        return; // the caller of loadAllGpsData() has not attached it yet
    qDebug() << "本地数据 ID : " << stored->rowId << ",本地数据：gpsGroup"
             << stored->allGpsData.size();
    qDebug() << "OSM MAP START";
    runScript(QStringLiteral("mapClearAll()"));
    loadAllGpsData(stored->allGpsData);
}

void MapWebView::sendTrack(const QVector<QVector<double>> &track)
{
    const QString call = QStringLiteral("loadAllGpsDataOfVideo(%1, %2, %3, %4)");
    const int dropCount = mDropCount;
    const int page = mCalls->pageCount();
    const auto isWanted = [&] { return dropCount == mDropCount && page == mCalls->pageCount(); };
    for (int i = 0; i < track.size() && isWanted(); ++i) {
        const QVector<double> &pair = track.at(i);
        runScript(call.arg(fixed(pair.at(0)), fixed(pair.at(1))).arg(i).arg(track.size()));
        if (i % CallsPerTurn == CallsPerTurn - 1)
            mCalls->letPageCatchUp();
    }
    // A page that was loaded meanwhile knows nothing of this track.
    if (page != mCalls->pageCount() && dropCount == mDropCount &&
        Configuration::GetInstance()->maps() == MapOpenStreetMap)
        sendTrack(track);
}
