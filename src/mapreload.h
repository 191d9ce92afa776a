// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

class MapWebView;

/**
 * Loads the map's page once more when it is to be in another language. It does so in the next turn
 * of the event loop, because the map view waits for its pages: who has changed the language, the
 * settings dialog above all, need not. When another provider's page is loaded before that, it is in
 * the new language already.
 *
 * GUI thread only. A child of the map view.
 */
class MapReload : public QObject
{
    Q_OBJECT

public:
    explicit MapReload(MapWebView *map);

private:
    void onUpdateLanguage();
    void reload();

    MapWebView *mMap = nullptr; // the parent
    int mLanguage;              // of the page
    QTimer mTimer;
};
