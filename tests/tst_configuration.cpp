// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "configuration.h"

#include <QtTest>

namespace {
const QString ApplicationName = QStringLiteral("Talvor Player V1.6 20200828");

/** The system's locale, which Qt reads early and once. */
const bool isSystemInChina = qputenv("LC_ALL", "zh_CN.UTF-8");

/** What the getters tell. */
QVariantList settings()
{
    Configuration *configuration = Configuration::GetInstance();
    return {configuration->screenshotSavePath(),
            configuration->videoFilePath(),
            int(configuration->language()),
            int(configuration->maps()),
            configuration->speedUnit(),
            configuration->getMainwindowsRect(),
            configuration->getMainwindowsIsMaximize()};
}

} // namespace

class TestConfiguration : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { Configuration::ReleaseInstance(); }
    void defaultValues();
    void settingsReachTheFile();
    void announcements();
    void countryIsRememberedOnce();

private:
    QByteArray fileText() const;
    bool fileHolds(const QByteArray &line) const { return fileText().split('\n').contains(line); }
    void writeFile(const QByteArray &text) const;

    std::unique_ptr<QTemporaryDir> mHome;
    QString mPath; ///< of the file
};

void TestConfiguration::init()
{
    QCoreApplication::setApplicationName(ApplicationName);
    QCoreApplication::setOrganizationName("Quellfern");
    QLoggingCategory::setFilterRules("*.debug=false");
    mHome = std::make_unique<QTemporaryDir>();
    mPath = mHome->filePath("data/Quellfern/" + ApplicationName + "/configuration.ini");
    QVERIFY(QDir().mkpath(QFileInfo(mPath).path()));
    qputenv("HOME", QFile::encodeName(mHome->path()));
    qputenv("XDG_DATA_HOME", QFile::encodeName(mHome->filePath("data")));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(mHome->filePath("config")));
}

QByteArray TestConfiguration::fileText() const
{
    QFile file(mPath);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("no file");
}

void TestConfiguration::writeFile(const QByteArray &text) const
{
    Configuration::ReleaseInstance();
    QFile file(mPath);
    QVERIFY(file.open(QFile::WriteOnly) && file.write(text) == text.size());
}

void TestConfiguration::defaultValues()
{
    const QVariantList folders{mHome->filePath("Pictures/") + ApplicationName,
                               mHome->filePath("Videos")};
    const QVariantList defaults =
        folders + QVariantList{13, 2, 0, QRect(483, 166, 921, 628), false};
    QCOMPARE(settings(), defaults);
    QVERIFY(!QFileInfo::exists(mPath));
    writeFile("\x7f\xff\xfe\r\x80[\nno settings\n[Other]\nmaps=1");
    QCOMPARE(settings(), defaults);
    writeFile("[General]\nmaps=a\nspeedUnit=b\nlanguage=c\nmainwindowsRect=d\n");
    QCOMPARE(settings().mid(2), QVariantList({0, 0, 0, QRect(), false}));
}

void TestConfiguration::settingsReachTheFile()
{
    Configuration *configuration = Configuration::GetInstance();
    configuration->setScreenshotSavePath("/two words");
    QVERIFY(fileHolds("ScreenshotSavePath=/two words"));
    configuration->setVideoFilePath("/rides");
    QVERIFY(fileHolds("videoFilePath=/rides"));
    configuration->setLanguage(Language_e(20));
    QVERIFY(fileHolds("language=20"));
    configuration->setMaps(MapTypes(7));
    QVERIFY(fileHolds("maps=7"));
    configuration->setSpeedUnit(-4);
    QVERIFY(fileHolds("speedUnit=-4"));
    configuration->setMainwindowsRect({-1400, -20, 1280, 720});
    QVERIFY(fileHolds("mainwindowsRect=@Rect(-1400 -20 1280 720)"));
    configuration->setMainwindowsIsMaximize(true);
    QVERIFY(fileHolds("mainwindowsIsMaximize=true"));
    QVERIFY(fileText().startsWith("[General]\n") && fileText().count('\n') == 8);

    const QVariantList expected{"/two words", "/rides", 20, 7, -4, QRect(-1400, -20, 1280, 720),
                                true};
    QCOMPARE(settings(), expected);
    Configuration::ReleaseInstance();
    QCOMPARE(settings(), expected);
}

void TestConfiguration::announcements()
{
    Configuration *configuration = Configuration::GetInstance();
    QList<QPair<int, int>> maps; // as announced, and as read at that moment
    QList<int> languages;
    connect(configuration, &Configuration::mapsChanged, this, [&](MapTypes announced) {
        maps.append({announced, configuration->maps()});
    });
    connect(configuration, &Configuration::updateLanguage, this,
            [&] { languages.append(configuration->language()); });

    // The first is the default, though nothing is stored.
    for (MapTypes type : {MapOpenStreetMap, MapGoogle, MapGoogle, MapBaidu, MapOpenStreetMap})
        configuration->setMaps(type);
    for (Language_e language : {EnglishUS, EnglishUS, EnglishUK})
        configuration->setLanguage(language);
    QCOMPARE(maps, (QList<QPair<int, int>>{{1, 1}, {0, 0}, {2, 2}}));
    QCOMPARE(languages, QList<int>({2, 2, 3}));
}

void TestConfiguration::countryIsRememberedOnce()
{
    QVERIFY(isSystemInChina);
    writeFile("[General]\ncountry=abc\n");
    QVERIFY(Configuration::GetInstance()->isChinaMainlandArea());
    QCOMPARE(fileText(), QByteArray("[General]\ncountry=44\n"));
    writeFile("[General]\ncountry=208\n"); // Taiwan
    QVERIFY(!Configuration::GetInstance()->isChinaMainlandArea());
    QCOMPARE(fileText(), QByteArray("[General]\ncountry=208\n"));
}

QTEST_GUILESS_MAIN(TestConfiguration)
#include "tst_configuration.moc"
