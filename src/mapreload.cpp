// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "mapreload.h"

#include "configuration.h"
#include "mapwebview.h"

MapReload::MapReload(MapWebView *map)
    : QObject(map), mMap(map), mLanguage(Configuration::GetInstance()->language())
{
    mTimer.setSingleShot(true);
    mTimer.setInterval(0);
    connect(&mTimer, &QTimer::timeout, this, &MapReload::reload);
    connect(Configuration::GetInstance(), &Configuration::updateLanguage, this,
            &MapReload::onUpdateLanguage);
    connect(Configuration::GetInstance(), &Configuration::mapsChanged, &mTimer, &QTimer::stop);
}

void MapReload::onUpdateLanguage()
{
    const int language = Configuration::GetInstance()->language();
    if (language == mLanguage)
        return;
    mLanguage = language;
    mTimer.start();
}

void MapReload::reload()
{
    mMap->setMapType(Configuration::GetInstance()->maps());
}
