// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWebEnginePage>

/**
 * The web page that holds the map. It stays on its own page: what a user clicks that leads
 * elsewhere, such as the link of the attribution, opens in the system's browser.
 *
 * GUI thread only.
 */
class MapPage : public QWebEnginePage
{
    Q_OBJECT

public:
    /** The profile must live longer than the page. */
    MapPage(QWebEngineProfile *profile, QObject *parent);

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;
    QWebEnginePage *createWindow(WebWindowType type) override;
};
