// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "configuration.h"
#include "patience.h"

#include <QtTest>

namespace {
const QString ApplicationName = QStringLiteral("Talvor Player V1.6 20200828");

/** With this argument the test is a program that tells its language at its first start. */
const char TellLanguage[] = "--tell-language";

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
            configuration->getMainwindowsIsMaximize(),
            configuration->volume(),
            configuration->isMuted(),
            configuration->playbackRate()};
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
    void namesInAnyLanguage();
    void announcements();
    void firstLanguage_data();
    void firstLanguage();
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
        folders + QVariantList{0, 2, 0, QRect(483, 166, 921, 628), false, 100, false, 1.0};
    QCOMPARE(settings(), defaults);
    QVERIFY(!QFileInfo::exists(mPath));
    writeFile("\x7f\xff\xfe\r\x80[\nno settings\n[Other]\nmaps=1");
    QCOMPARE(settings(), defaults);
    writeFile("[General]\nmaps=a\nspeedUnit=b\nlanguage=c\nmainwindowsRect=d\n"
              "volume=e\nmuted=f\nplaybackRate=1\n");
    QCOMPARE(settings().mid(2), QVariantList({0, 0, 0, QRect(), false, 100, false, 1.0}));
    for (const char *volume : {"0", "-5", "101", "99999999999"}) {
        writeFile(QByteArray("[General]\nvolume=") + volume + "\n");
        QCOMPARE(Configuration::GetInstance()->volume(), 100);
    }
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
    configuration->setVolume(37);
    QVERIFY(fileHolds("volume=37"));
    configuration->setMuted(true);
    QVERIFY(fileHolds("muted=true"));
    configuration->setPlaybackRate(0.5);
    QVERIFY(fileHolds("playbackRate=0.5"));
    QVERIFY(fileText().startsWith("[General]\n") && fileText().count('\n') == 11);

    const QVariantList expected{"/two words", "/rides", 20,   7,  -4, QRect(-1400, -20, 1280, 720),
                                true,         37,       true, 0.5};
    QCOMPARE(settings(), expected);
    Configuration::ReleaseInstance();
    QCOMPARE(settings(), expected);
}

/** As an editor writes them, and as Qt does in a file without an encoding of its own. */
void TestConfiguration::namesInAnyLanguage()
{
    const QString name = QStringLiteral("/Straße 車/Łódź");
    for (const QByteArray &written : {QByteArray("/Straße 車/Łódź"),
                                      QByteArray("/Stra\\xdf\\x65 \\x8eca/\\x141\\xf3\\x64\\x17a"),
                                      QByteArray("\"/Straße 車/Łódź\"")}) {
        writeFile("[General]\nvideoFilePath=" + written + "\n");
        QCOMPARE(Configuration::GetInstance()->videoFilePath(), name);
    }
    Configuration::GetInstance()->setScreenshotSavePath(name);
    Configuration::ReleaseInstance();
    QCOMPARE(Configuration::GetInstance()->screenshotSavePath(), name);
    QVERIFY(fileText().contains("ScreenshotSavePath=" + name.toUtf8()));
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
    // The translation of the first is not part of this program.
    for (const int unknown : {int(French), -1})
        configuration->setLanguage(Language_e(unknown));
    QCOMPARE(languages.size(), 3);
    QCOMPARE(configuration->language(), EnglishUK);
}

void TestConfiguration::firstLanguage_data()
{
    QTest::addColumn<int>("language");
    const struct
    {
        const char *locale;
        int language;
    } rows[] = {{"zh_CN", 0},  {"zh_SG", 0}, {"zh_TW", 1}, {"zh_HK", 1}, {"en_US", 2},
                {"en_GB", 2},  {"nl_NL", 2}, {"C", 2},     {"fr_CA", 4}, {"it_IT", 5},
                {"ja_JP", 6},  {"pl_PL", 7}, {"ru_RU", 8}, {"de_AT", 9}, {"es_MX", 10},
                {"pt_BR", 11}, {"ko_KR", 12}};
    for (const auto &row : rows)
        QTest::newRow(row.locale) << row.language;
}

/** Qt reads the system's locale once, so that each needs a process of its own. */
void TestConfiguration::firstLanguage()
{
    QFETCH(int, language);
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", QString::fromLatin1(QTest::currentDataTag()) + ".UTF-8");
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {TellLanguage});
    QVERIFY(process.waitForFinished(PatienceMs));
    QCOMPARE(process.readAllStandardOutput().trimmed(), QByteArray::number(language));
}

void TestConfiguration::countryIsRememberedOnce()
{
    writeFile("[General]\ncountry=abc\n");
    QVERIFY(Configuration::GetInstance()->isChinaMainlandArea());
    QCOMPARE(fileText(), QByteArray("[General]\ncountry=44\n"));
    writeFile("[General]\ncountry=208\n"); // Taiwan
    QVERIFY(!Configuration::GetInstance()->isChinaMainlandArea());
    QCOMPARE(fileText(), QByteArray("[General]\ncountry=208\n"));
}

int main(int argc, char *argv[])
{
    const bool tellsLanguage = argc == 2 && qstrcmp(argv[1], TellLanguage) == 0;
    if (!tellsLanguage)
        qputenv("LC_ALL", "zh_CN.UTF-8");
    const QCoreApplication application(argc, argv);
    if (!tellsLanguage) {
        TestConfiguration test;
        return QTest::qExec(&test, argc, argv);
    }
    QTextStream(stdout) << int(Configuration::GetInstance()->language());
    return 0;
}

#include "tst_configuration.moc"
