// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "configuration.h"
#include "mapkeys.h"
#include "mappoint.h"

#include <QVector>
#include <QWidget>

#include <memory>
#include <optional>

class MapClicks;
class MapRequests;
class OverlayWindow;
class PageCalls;
class QLockFile;
class QWebEngineProfile;
class QWebEngineView;

/**
 * The place of the map in the main window, and the web view that lies over it.
 *
 * The map is a local page, one for each provider, that is driven by calls of its JavaScript
 * functions only (PageCalls). A page that is missing shows the web view's own error; one whose
 * process dies is loaded again, and given the track again.
 *
 * The web view is a window that follows this widget (OverlayWindow), because a picture of the web
 * engine does not mix with those of a video in one window.
 *
 * GUI thread only. Some of the commands wait while events are processed, so that other slots run
 * in the meantime, those of this class included.
 */
class MapWebView : public QWidget
{
    Q_OBJECT

public:
    /** Loads the page of the configured provider at once. Makes sure that the user has a file to
     * put keys into. */
    explicit MapWebView(QWidget *parent = nullptr);
    ~MapWebView() override;

    /** Lays the web view over this widget and shows it. */
    void updatePosition();
    /** Ends the sending of a track, if one is being sent or about to be. */
    void dropTrack();

    /** What the user clicks on the map; owned by the web view. */
    MapClicks *clicks() const { return mClicks; }

    /** What servers are told of who asks: the program, its version and, if there is one, the
     * address at which they reach the packager. */
    static QString userAgent(const QString &contact);

    /** Processes events for @p ms milliseconds of the time of day; a wait across midnight ends at
     *  once. */
    static void delay_time(int ms);

    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    /** Loads the provider's page, in the configured language where the provider has one for each,
     *  with the key for it that the files hold by now. OpenStreetMap is waited for, centred, and
     * given the track again (GPSUser). */
    void setMapType(MapTypes type);
    /** Extends the live track by a point, which must be a position. */
    void addPoint(const MapPoint &point);
    void clearAll();
    /** Shows the position in grey, at the last fix before the sample with this number, or none if
     *  there has not been any. The next point brings the colour back. */
    void loseFix(int sampleId, const std::optional<MapPoint> &lastFix);
    /** Whether a line on the map says that the recording has no telemetry, on the pages to come as
     *  well. */
    void setTelemetryMissing(bool isMissing);
    /** Lays the web view over this widget, or parks it below the screen, where it keeps running. */
    void setWebViewVisible(bool visible);
    /** Sends a whole track, pairs of longitude and latitude, unless the map is cleared before that.
     *  Only OpenStreetMap takes one. */
    void loadAllGpsData(QVector<QVector<double>> allGpsData);
    /** Has no effect. */
    void setWheelZoomValid();

protected:
    /** Runs a call in the page, at once or when the page has loaded. */
    virtual void runScript(const QString &call);

private:
    void setupWebView();
    void loadPage(const QString &fileName);
    void tellTelemetry();
    void loadPageOf(MapTypes provider, const QString &fileName);
    void loadPageAgain();
    void keepTilesOnDisk(QWebEngineProfile *profile);
    void loadOpenStreetMap();
    void sendTrackAgain();
    void sendTrack(const QVector<QVector<double>> &track);

    QWebEngineView *webView = nullptr; // deleted by hand: its page goes before the profile
    bool wheelZoomValid = true;
    QWidget *topWindow = nullptr; ///< the window that this widget lies in, may be null
    bool mIsTelemetryMissing = false;
    bool allDataLoaded = false; ///< a track was offered, whether or not the page took it

    const MapKeys mKeys = MapKeys::ofProgram();
    OverlayWindow *mOverlay = nullptr;
    PageCalls *mCalls = nullptr;
    MapRequests *mRequests = nullptr;
    MapClicks *mClicks = nullptr;
    int mDropCount = 0; // a track that is older than the last of these is given up
    std::unique_ptr<QLockFile> mCacheLock;
};
