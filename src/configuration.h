// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QRect>
#include <QString>
#include <QTranslator>

class QSettings;

/** The map provider, as the settings file stores it. */
enum MapTypes : int
{
    MapBaidu = 0,
    MapGoogle = 1,
    MapOpenStreetMap = 2,
};

/** The interface language, as the settings file stores it. */
enum Language_e : int
{
    Chinese = 0,
    ChineseTraditional = 1,
    EnglishUS = 2,
    EnglishUK = 3,
    French = 4,
    Italian = 5,
    Japanese = 6,
    Polish = 7,
    Russian = 8,
    German = 9,
    Spanish = 10,
    Portugal = 11,
    Korean = 12,
    LanguageUnset = 13, ///< nothing chosen yet
};

/**
 * The persistent settings: a process-wide singleton over the file "configuration.ini" in the
 * first application-local data directory of the platform.
 *
 * Nothing is cached: every getter reads the settings object, every setter writes through to the
 * file before it returns, so that even a hard exit loses nothing. Values are not range-checked
 * unless told otherwise; a missing or unreadable file gives the documented defaults. The file is
 * UTF-8.
 *
 * Lives on the GUI thread and must first be used there, after the application and organisation
 * names are set (they decide the file's directory). Never released in normal operation.
 */
class Configuration : public QObject
{
    Q_OBJECT

public:
    /** The singleton, created on the first call. Owned by itself; see ReleaseInstance(). */
    static Configuration *GetInstance();
    /** Deletes the singleton; the next GetInstance() makes a new one. */
    static void ReleaseInstance();

    /** Folder for screenshots as it was set, even an empty or a relative one. Not created here. */
    QString screenshotSavePath();
    void setScreenshotSavePath(const QString &path);

    /** The stored language as it is; when none is stored, the one for the system's locale, which is
     *  not stored here. */
    Language_e language();
    /** Installs the language's translation in the application, or none for English and numbers
     *  above the list; stores it and emits updateLanguage(). When the translation cannot be loaded,
     *  nothing of this happens and the language before stays. */
    void setLanguage(Language_e language);

    /** Whether the country remembered at the first call (the system locale's) is mainland China. */
    bool isChinaMainlandArea();

    /** The map provider, by default MapOpenStreetMap. */
    MapTypes maps();
    /** Stores the provider and emits mapsChanged() if it differs from the stored one. */
    void setMaps(MapTypes maps);

    /** 0 for kilometres per hour (the default), 1 for miles per hour. */
    int speedUnit();
    void setSpeedUnit(int unit);

    /** Folder in which the open dialog starts; by default the movies folder. */
    QString videoFilePath();
    void setVideoFilePath(const QString &path);

    /** The main window's last geometry in screen pixels, by default 921 x 628 at (483, 166). */
    QRect getMainwindowsRect();
    void setMainwindowsRect(const QRect &rect);

    /** Whether the main window was last maximised, by default false. */
    bool getMainwindowsIsMaximize();
    void setMainwindowsIsMaximize(bool maximized);

    /** The volume, 1 to 100 on the players' linear scale; 100 if nothing or anything else is
     *  stored, as nobody looks for the volume when a new window makes no sound. */
    int volume();
    void setVolume(int volume);

    /** Whether the sound is off, by default and for anything unreadable false. */
    bool isMuted();
    void setMuted(bool muted);

    /** The rate of playback, by default 1 for normal speed. */
    double playbackRate();
    void setPlaybackRate(double rate);

    /** Whether the playlist is kept from one run to the next, by default and for anything
     * unreadable false. */
    bool remembersList();
    void setRemembersList(bool remembers);

    /** The folder of the settings file, which may not exist yet. */
    static QString directory();

    /** The folder for screenshots while none is set: the application's own below the pictures. */
    static QString defaultScreenshotSavePath();

    /** The geometry of a main window that has none stored, or one that no screen shows. */
    static QRect defaultMainwindowsRect();

signals:
    void updateLanguage();
    void mapsChanged(MapTypes maps);

private:
    Configuration();
    bool installTranslation(Language_e language);
    bool isTrue(const QString &key) const;
    void store(const QString &key, const QVariant &value);

    QTranslator mTranslator;        // installed while a translated language is set
    QSettings *mSettings = nullptr; // child of this object

    static Configuration *manager;
};
