// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "mappage.h"

#include "maprequests.h"

#include <QUrl>
#include <QWebEngineCertificateError>
#include <QWebEngineFullScreenRequest>
#include <QWebEngineQuotaRequest>
#include <QWebEngineRegisterProtocolHandlerRequest>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>

namespace {

// What a map does not need of a browser.
constexpr QWebEngineSettings::WebAttribute Unneeded[] = {
    QWebEngineSettings::LocalContentCanAccessFileUrls,
    QWebEngineSettings::LocalContentCanAccessRemoteUrls,
    QWebEngineSettings::JavascriptCanOpenWindows,
    QWebEngineSettings::JavascriptCanAccessClipboard,
    QWebEngineSettings::JavascriptCanPaste,
    QWebEngineSettings::AllowWindowActivationFromJavaScript,
    QWebEngineSettings::AllowRunningInsecureContent,
    QWebEngineSettings::AllowGeolocationOnInsecureOrigins,
    QWebEngineSettings::PluginsEnabled,
    QWebEngineSettings::FullScreenSupportEnabled,
    QWebEngineSettings::ScreenCaptureEnabled,
    QWebEngineSettings::HyperlinkAuditingEnabled,
    QWebEngineSettings::DnsPrefetchEnabled,
    QWebEngineSettings::AutoLoadIconsForPage,
#if QT_VERSION >= QT_VERSION_CHECK(5, 13, 0)
    QWebEngineSettings::PdfViewerEnabled,
#endif
};

} // namespace

MapPage::MapPage(QWebEngineProfile *profile, QObject *parent) : QWebEnginePage(profile, parent)
{
    switchOffBrowser();
    removeWebRtc();
    refuseRequests();
}

// A script goes nowhere; only the program's own loads count as typed. A frame is bound by the
// page's policy as long as it has nothing of its own to show.
bool MapPage::acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame)
{
    if (type == NavigationTypeLinkClicked && isMainFrame)
        emit linkClicked(url);
    if (isMainFrame)
        return type == NavigationTypeTyped && MapRequests::isMapPage(url);
    return url.scheme() == QLatin1String("about");
}

bool MapPage::certificateError(const QWebEngineCertificateError &)
{
    return false;
}

QStringList MapPage::chooseFiles(FileSelectionMode, const QStringList &, const QStringList &)
{
    return {};
}

QWebEnginePage *MapPage::createWindow(WebWindowType)
{
    emit windowWanted();
    return nullptr;
}

void MapPage::javaScriptAlert(const QUrl &, const QString &) {}

// The web engine asks here as well whether a page may be left that would like to stay.
bool MapPage::javaScriptConfirm(const QUrl &, const QString &)
{
    return true;
}

bool MapPage::javaScriptPrompt(const QUrl &, const QString &, const QString &, QString *)
{
    return false;
}

void MapPage::switchOffBrowser()
{
    for (const QWebEngineSettings::WebAttribute attribute : Unneeded)
        settings()->setAttribute(attribute, false);
    settings()->setAttribute(QWebEngineSettings::PlaybackRequiresUserGesture, true);
    settings()->setAttribute(QWebEngineSettings::WebRTCPublicInterfacesOnly, true);
    settings()->setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
}

/** No rule for requests and no policy of a page holds for its connections. A script that makes a
 *  frame still finds it there. */
void MapPage::removeWebRtc()
{
    QWebEngineScript script;
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::MainWorld);
    script.setRunsOnSubFrames(true);
    script.setSourceCode(QStringLiteral("for (const name of Object.getOwnPropertyNames(window))"
                                        "    if (/^(webkit)?RTC/.test(name))"
                                        "        delete window[name];"));
    scripts().insert(script);
}

void MapPage::refuseRequests()
{
    connect(this, &QWebEnginePage::featurePermissionRequested, this,
            [this](const QUrl &origin, Feature feature) {
                setFeaturePermission(origin, feature, PermissionDeniedByUser);
            });
    connect(this, &QWebEnginePage::fullScreenRequested, this,
            [](QWebEngineFullScreenRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::quotaRequested, this,
            [](QWebEngineQuotaRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::registerProtocolHandlerRequested, this,
            [](QWebEngineRegisterProtocolHandlerRequest request) { request.reject(); });
}
