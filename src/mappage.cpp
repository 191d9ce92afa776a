// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "mappage.h"

#include <QDesktopServices>
#include <QUrl>

namespace {

void openInBrowser(const QUrl &url)
{
    if (url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http"))
        QDesktopServices::openUrl(url);
}

/** Stands for the window that a link asks for, only to learn where the link leads. */
class LinkTarget : public QWebEnginePage
{
public:
    using QWebEnginePage::QWebEnginePage;

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType, bool) override
    {
        openInBrowser(url);
        deleteLater();
        return false;
    }
};

} // namespace

MapPage::MapPage(QWebEngineProfile *profile, QObject *parent) : QWebEnginePage(profile, parent) {}

bool MapPage::acceptNavigationRequest(const QUrl &url, NavigationType type, bool)
{
    if (type != NavigationTypeLinkClicked)
        return true;
    openInBrowser(url);
    return false;
}

QWebEnginePage *MapPage::createWindow(WebWindowType)
{
    return new LinkTarget(profile(), this);
}
