// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "configuration.h"

#include <QPointer>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <cstdio>
#include <functional>

namespace {
const QString ApplicationName = QStringLiteral("Talvor Player V1.6 20200828");
const QString OrganizationName = QStringLiteral("Quellfern");
constexpr int NoLanguage = 13;

/** Set in the environment of a child process that only answers for its own system locale. */
constexpr char AskForCountry[] = "TST_CONFIGURATION_COUNTRY";

/** A setter with its argument, and the getter that must give it back. */
struct Setting
{
    QString key;
    QVariant value;
    std::function<void(Configuration *)> set;
    std::function<QVariant(Configuration *)> get;
};

/** Notes what is announced, and what a reader finds in the settings at that moment. */
class Listener : public QObject
{
public:
    explicit Listener(Configuration *configuration) : mConfiguration(configuration)
    {
        connect(configuration, &Configuration::updateLanguage, this, &Listener::noteLanguage);
        connect(configuration, &Configuration::mapsChanged, this, &Listener::noteMaps);
    }

    QList<int> languages; ///< as read when announced
    QList<int> maps;      ///< as announced
    QList<int> mapsRead;  ///< as read when announced

private:
    void noteLanguage() { languages.append(mConfiguration->language()); }
    void noteMaps(MapTypes announced)
    {
        maps.append(announced);
        mapsRead.append(mConfiguration->maps());
    }

    Configuration *mConfiguration;
};
} // namespace

Q_DECLARE_METATYPE(Setting)

class TestConfiguration : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void defaultsWithoutFile();
    void settingReachesTheFile_data();
    void settingReachesTheFile();
    void announcements();
    void valuesAreTakenAsTheyAre_data();
    void valuesAreTakenAsTheyAre();
    void unusableFile_data();
    void unusableFile();
    void foldersOfTheUser();
    void countryIsRememberedOnce_data();
    void countryIsRememberedOnce();
    void release();

private:
    QString filePath() const;
    void writeFile(const QByteArray &content) const;
    QSettings *readFile();
    void compareWithDefaults();

    std::unique_ptr<QTemporaryDir> mHome;
    std::unique_ptr<QSettings> mCopy;
};

void TestConfiguration::init()
{
    mHome = std::make_unique<QTemporaryDir>();
    QVERIFY(mHome->isValid());
    qputenv("HOME", QFile::encodeName(mHome->path()));
    qputenv("XDG_DATA_HOME", QFile::encodeName(mHome->filePath("data")));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(mHome->filePath("config")));
}

void TestConfiguration::cleanup()
{
    Configuration::ReleaseInstance();
    mCopy.reset();
}

QString TestConfiguration::filePath() const
{
    return mHome->filePath(
        QStringLiteral("data/%1/%2/configuration.ini").arg(OrganizationName, ApplicationName));
}

void TestConfiguration::writeFile(const QByteArray &content) const
{
    QDir().mkpath(QFileInfo(filePath()).path());
    QFile file(filePath());
    QVERIFY(file.open(QFile::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

/** What is in the file now. Reads a copy: settings objects of one path share unsaved values. */
QSettings *TestConfiguration::readFile()
{
    QTemporaryFile copy;
    copy.setAutoRemove(false);
    copy.setFileTemplate(mHome->filePath("copy-XXXXXX"));
    QFile file(filePath());
    if (copy.open() && file.open(QFile::ReadOnly))
        copy.write(file.readAll());
    copy.close();
    mCopy = std::make_unique<QSettings>(copy.fileName(), QSettings::IniFormat);
    return mCopy.get();
}

void TestConfiguration::compareWithDefaults()
{
    Configuration *configuration = Configuration::GetInstance();
    QCOMPARE(int(configuration->maps()), 2);
    QCOMPARE(configuration->speedUnit(), 0);
    QCOMPARE(int(configuration->language()), NoLanguage);
    QCOMPARE(configuration->getMainwindowsIsMaximize(), false);
    const QRect rect = configuration->getMainwindowsRect();
    QCOMPARE(rect, QRect(483, 166, 921, 628));
    QCOMPARE(rect.bottomRight(), QPoint(1403, 793));
    QCOMPARE(configuration->screenshotSavePath(),
             QDir::homePath() + "/Pictures/" + ApplicationName);
    QCOMPARE(configuration->videoFilePath(), QDir::homePath() + "/Videos");
}

void TestConfiguration::defaultsWithoutFile()
{
    compareWithDefaults();
    QVERIFY(readFile()->allKeys().isEmpty());
    // The folders are only named here, not made.
    QVERIFY(!QFileInfo::exists(Configuration::GetInstance()->screenshotSavePath()));
}

void TestConfiguration::settingReachesTheFile_data()
{
    using C = Configuration;
    QTest::addColumn<Setting>("setting");
    const auto row = [](const char *name, const Setting &setting) {
        QTest::newRow(name) << setting;
    };
    const QString folder = QStringLiteral("/mnt/Fahrt, süd; 50% \"#1\" = \\ end");
    const QRect leftScreen(-1400, -20, 1280, 720);

    row("screenshot folder",
        {"ScreenshotSavePath", folder, [=](C *c) { c->setScreenshotSavePath(folder); },
         [](C *c) { return c->screenshotSavePath(); }});
    row("video folder", {"videoFilePath", folder, [=](C *c) { c->setVideoFilePath(folder); },
                         [](C *c) { return c->videoFilePath(); }});
    row("empty video folder", {"videoFilePath", "", [](C *c) { c->setVideoFilePath(""); },
                               [](C *c) { return c->videoFilePath(); }});
    row("language", {"language", 3, [](C *c) { c->setLanguage(EnglishUK); },
                     [](C *c) { return int(c->language()); }});
    row("language out of range", {"language", 20, [](C *c) { c->setLanguage(Language_e(20)); },
                                  [](C *c) { return int(c->language()); }});
    row("maps",
        {"maps", 1, [](C *c) { c->setMaps(MapGoogle); }, [](C *c) { return int(c->maps()); }});
    row("maps out of range",
        {"maps", 7, [](C *c) { c->setMaps(MapTypes(7)); }, [](C *c) { return int(c->maps()); }});
    row("speed unit",
        {"speedUnit", 1, [](C *c) { c->setSpeedUnit(1); }, [](C *c) { return c->speedUnit(); }});
    row("speed unit out of range",
        {"speedUnit", -4, [](C *c) { c->setSpeedUnit(-4); }, [](C *c) { return c->speedUnit(); }});
    row("window geometry",
        {"mainwindowsRect", leftScreen, [=](C *c) { c->setMainwindowsRect(leftScreen); },
         [](C *c) { return c->getMainwindowsRect(); }});
    row("maximised",
        {"mainwindowsIsMaximize", true, [](C *c) { c->setMainwindowsIsMaximize(true); },
         [](C *c) { return c->getMainwindowsIsMaximize(); }});
}

void TestConfiguration::settingReachesTheFile()
{
    QFETCH(Setting, setting);
    const Listener listener(Configuration::GetInstance());
    setting.set(Configuration::GetInstance());

    QVariant inFile = readFile()->value(setting.key);
    QVERIFY(inFile.isValid() && inFile.convert(int(setting.value.type())));
    QCOMPARE(inFile, setting.value);
    QCOMPARE(readFile()->allKeys(), QStringList{setting.key});
    QCOMPARE(setting.get(Configuration::GetInstance()), setting.value);
    QCOMPARE(listener.languages.size(), setting.key == "language" ? 1 : 0);
    QCOMPARE(listener.maps.size(), setting.key == "maps" ? 1 : 0);

    Configuration::ReleaseInstance();
    QCOMPARE(setting.get(Configuration::GetInstance()), setting.value);
}

void TestConfiguration::announcements()
{
    Configuration *configuration = Configuration::GetInstance();
    const Listener listener(configuration);
    configuration->setMaps(MapOpenStreetMap); // the default, though nothing is stored
    QVERIFY(listener.maps.isEmpty());
    for (MapTypes maps : {MapGoogle, MapGoogle, MapBaidu, MapOpenStreetMap, MapOpenStreetMap})
        configuration->setMaps(maps);
    QCOMPARE(listener.maps, QList<int>({1, 0, 2}));
    QCOMPARE(listener.mapsRead, listener.maps);
    QVERIFY(listener.languages.isEmpty());
    for (Language_e language : {EnglishUS, EnglishUS, EnglishUK})
        configuration->setLanguage(language);
    QCOMPARE(listener.languages, QList<int>({2, 2, 3}));
    QCOMPARE(listener.maps.size(), 3);
}

void TestConfiguration::valuesAreTakenAsTheyAre_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("number");

    QTest::newRow("in range") << QByteArray("1") << 1;
    QTest::newRow("too large") << QByteArray("77") << 77;
    QTest::newRow("negative") << QByteArray("-1") << -1;
    QTest::newRow("not a number") << QByteArray("abc") << 0;
    QTest::newRow("no value") << QByteArray() << 0;
    QTest::newRow("another type") << QByteArray("@Rect(1 2 3 4)") << 0;
}

void TestConfiguration::valuesAreTakenAsTheyAre()
{
    QFETCH(QByteArray, value);
    writeFile("[General]\nmaps=" + value + "\nspeedUnit=" + value + "\nlanguage=" + value +
              "\nmainwindowsRect=" + value + '\n');
    Configuration *configuration = Configuration::GetInstance();
    QTEST(int(configuration->maps()), "number");
    QTEST(configuration->speedUnit(), "number");
    QTEST(int(configuration->language()), "number");
    const QRect rect = configuration->getMainwindowsRect();
    QCOMPARE(rect, value.startsWith('@') ? QRect(1, 2, 3, 4) : QRect());
}

void TestConfiguration::unusableFile_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("text") << QByteArray("these are no settings\nnor is this\n");
    QTest::newRow("binary") << QByteArray("\x7f\x45\x4c\x46\x00\xff\xfe\r\x80[", 10);
    QTest::newRow("keys in a group") << QByteArray("[Other]\nmaps=1\nspeedUnit=1\nlanguage=4\n");
}

void TestConfiguration::unusableFile()
{
    QFETCH(QByteArray, content);
    writeFile(content);
    compareWithDefaults();

    Configuration::GetInstance()->setSpeedUnit(1);
    QCOMPARE(Configuration::GetInstance()->speedUnit(), 1);
    QCOMPARE(readFile()->value("speedUnit").toInt(), 1);
}

void TestConfiguration::foldersOfTheUser()
{
    Configuration *configuration = Configuration::GetInstance();
    compareWithDefaults();
    // The defaults follow the platform, even while the program runs.
    QDir().mkpath(mHome->filePath("config"));
    QFile folders(mHome->filePath("config/user-dirs.dirs"));
    QVERIFY(folders.open(QFile::WriteOnly));
    folders.write("XDG_PICTURES_DIR=\"$HOME/Bilder\"\nXDG_VIDEOS_DIR=\"$HOME/Filme\"\n");
    folders.close();
    QCOMPARE(configuration->screenshotSavePath(), mHome->filePath("Bilder/") + ApplicationName);
    QCOMPARE(configuration->videoFilePath(), mHome->filePath("Filme"));
}

void TestConfiguration::countryIsRememberedOnce_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("systemLocale");
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<int>("stored");

    const QByteArray inChina = "yes";
    const QByteArray elsewhere = "no";
    QTest::newRow("first call in China") << QByteArray() << "zh_CN.UTF-8" << inChina << 44;
    QTest::newRow("first call in Hong Kong") << QByteArray() << "zh_HK.UTF-8" << elsewhere << 97;
    QTest::newRow("moved away") << QByteArray("country=44\n") << "pl_PL.UTF-8" << inChina << 44;
    QTest::newRow("moved there") << QByteArray("country=97\n") << "zh_CN.UTF-8" << elsewhere << 97;
    QTest::newRow("none stored") << QByteArray("country=0\n") << "zh_CN.UTF-8" << inChina << 44;
    QTest::newRow("unparsable") << QByteArray("country=abc\n") << "zh_CN.UTF-8" << inChina << 44;
}

void TestConfiguration::countryIsRememberedOnce()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, systemLocale);
    writeFile("[General]\n" + file);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(AskForCountry, "1");
    environment.insert("LC_ALL", systemLocale);
    QProcess child;
    child.setProcessEnvironment(environment);
    child.start(QCoreApplication::applicationFilePath(), QStringList());
    QVERIFY(child.waitForFinished());
    QCOMPARE(child.exitCode(), 0);
    QTEST(child.readAllStandardOutput(), "answer");
    QTEST(readFile()->value("country").toInt(), "stored");
}

void TestConfiguration::release()
{
    const QPointer<Configuration> first = Configuration::GetInstance();
    QCOMPARE(Configuration::GetInstance(), first.data());
    QVERIFY(!first->parent());
    first->setMaps(MapGoogle);

    Configuration::ReleaseInstance();
    QVERIFY(first.isNull());
    Configuration::ReleaseInstance();
    QCOMPARE(Configuration::GetInstance()->maps(), MapGoogle);
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(ApplicationName);
    QCoreApplication::setOrganizationName(OrganizationName);
    QLoggingCategory::setFilterRules("*.debug=false");
    if (qEnvironmentVariableIsSet(AskForCountry)) {
        std::fputs(Configuration::GetInstance()->isChinaMainlandArea() ? "yes" : "no", stdout);
        return 0;
    }
    TestConfiguration test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_configuration.moc"
