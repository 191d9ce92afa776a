// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "configuration.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QLocale>
#include <QSettings>
#include <QStandardPaths>

#include <iterator>

namespace {

const QString ScreenshotSavePathKey = QStringLiteral("ScreenshotSavePath");
const QString LanguageKey = QStringLiteral("language");
const QString CountryKey = QStringLiteral("country");
const QString MapsKey = QStringLiteral("maps");
const QString SpeedUnitKey = QStringLiteral("speedUnit");
const QString VideoFilePathKey = QStringLiteral("videoFilePath");
const QString MainwindowsRectKey = QStringLiteral("mainwindowsRect");
const QString MainwindowsIsMaximizeKey = QStringLiteral("mainwindowsIsMaximize");
const QString VolumeKey = QStringLiteral("volume");
const QString MutedKey = QStringLiteral("muted");
const QString PlaybackRateKey = QStringLiteral("playbackRate");
const QString RemembersListKey = QStringLiteral("rememberList");

constexpr int FullVolume = 100;

// By language; English is what the texts are written in.
const char *const TranslationNames[] = {
    "Chinese", "ChineseTraditional", nullptr,  nullptr,   "French",
    "Italian", "Japanese",           "Polish", "Russian", "German",
    "Spanish", "Portugal",           "Korean",
};
static_assert(std::size(TranslationNames) == LanguageUnset, "one for each language");

struct LocaleLanguage
{
    QLocale::Language localeLanguage;
    Language_e language;
};

// Which variant of Chinese depends on the country; British English is never derived.
constexpr LocaleLanguage LocaleLanguages[] = {
    {QLocale::English, EnglishUS}, {QLocale::French, French},   {QLocale::Italian, Italian},
    {QLocale::Japanese, Japanese}, {QLocale::Polish, Polish},   {QLocale::Russian, Russian},
    {QLocale::German, German},     {QLocale::Spanish, Spanish}, {QLocale::Portuguese, Portugal},
    {QLocale::Korean, Korean},
};

Language_e languageOf(const QLocale &locale)
{
    if (locale.language() == QLocale::Chinese) {
        const bool isTraditional =
            locale.country() == QLocale::Taiwan || locale.country() == QLocale::HongKong;
        return isTraditional ? ChineseTraditional : Chinese;
    }
    for (const LocaleLanguage &entry : LocaleLanguages) {
        if (entry.localeLanguage == locale.language())
            return entry.language;
    }
    return EnglishUS;
}

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
    const QString path = directory() + QStringLiteral("/configuration.ini");
    qDebug() << path;
    mSettings = new QSettings(path, QSettings::IniFormat, this);
    mSettings->setIniCodec("UTF-8"); // as editors write; without it they would read Latin-1
}

QString Configuration::screenshotSavePath()
{
    return mSettings->value(ScreenshotSavePathKey, defaultScreenshotSavePath()).toString();
}

void Configuration::setScreenshotSavePath(const QString &path)
{
    store(ScreenshotSavePathKey, path);
}

Language_e Configuration::language()
{
    const auto stored = Language_e(mSettings->value(LanguageKey, LanguageUnset).toInt());
    if (stored != LanguageUnset)
        return stored;
    const QLocale locale = QLocale::system();
    qDebug() << locale.language() << locale.country();
    const Language_e derived = languageOf(locale);
    qDebug() << "targetLanguage" << derived;
    return derived;
}

void Configuration::setLanguage(Language_e language)
{
    if (!installTranslation(language))
        return;
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

int Configuration::volume()
{
    const int stored = mSettings->value(VolumeKey, FullVolume).toInt();
    return stored > 0 && stored <= FullVolume ? stored : FullVolume;
}

void Configuration::setVolume(int volume)
{
    store(VolumeKey, volume);
}

bool Configuration::isMuted()
{
    return isTrue(MutedKey);
}

void Configuration::setMuted(bool muted)
{
    store(MutedKey, muted);
}

double Configuration::playbackRate()
{
    return mSettings->value(PlaybackRateKey, 1.0).toDouble();
}

void Configuration::setPlaybackRate(double rate)
{
    store(PlaybackRateKey, rate);
}

bool Configuration::remembersList()
{
    return isTrue(RemembersListKey);
}

void Configuration::setRemembersList(bool remembers)
{
    store(RemembersListKey, remembers);
}

QString Configuration::directory()
{
    return firstLocation(QStandardPaths::AppLocalDataLocation,
                         QCoreApplication::applicationDirPath());
}

QString Configuration::defaultScreenshotSavePath()
{
    const QString pictures = firstLocation(QStandardPaths::PicturesLocation, QDir::homePath());
    return QStringLiteral("%1/%2").arg(pictures, QCoreApplication::applicationName());
}

QRect Configuration::defaultMainwindowsRect()
{
    return QRect(483, 166, 921, 628);
}

bool Configuration::installTranslation(Language_e language)
{
    const char *name = nullptr;
    if (language < LanguageUnset) {
        if (language < 0)
            return false;
        name = TranslationNames[language];
    }
    if (!name) {
        QCoreApplication::removeTranslator(&mTranslator);
        return true;
    }
    const QString file = QStringLiteral(":/translations/%1.qm").arg(QLatin1String(name));
    // Tried apart: a failed load empties a translator, and with it the language in force.
    if (!QTranslator().load(file))
        return false;
    QCoreApplication::removeTranslator(&mTranslator);
    return mTranslator.load(file) && QCoreApplication::installTranslator(&mTranslator);
}

/** By itself any text but a few would be taken for true. */
bool Configuration::isTrue(const QString &key) const
{
    return mSettings->value(key).toString() == QLatin1String("true");
}

void Configuration::store(const QString &key, const QVariant &value)
{
    mSettings->setValue(key, value);
    mSettings->sync();
}
