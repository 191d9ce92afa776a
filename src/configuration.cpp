// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "configuration.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QLocale>
#include <QSettings>
#include <QStandardPaths>

namespace {

const QString ScreenshotSavePathKey = QStringLiteral("ScreenshotSavePath");
const QString LanguageKey = QStringLiteral("language");
const QString CountryKey = QStringLiteral("country");
const QString MapsKey = QStringLiteral("maps");
const QString SpeedUnitKey = QStringLiteral("speedUnit");
const QString VideoFilePathKey = QStringLiteral("videoFilePath");
const QString MainwindowsRectKey = QStringLiteral("mainwindowsRect");
const QString MainwindowsIsMaximizeKey = QStringLiteral("mainwindowsIsMaximize");

QString firstLocation(QStandardPaths::StandardLocation location, const QString &fallback)
{
    return QStandardPaths::standardLocations(location).value(0, fallback);
}

} // namespace

Configuration *Configuration::manager = nullptr;

Configuration *Configuration::GetInstance()
{
    if (!manager)
        manager = new Configuration;
    return manager;
}

void Configuration::ReleaseInstance()
{
    delete manager;
    manager = nullptr;
}

Configuration::Configuration()
{
    const QString directory =
        firstLocation(QStandardPaths::AppLocalDataLocation, QCoreApplication::applicationDirPath());
    const QString path = directory + QStringLiteral("/configuration.ini");
    qDebug() << path;
    mSettings = new QSettings(path, QSettings::IniFormat, this);
}

QString Configuration::screenshotSavePath()
{
    const QString pictures = firstLocation(QStandardPaths::PicturesLocation, QDir::homePath());
    const QString byDefault =
        QStringLiteral("%1/%2").arg(pictures, QCoreApplication::applicationName());
    return mSettings->value(ScreenshotSavePathKey, byDefault).toString();
}

void Configuration::setScreenshotSavePath(const QString &path)
{
    store(ScreenshotSavePathKey, path);
}

Language_e Configuration::language()
{
    return Language_e(mSettings->value(LanguageKey, LanguageUnset).toInt());
}

void Configuration::setLanguage(Language_e language)
{
    store(LanguageKey, int(language));
    emit updateLanguage();
}

bool Configuration::isChinaMainlandArea()
{
    int country = mSettings->value(CountryKey, 0).toInt();
    if (country == 0) {
        country = QLocale::system().country();
        store(CountryKey, country);
    }
    return country == QLocale::China;
}

MapTypes Configuration::maps()
{
    return MapTypes(mSettings->value(MapsKey, MapOpenStreetMap).toInt());
}

void Configuration::setMaps(MapTypes maps)
{
    if (this->maps() == maps)
        return;
    store(MapsKey, int(maps));
    emit mapsChanged(maps);
}

int Configuration::speedUnit()
{
    return mSettings->value(SpeedUnitKey, 0).toInt();
}

void Configuration::setSpeedUnit(int unit)
{
    store(SpeedUnitKey, unit);
}

QString Configuration::videoFilePath()
{
    const QString movies = firstLocation(QStandardPaths::MoviesLocation, QDir::homePath());
    return mSettings->value(VideoFilePathKey, movies).toString();
}

void Configuration::setVideoFilePath(const QString &path)
{
    store(VideoFilePathKey, path);
}

QRect Configuration::getMainwindowsRect()
{
    return mSettings->value(MainwindowsRectKey, defaultMainwindowsRect()).toRect();
}

void Configuration::setMainwindowsRect(const QRect &rect)
{
    store(MainwindowsRectKey, rect);
}

bool Configuration::getMainwindowsIsMaximize()
{
    return mSettings->value(MainwindowsIsMaximizeKey, false).toBool();
}

void Configuration::setMainwindowsIsMaximize(bool maximized)
{
    store(MainwindowsIsMaximizeKey, maximized);
}

QRect Configuration::defaultMainwindowsRect()
{
    return QRect(483, 166, 921, 628);
}

void Configuration::store(const QString &key, const QVariant &value)
{
    mSettings->setValue(key, value);
    mSettings->sync();
}
