// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "aviwriter.h"
#include "patience.h"
#include "smallrecordings.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QtTest>

#include <cmath>

namespace {

/** The elements that a track uses, as GPX 1.1 defines them. */
const char GpxSchema[] = R"(<?xml version='1.0'?>
<xsd:schema xmlns='http://www.topografix.com/GPX/1/1'
    xmlns:xsd='http://www.w3.org/2001/XMLSchema' elementFormDefault='qualified'
    targetNamespace='http://www.topografix.com/GPX/1/1'>
 <xsd:element name='gpx'><xsd:complexType><xsd:sequence>
  <xsd:element name='trk' type='trkType' minOccurs='0' maxOccurs='unbounded'/></xsd:sequence>
  <xsd:attribute name='version' type='xsd:string' use='required' fixed='1.1'/>
  <xsd:attribute name='creator' type='xsd:string' use='required'/>
 </xsd:complexType></xsd:element>
 <xsd:complexType name='trkType'><xsd:sequence>
  <xsd:element name='name' type='xsd:string' minOccurs='0'/>
  <xsd:element name='trkseg' type='trksegType' minOccurs='0' maxOccurs='unbounded'/>
 </xsd:sequence></xsd:complexType>
 <xsd:complexType name='trksegType'><xsd:sequence>
  <xsd:element name='trkpt' type='wptType' minOccurs='0' maxOccurs='unbounded'/>
 </xsd:sequence></xsd:complexType>
 <xsd:complexType name='wptType'><xsd:sequence>
  <xsd:element name='time' type='xsd:dateTime' minOccurs='0'/>
  <xsd:element name='extensions' type='extensionsType' minOccurs='0'/></xsd:sequence>
  <xsd:attribute name='lat' type='latitudeType' use='required'/>
  <xsd:attribute name='lon' type='longitudeType' use='required'/>
 </xsd:complexType>
 <xsd:complexType name='extensionsType'><xsd:sequence>
  <xsd:any namespace='##other' processContents='lax' minOccurs='0' maxOccurs='unbounded'/>
 </xsd:sequence></xsd:complexType>
 <xsd:simpleType name='latitudeType'><xsd:restriction base='xsd:decimal'>
  <xsd:minInclusive value='-90.0'/><xsd:maxInclusive value='90.0'/>
 </xsd:restriction></xsd:simpleType>
 <xsd:simpleType name='longitudeType'><xsd:restriction base='xsd:decimal'>
  <xsd:minInclusive value='-180.0'/><xsd:maxExclusive value='180.0'/>
 </xsd:restriction></xsd:simpleType>
</xsd:schema>
)";

TelemetryBlock sample(const char *time, double latitude, double longitude, int kmh = 50)
{
    TelemetryBlock block;
    block.time = time;
    block.setPosition(latitude, longitude);
    block.setSpeed(kmh);
    block.setAcceleration(0.03, -0.4, 1.25);
    return block;
}

/** What a camera writes without a fix is the block's default. */
TelemetryBlock lost(const char *time)
{
    TelemetryBlock block;
    block.time = time;
    return block;
}

// A second apart but for what is said: lost at first, a loss, a wild position, a gap, a clock that
// is set back.
const QList<TelemetryBlock> OddDrive = {
    lost("20260314003000"),
    sample("20260314003001", 48.0, 11.0, 0),
    sample("20260314003002", 48.001, 11.0, 0),
    sample("20260314003003", 48.002, 11.0, 36),
    lost("20260314003004"),
    sample("20260314003005", 48.01, 11.0, 72),
    sample("20260314003006", 48.02, 11.0, 90),
    sample("20260314003007", 96.0, 11.0),
    sample("20260314003008", -48.0, -11.000005),
    sample("20260314003059", -48.1, -11.0),
    sample("20260314003100", -48.2, -11.0),
    sample("20260314002959", -48.3, -11.0),
};
const QVector<int> OddSegments = {3, 2, 1, 2, 1}; // samples in each

QStringList positions(const QByteArray &geometries)
{
    QStringList found;
    static const QRegularExpression pair(QStringLiteral("(-?[0-9.]+) (-?[0-9.]+)[,)]"));
    QRegularExpressionMatchIterator matches = pair.globalMatch(QString::fromUtf8(geometries));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        found.append(
            QStringLiteral("%1 %2").arg(QString::number(match.captured(1).toDouble(), 'g', 12),
                                        QString::number(match.captured(2).toDouble(), 'g', 12)));
    }
    return found;
}

} // namespace

Q_DECLARE_METATYPE(TelemetryBlock)

/** The command as scripts use it; its tracks are read back by others' programs. */
class TestTracks : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void gpx();
    void gpxOfJoinedRecordings();
    void csv();
    void geoJson_data();
    void geoJson();
    void json();
    void figures();
    void statuses_data();
    void statuses();
    void filesOfAFolder();
    void outputThatIsFull();

private:
    /** Returns the exit status. */
    int run(const QStringList &arguments);
    QByteArray answerOf(const char *program, const QStringList &arguments);
    void save(const QString &name, const QByteArray &content);
    QByteArray content(const QString &name) const;
    QStringList files(const QString &folder) const;

    QTemporaryDir mDir;
    QByteArray mOutput;
    QByteArray mErrors;
};

void TestTracks::initTestCase()
{
    QVERIFY(mDir.isValid() && QDir::setCurrent(mDir.path()));
    save("odd.mp4", smallRecording(2, OddDrive));
    save("with <&\"'> , name.mp4", smallRecording(4, ride(3)));
    save("none.mp4", smallRecording(0, {}));
    save("line.avi", smallRecording(7, ride(40)));
    save("edge.avi", smallRecording(7, {sample("20260314003001", 1, 180)}));
    TelemetryBlock sound; // which lies where telemetry could be
    sound.time = sound.time2 = "~~~~~~~~~~~~~~";
    save("sound.avi", smallRecording(8, {sound, sound}));
}

int TestTracks::run(const QStringList &arguments)
{
    QProcess command;
    command.start(QStringLiteral(TELEMETRY_COMMAND), arguments, QIODevice::ReadOnly);
    if (!command.waitForFinished(PatienceMs) || command.exitStatus() != QProcess::NormalExit)
        return -1;
    mOutput = command.readAllStandardOutput();
    mErrors = command.readAllStandardError();
    return command.exitCode();
}

QByteArray TestTracks::answerOf(const char *program, const QStringList &arguments)
{
    QProcess other;
    other.start(QLatin1String(program), arguments, QIODevice::ReadOnly);
    const bool isDone = other.waitForFinished(PatienceMs) && other.exitCode() == 0;
    if (!isDone)
        qWarning() << program << arguments << other.errorString() << other.readAllStandardError();
    return isDone ? other.readAllStandardOutput() + "done" : QByteArray();
}

void TestTracks::save(const QString &name, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(name).path());
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

QByteArray TestTracks::content(const QString &name) const
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
}

QStringList TestTracks::files(const QString &folder) const
{
    QStringList found;
    QDirIterator all(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (all.hasNext())
        found.append(all.next().mid(folder.size() + 1));
    found.sort();
    return found;
}

void TestTracks::gpx()
{
    save("gpx.xsd", GpxSchema);
    QCOMPARE(run({"odd.mp4", "edge.avi", "with <&\"'> , name.mp4", "--output", "gpx/"}), 0);
    QCOMPARE(run({"odd.mp4", "--utc-offset", "+01:00", "--output", "utc.gpx"}), 0);
    for (const char *file :
         {"gpx/odd.gpx", "gpx/edge.gpx", "gpx/with <&\"'> , name.gpx", "utc.gpx"})
        QVERIFY2(!answerOf("xmllint", {"--noout", "--schema", "gpx.xsd", file}).isEmpty(), file);

    const QByteArray points = answerOf("ogrinfo", {"-ro", "-q", "utc.gpx", "track_points"});
    QCOMPARE(points.count("POINT ("), 9);
    QCOMPARE(positions(points).at(1), QString("11 48.001"));
    QCOMPARE(positions(points).at(5), QString("-11.000005 -48"));
    for (int segment = 0; segment < OddSegments.size(); ++segment)
        QCOMPARE(points.count(QByteArray("seg_id (Integer) = ") + QByteArray::number(segment)),
                 OddSegments.at(segment));
    QVERIFY(points.contains("time (DateTime) = 2026/03/13 23:30:01+00")); // over midnight
    QVERIFY(points.contains("<gpxtpx:speed>10.00</gpxtpx:speed>"));       // 36 km/h
    QVERIFY(points.contains("<talvor:x>0.03</talvor:x><talvor:y>-0.40</talvor:y>"
                            "<talvor:z>1.25</talvor:z>"));
    QVERIFY(!points.contains("localTime"));

    const QByteArray local = content("gpx/odd.gpx");
    QCOMPARE(local.count("<time>"), 0);
    QVERIFY(local.contains("<talvor:localTime>2026-03-14T00:30:01</talvor:localTime>"));
    QVERIFY(local.contains("lat=\"48.0010000\" lon=\"11.0000000\"")); // due north of the last
    QVERIFY(local.contains("<gpxtpx:course>0.0</gpxtpx:course>") || local.contains("course>36"));
}

void TestTracks::gpxOfJoinedRecordings()
{
    QCOMPARE(run({"--join", "line.avi", "with <&\"'> , name.mp4", "-o", "joined.gpx"}), 0);
    const QByteArray tracks = answerOf("ogrinfo", {"-ro", "-q", "joined.gpx", "tracks"});
    QCOMPARE(tracks.count("OGRFeature(tracks)"), 1);
    QVERIFY(tracks.contains("line to with <&\"'> , name"));
    QCOMPARE(positions(tracks).size(), 40 + 3);
    QCOMPARE(answerOf("ogrinfo", {"-ro", "-q", "joined.gpx", "track_points"})
                 .count("seg_id (Integer) = 1"),
             3);
}

void TestTracks::csv()
{
    QCOMPARE(run({"--format", "csv", "odd.mp4", "--utc-offset", "-03:30"}), 0);
    const QList<QByteArray> lines = mOutput.split('\n');
    QCOMPARE(lines.size(), 1 + OddDrive.size() + 1);
    QCOMPARE(lines.at(0), QByteArray("recording,sample,local_time,utc_time,fix,latitude,longitude,"
                                     "speed_kmh,course,x_g,y_g,z_g\r"));
    QCOMPARE(lines.at(1), QByteArray("odd.mp4,0,2026-03-14T00:30:00,2026-03-14T04:00:00Z,0,,,0,,"
                                     "0.00,0.00,0.00\r"));
    QVERIFY(lines.at(4).startsWith("odd.mp4,3,2026-03-14T00:30:03,2026-03-14T04:00:03Z,1,"
                                   "48.0020000,11.0000000,36,"));
    QVERIFY(lines.at(8).contains(",0,96.0000000,11.0000000,50,")); // kept, but no fix

    QCOMPARE(run({"--format", "CSV", "--speed-unit", "mph", "with <&\"'> , name.mp4"}), 0);
    QVERIFY(mOutput.contains("speed_mph"));
    // 12 km/h of the third sample
    QVERIFY(mOutput.contains("\"with <&\"\"'> , name.mp4\",2,2026-03-14T09:26:02,1,48.1020000,"
                             "11.5040000,7.46,"));
}

void TestTracks::geoJson_data()
{
    QTest::addColumn<QList<TelemetryBlock>>("samples");
    QTest::addColumn<QString>("geometry"); // as others read it

    QTest::newRow("one stretch") << ride(3) << "LINESTRING (11.5 48.1,11.502 48.101,11.504 48.102)";
    QTest::newRow("over the date line, and back")
        << QList<TelemetryBlock>{sample("20260314003001", 1, 179.99),
                                 sample("20260314003002", 1, 180),
                                 sample("20260314003003", 1, -179.99),
                                 sample("20260314003004", 1, -179.98),
                                 sample("20260314003005", 1, 179.99)}
        << "MULTILINESTRING ((179.99 1,180 1),(-179.99 1,-179.98 1),(179.99 1,179.99 1))";
    QTest::newRow("a single fix") << QList<TelemetryBlock>{lost("20260314003001"),
                                                           sample("20260314003002", 1.5, 2.5)}
                                  << "LINESTRING (2.5 1.5,2.5 1.5)";
    QTest::newRow("never a fix") << QList<TelemetryBlock>{lost("20260314003001")} << QString();
}

void TestTracks::geoJson()
{
    QFETCH(QList<TelemetryBlock>, samples);
    QFETCH(QString, geometry);
    save("g.avi", smallRecording(7, samples));
    QCOMPARE(run({"g.avi", "--output", "g.geojson", "--force"}), 0);

    const QByteArray seen = answerOf("ogrinfo", {"-ro", "-q", "-al", "g.geojson"});
    QCOMPARE(seen.count("OGRFeature("), 1);
    QCOMPARE(positions(seen), positions(geometry.toUtf8()));
    QCOMPARE(seen.count("MULTI") > 0, geometry.startsWith("MULTI"));

    const QJsonObject feature = QJsonDocument::fromJson(content("g.geojson")).object();
    const QJsonObject properties = feature["properties"].toObject();
    // Nested alike, so that each position has its time and its speed.
    const auto shape = [](const QJsonArray &list, bool isNested) {
        QVector<int> sizes;
        for (const QJsonValue &line : list)
            sizes.append(isNested ? line.toArray().size() : 1);
        return sizes;
    };
    const bool isNested = geometry.startsWith("MULTI");
    const QVector<int> places =
        shape(feature["geometry"].toObject()["coordinates"].toArray(), isNested);
    QCOMPARE(shape(properties["times"].toArray(), isNested), places);
    QCOMPARE(shape(properties["speeds"].toArray(), isNested), places);
}

void TestTracks::json()
{
    QList<TelemetryBlock> samples = ride(2);
    samples[1].time = "2026\"\\\x01\xe4"
                      "314092";
    samples[1].mark1 = '"';
    samples[1].time2 = "x";
    samples[1].extraValue = "00042";
    save("hostile.mp4", smallRecording(1, samples));
    QCOMPARE(run({"-f", "json", "hostile.mp4", "odd.mp4", "--join"}), 0);
    QJsonParseError error;
    const QJsonArray recordings =
        QJsonDocument::fromJson(mOutput, &error).object()["recordings"].toArray();
    QVERIFY2(error.error == QJsonParseError::NoError, qPrintable(error.errorString()));
    QCOMPARE(recordings.size(), 2);
    QCOMPARE(recordings[1].toObject()["samples"].toArray().size(), OddDrive.size());

    const QJsonObject facts = recordings[0].toObject();
    QCOMPARE(facts["container"].toString(), QString("MP4"));
    QCOMPARE(facts["width"].toInt(), 640);
    QCOMPARE(facts["coding"].toString(), QString("H.264"));
    QCOMPARE(facts["sample_count"].toInt(), 2);
    const QJsonObject seen = facts["samples"].toArray()[1].toObject();
    QCOMPARE(seen["time"].toString(), QString::fromLatin1(samples[1].time));
    QVERIFY(!seen.contains("local_time"));
    QCOMPARE(seen["mark1"].toString(), QString("\""));
    QCOMPARE(seen["mark2"].toString(), QString("A"));
    QCOMPARE(seen["time2"].toString().trimmed(), QString("x"));
    QCOMPARE(seen["latitude_ref"].toString(), QString("N"));
    QCOMPARE(seen["latitude"].toDouble(), 48.101);
    QCOMPARE(seen["longitude"].toDouble(), 11.502);
    QCOMPARE(seen["extra_value"].toInt(), 42);
    QCOMPARE(seen["speed_kmh"].toInt(), 11);
    QCOMPARE(seen["x_g"].toDouble(), 0.01);
    QCOMPARE(seen["y_g"].toDouble(), -0.02);
    QCOMPARE(seen["z_g"].toDouble(), 1.0);
}

void TestTracks::figures()
{
    QCOMPARE(run({"--info", "--format", "json", "odd.mp4", "none.mp4"}), 1);
    const QJsonArray recordings = QJsonDocument::fromJson(mOutput).object()["recordings"].toArray();
    QCOMPARE(recordings.size(), 2);
    const QJsonObject odd = recordings[0].toObject();
    QCOMPARE(odd["scheme"].toString(), QString("gps box"));
    QCOMPARE(odd["sample_count"].toInt(), OddDrive.size());
    QCOMPARE(odd["position_count"].toInt(), 9);
    QCOMPARE(odd["first_time"].toString(), QString("2026-03-14T00:30:00"));
    QCOMPARE(odd["last_time"].toString(), QString("2026-03-14T00:29:59"));
    QCOMPARE(odd["first_position"].toArray(), QJsonArray({11.0, 48.0}));
    QCOMPARE(odd["last_position"].toArray(), QJsonArray({-11.0, -48.3}));
    // Along meridians: 0.002, 0.01 and 0.1 degrees.
    const double metres = 6371008.8 * 0.112 * std::acos(-1.0) / 180.0;
    QVERIFY(std::fabs(odd["distance_m"].toDouble() - metres) < 0.1);
    QCOMPARE(odd["highest_speed_kmh"].toDouble(), 90.0);
    QCOMPARE(odd["mean_speed_kmh"].toDouble(), 44.2); // (0 + 0 + 36 + 72 + 90 + 4 * 50) / 9
    QCOMPARE(odd["longest_stop_s"].toInt(), 1);
    QCOMPARE(odd["strongest_g"].toDouble(), 1.31); // of 0.03, -0.4 and 1.25
    QCOMPARE(odd["strongest_sample"].toInt(), 1);

    QCOMPARE(run({"--info", "--speed-unit", "mph", "odd.mp4"}), 0);
    QVERIFY2(mOutput.contains("Highest speed       55.9 mph\n"), mOutput);
}

void TestTracks::statuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("message");

    const auto row = [](const char *name, const QStringList &arguments, int status,
                        const char *message) {
        QTest::newRow(name) << arguments << status << QString(message);
    };
    row("help", {"--help"}, 0, "");
    row("nothing named", {}, 2, "no recording is named");
    row("unknown option", {"--frmat", "gpx", "odd.mp4"}, 2, "frmat");
    row("unknown format", {"--format", "kml", "odd.mp4"}, 2, "kml");
    row("offset without minutes", {"--utc-offset", "+1", "odd.mp4"}, 2, "+1");
    row("offset of no zone", {"--utc-offset", "+14:01", "odd.mp4"}, 2, "+14:01");
    row("unknown unit", {"--speed-unit", "knots", "odd.mp4"}, 2, "knots");
    row("figures in a file", {"--info", "-o", "new", "odd.mp4"}, 2, "--info");
    row("without telemetry", {"none.mp4", "-o", "new"}, 1, "none.mp4 has no telemetry");
    row("sound only", {"sound.avi", "-o", "new"}, 1, "sound.avi has no telemetry");
    row("one of two without telemetry", {"--join", "none.mp4", "line.avi"}, 1, "none.mp4");
    row("gone", {"gone.mp4", "-o", "new"}, 2, "gone.mp4 cannot be read");
    row("one of two gone", {"--join", "none.mp4", "gone.mp4"}, 2, "gone.mp4 cannot be read");
    row("empty folder", {"empty"}, 2, "no recordings");
    row("several to one stream", {"odd.mp4", "line.avi", "-o", "-"}, 2, "--join");
    row("over a file", {"odd.mp4", "-o", "there.gpx"}, 2, "--force");
    row("over a recording", {"odd.mp4", "-o", "line.avi"}, 2, "--force");
    row("into no folder", {"odd.mp4", "-o", "there.gpx/x.gpx"}, 2, "there.gpx/x.gpx");
}

void TestTracks::statuses()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QString, message);
    QDir().mkpath("empty");
    save("there.gpx", "mine");
    const QByteArray recording = content("line.avi");

    QCOMPARE(run(arguments), status);
    QVERIFY2(mErrors.contains(message.toUtf8()), mErrors);
    QCOMPARE(content("there.gpx"), QByteArray("mine"));
    QCOMPARE(content("line.avi"), recording);
    QVERIFY(!QFileInfo::exists("new"));
}

void TestTracks::filesOfAFolder()
{
    for (const char *name : {"card/R10.mp4", "card/R9.MP4", "card/R9.avi", "card/sub 2/R9.mov",
                             "card/notes.txt", "card/sub 10/R9.MP4"})
        save(name, smallRecording(QByteArray(name).endsWith("avi") ? 7 : 6, ride(2)));
    QVERIFY(QFile::link("..", "card/sub 2/around")); // the folder itself once more

    QCOMPARE(run({"card", "-o", "tracks"}), 0);
    QCOMPARE(files("tracks"),
             QStringList({"R10.gpx", "R9.MP4.gpx", "R9.gpx", "sub 10/R9.gpx", "sub 2/R9.gpx"}));
    save("tracks/R9.gpx", "mine");
    QCOMPARE(run({"card", "-o", "tracks"}), 2);
    QCOMPARE(content("tracks/R9.gpx"), QByteArray("mine"));
    QCOMPARE(run({"card", "-o", "tracks", "--force"}), 0);
    QVERIFY(content("tracks/R9.gpx").contains("</gpx>"));

    QCOMPARE(run({"--join", "-f", "json", "card"}), 0);
    QStringList order;
    for (const QJsonValue &recording :
         QJsonDocument::fromJson(mOutput).object()["recordings"].toArray())
        order.append(recording.toObject()["file"].toString());
    QCOMPARE(order, QStringList({"card/R9.avi", "card/R9.MP4", "card/R10.mp4", "card/sub 2/R9.mov",
                                 "card/sub 10/R9.MP4"}));
}

void TestTracks::outputThatIsFull()
{
    QProcess shell;
    shell.start("sh", {"-c", QStringLiteral(TELEMETRY_COMMAND " line.avi > /dev/full")});
    QVERIFY(shell.waitForFinished(PatienceMs));
    QCOMPARE(shell.exitCode(), 2);
    QVERIFY(shell.readAllStandardError().contains("cannot write"));
}

QTEST_GUILESS_MAIN(TestTracks)
#include "tst_tracks.moc"
