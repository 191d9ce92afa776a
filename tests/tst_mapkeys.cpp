// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "mapkeys.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

#include <memory>

class TestMapKeys : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void precedence_data();
    void precedence();
    void ownFile_data();
    void ownFile();
    void deploymentFile_data();
    void deploymentFile();
    void filesOfTheBuild();
    void filesThatAreNone_data();
    void filesThatAreNone();
    void openEnds_data();
    void openEnds();
    void pagesGetTheirOwn();
    void hostileKeys_data();
    void hostileKeys();
    void makesTheFile();
    void leavesAloneWhatIsThere_data();
    void leavesAloneWhatIsThere();
    void nowhereToWrite();

private:
    MapKeys keys() const { return {own(), mFolder->filePath("keys.js")}; }
    QString own() const { return mFolder->filePath("data/Ünï 地図/mapkeys.ini"); }
    void write(const QString &path, const QByteArray &text);
    QByteArray textOf(const QString &path);

    std::unique_ptr<QTemporaryDir> mFolder;
};

void TestMapKeys::init()
{
    mFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir().mkpath(QFileInfo(own()).path()));
}

void TestMapKeys::write(const QString &path, const QByteArray &text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
}

QByteArray TestMapKeys::textOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

void TestMapKeys::precedence_data()
{
    QTest::addColumn<QByteArray>("ofUser");
    QTest::addColumn<QByteArray>("ofDeployment");
    QTest::addColumn<QStringList>("wanted"); // for Google, for Baidu
    const QByteArray both = "window.talvorMapKeys = { google: 'dG', baidu: 'dB' };";
    QTest::newRow("none") << QByteArray() << QByteArray() << QStringList{"", ""};
    QTest::newRow("the user's") << QByteArray("google=uG\nbaidu=uB") << QByteArray()
                                << QStringList{"uG", "uB"};
    QTest::newRow("the deployment's") << QByteArray() << both << QStringList{"dG", "dB"};
    QTest::newRow("both") << QByteArray("google=uG\nbaidu=uB") << both << QStringList{"uG", "uB"};
    QTest::newRow("one of the user") << QByteArray("baidu=uB") << both << QStringList{"dG", "uB"};
    QTest::newRow("an empty one of the user")
        << QByteArray("google=\nbaidu=''") << both << QStringList{"dG", "dB"};
}

void TestMapKeys::precedence()
{
    QFETCH(QByteArray, ofUser);
    QFETCH(QByteArray, ofDeployment);
    QFETCH(QStringList, wanted);
    const MapKeys early = keys(); // files are read when asked
    write(own(), ofUser);
    write(mFolder->filePath("keys.js"), ofDeployment);
    QCOMPARE((QStringList{early.key(MapGoogle), early.key(MapBaidu)}), wanted);
    QCOMPARE(early.key(MapOpenStreetMap), QString());
}

void TestMapKeys::ownFile_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("key"); // for Google
    QTest::newRow("blanks") << QByteArray("  google \t=  AI-za_9 \t") << "AI-za_9";
    QTest::newRow("quotes") << QByteArray("google=\"AI\"\n") << "AI";
    QTest::newRow("other quotes") << QByteArray("google = ' AI '\n") << "AI";
    QTest::newRow("quotes of word processors") << QByteArray("google=“AI”\n") << "AI";
    QTest::newRow("capitals, colon") << QByteArray("Google: AI\n") << "AI";
    QTest::newRow("carriage returns") << QByteArray("baidu=B\rgoogle=AI\r") << "AI";
    QTest::newRow("lines of Windows") << QByteArray("baidu=B\r\ngoogle=AI\r\n") << "AI";
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBFgoogle=AI\n") << "AI";
    QTest::newRow("UTF-16") << QByteArray("\xFF\xFEg\0o\0o\0g\0l\0e\0=\0A\0I\0\n\0", 22) << "AI";
    QTest::newRow("section") << QByteArray("[General]\ngoogle=AI\n[keys]\n") << "AI";
    QTest::newRow("remarks") << QByteArray(";google=no\n# google=no\ngoogle=AI ; mine\n") << "AI";
    QTest::newRow("only a remark") << QByteArray("google= ; put it here\n") << "";
    QTest::newRow("signs of remarks within") << QByteArray("google=A;I#=B\n") << "A;I#=B";
    QTest::newRow("another's") << QByteArray("googlemaps=no\nmy google=no\nbaidu=no\n") << "";
    QTest::newRow("twice") << QByteArray("google=old\ngoogle=AI\ngoogle=\n") << "AI";
    QTest::newRow("letters of any language") << QByteArray("google=schlüssel") << "schlüssel";
    QTest::newRow("zero bytes") << QByteArray("google=A\0I\n", 11) << "";
    QTest::newRow("control characters") << QByteArray("google=A\x1bI\n") << "";
    QTest::newRow("longest") << "google=" + QByteArray(512, 'k') << QString(512, 'k');
    QTest::newRow("too long") << "google=" + QByteArray(513, 'k') << "";
}

void TestMapKeys::ownFile()
{
    QFETCH(QByteArray, text);
    write(own(), text);
    QTEST(keys().key(MapGoogle), "key");
}

void TestMapKeys::deploymentFile_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("key"); // for Google
    const auto row = [](const char *text, const char *key) {
        const QByteArray name = QByteArray(text).simplified();
        QTest::newRow(name) << QByteArray(text) << key;
    };
    row("'use strict';\nwindow.talvorMapKeys = {\n    google: 'AI',\n    baidu: 'B',\n};\n", "AI");
    row("window.talvorMapKeys={baidu:\"B\",google:\"AI\"}", "AI");
    row("window.talvorMapKeys = {\r\n google: 'AI'\r\n baidu: 'B'\r\n};", "AI"); // no comma
    row("window.talvorMapKeys = { 'google' : `AI` }", "AI");
    row("window.talvorMapKeys.google = ' AI ';", "AI");
    row("\xEF\xBB\xBFwindow.talvorMapKeys = { google: 'AI' };", "AI");
    row("{ google: /* it's mine */ 'AI', // the user's\n baidu: 'B' }", "AI");
    row("{ // google: 'no'\n google: 'AI', /* google: 'no', */ }", "AI");
    row("{ baidu: 'http://b', google: 'A/*I' /* */ }", "A/*I");
    row("{ google: 'A\\'I' }", "A'I");
    row("{ baidu: \"google: 'no'\", google: 'AI' }", "AI");
    row("{ google: '', baidu: 'B' }", "");
    row("{ mygoogle: 'no', googleKey: 'no' }", "");
    row("{ google: 12 }", "");
    row("{ google: null, baidu: 'B' }", "");
    row("{ google: ['no'] }", "");
    row("{ google: {a: 'no'} }", "");
    row("{ google: AI }", "");
    row("{ google: 'no\n', baidu: 'B' }", "");
    row("{ google: 'no", "");
    row("{ google: '", "");
    row("google:", "");
}

void TestMapKeys::deploymentFile()
{
    QFETCH(QByteArray, text);
    write(mFolder->filePath("keys.js"), text);
    QTEST(keys().key(MapGoogle), "key");
}

/** The explanations hold no key, and leave room for one. */
void TestMapKeys::filesOfTheBuild()
{
    keys().createUserFile();
    QFile::copy(QStringLiteral(KEYS_TEMPLATE), mFolder->filePath("keys.js"));
    QByteArray script = textOf(mFolder->filePath("keys.js"));
    QVERIFY(script.contains("'@GOOGLE_MAPS_KEY@'") && script.contains("'@BAIDU_MAPS_KEY@'"));
    write(mFolder->filePath("keys.js"),
          script.replace("@GOOGLE_MAPS_KEY@", "").replace("@BAIDU_MAPS_KEY@", "B"));
    QCOMPARE(keys().key(MapGoogle), QString());
    QCOMPARE(keys().key(MapBaidu), QString("B"));
    write(own(), textOf(own())
                     .replace("\ngoogle=", "\ngoogle=mine")
                     .replace("\nbaidu=", "\nbaidu=mine, too"));
    QCOMPARE(keys().key(MapGoogle), QString("mine"));
    QCOMPARE(keys().key(MapBaidu), QString("mine, too"));
}

void TestMapKeys::filesThatAreNone_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("directory") << QByteArray();
    QTest::newRow("FIFO") << QByteArray();
    QTest::newRow("dangling link") << QByteArray();
    QTest::newRow("as large as they may be") << "google=AI\n" + QByteArray(64 * 1024 - 10, ' ');
    QTest::newRow("too large") << "google=AI\n" + QByteArray(64 * 1024 - 9, ' ');
}

/** Neither file may be one of them. A FIFO that was opened would keep the reader waiting. */
void TestMapKeys::filesThatAreNone()
{
    QFETCH(QByteArray, text);
    const QByteArray kind = QTest::currentDataTag();
    for (const QString &path : {own(), mFolder->filePath("keys.js")}) {
        if (kind == "directory")
            QVERIFY(QDir().mkpath(path));
        else if (kind == "FIFO")
            QCOMPARE(mkfifo(QFile::encodeName(path), 0600), 0);
        else if (kind == "dangling link")
            QVERIFY(QFile::link(mFolder->filePath("nothing"), path));
        else
            write(path, text);
    }
    const bool isOne = text.size() == 64 * 1024;
    QCOMPARE(keys().key(MapGoogle), QString(isOne ? "AI" : ""));
    QVERIFY(!QFileInfo::exists(mFolder->filePath("nothing")));
}

void TestMapKeys::openEnds_data()
{
    QTest::addColumn<QByteArray>("piece");
    for (const char *piece : {"/*", "'\\", "\"\\", "`", "\\'", "'\n", "google:", "google='", " ;",
                              "\xFF", "\n", "google=a #"})
        QTest::newRow(QByteArray(piece).toPercentEncoding()) << QByteArray(piece);
}

/** All that is left open once may be left open thousands of times. */
void TestMapKeys::openEnds()
{
    QFETCH(QByteArray, piece);
    const QByteArray text = piece.repeated(64 * 1024 / piece.size());
    write(own(), text);
    write(mFolder->filePath("keys.js"), text);
    QCOMPARE(keys().key(MapBaidu), QString());
}

void TestMapKeys::pagesGetTheirOwn()
{
    write(own(), "google=G-key\nbaidu=B-key\n");
    const auto told = [this](MapTypes provider) {
        return QJsonDocument::fromJson(keys().forPage(provider)).object();
    };
    QCOMPARE(told(MapGoogle), (QJsonObject{{"google", "G-key"}, {"file", own()}}));
    QCOMPARE(told(MapBaidu), (QJsonObject{{"baidu", "B-key"}, {"file", own()}}));
    QCOMPARE(keys().forPage(MapOpenStreetMap), QByteArray());
    QCOMPARE(keys().forPage(MapTypes(7)), QByteArray());
    write(own(), "google=G-key\n");
    QCOMPARE(told(MapBaidu), (QJsonObject{{"file", own()}}));
}

void TestMapKeys::hostileKeys_data()
{
    QTest::addColumn<QString>("key");
    for (const char *key : {"a\"}; alert(1); ({\"b", "a'b\\", "\\\"; //", "</script><script>",
                            "\\u0022", "${1}", "%1%2",
                            "a\xE2\x80\xA8"
                            "b"})
        QTest::newRow(key) << QString::fromUtf8(key);
}

/** What a page is told is one object, whatever the key. */
void TestMapKeys::hostileKeys()
{
    QFETCH(QString, key);
    write(own(), "google=" + key.toUtf8() + "\n");
    const QJsonObject told = QJsonDocument::fromJson(keys().forPage(MapGoogle)).object();
    QCOMPARE(told.value("file").toString(), own());
    QCOMPARE(told.value("google").toString(), key);
}

void TestMapKeys::makesTheFile()
{
    const QString folder = QFileInfo(own()).path();
    QVERIFY(QDir().rmdir(folder));
    const mode_t before = umask(0);
    keys().createUserFile();
    umask(before);
    QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{"mapkeys.ini"});
    struct stat status = {};
    QCOMPARE(stat(QFile::encodeName(own()), &status), 0);
    QCOMPARE(int(status.st_mode), S_IFREG | 0600);
    const QByteArray text = textOf(own());
    for (const char *line : {"\ngoogle=\n", "\nbaidu=\n"})
        QCOMPARE(text.count(line), 1);
}

void TestMapKeys::leavesAloneWhatIsThere_data()
{
    QTest::addColumn<QByteArray>("kind");
    for (const char *kind : {"file", "empty file", "link", "dangling link", "directory", "FIFO"})
        QTest::newRow(kind) << QByteArray(kind);
}

void TestMapKeys::leavesAloneWhatIsThere()
{
    QFETCH(QByteArray, kind);
    const QString target = mFolder->filePath("elsewhere");
    if (kind == "file" || kind == "empty file")
        write(own(), kind == "file" ? "google=mine" : "");
    else if (kind == "directory")
        QVERIFY(QDir().mkpath(own()));
    else if (kind == "FIFO")
        QCOMPARE(mkfifo(QFile::encodeName(own()), 0644), 0);
    else
        QVERIFY(QFile::link(target, own()));
    if (kind == "link")
        write(target, "google=mine");
    const auto look = [this] {
        struct stat status = {};
        lstat(QFile::encodeName(own()), &status);
        return QList<quint64>{status.st_ino, status.st_mode, quint64(status.st_mtim.tv_nsec),
                              quint64(status.st_ctim.tv_nsec)};
    };
    const QList<quint64> before = look();
    keys().createUserFile();
    QCOMPARE(look(), before);
    QCOMPARE(QDir(QFileInfo(own()).path())
                 .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System | QDir::Hidden),
             QStringList{"mapkeys.ini"});
    QCOMPARE(QFileInfo::exists(target), kind == "link");
    if (kind == "file" || kind == "link")
        QCOMPARE(textOf(own()), QByteArray("google=mine"));
}

void TestMapKeys::nowhereToWrite()
{
    write(mFolder->filePath("file"), "");
    const MapKeys nowhere(mFolder->filePath("file/data/mapkeys.ini"), "/proc/none/keys.js");
    nowhere.createUserFile();
    MapKeys("/proc/self/mapkeys.ini", "").createUserFile();
    QCOMPARE(nowhere.key(MapGoogle), QString());
    QCOMPARE(textOf(mFolder->filePath("file")), QByteArray());
}

QTEST_GUILESS_MAIN(TestMapKeys)
#include "tst_mapkeys.moc"
