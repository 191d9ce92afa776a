// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later

// Makes a pair of recordings, front and rear, of a simulated drive: pictures, sound and telemetry
// that agree, so that a person sees at a glance whether a player's displays are in step.

#include "democountry.h"
#include "demodrive.h"
#include "demoencoder.h"
#include "demoscene.h"
#include "demosound.h"
#include "recordingwriter.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTextStream>

namespace {
constexpr QSize SmallestSize(160, 90);
constexpr QSize LargestSize(3840, 2160);

struct Order
{
    QString folder;
    RecordingFormat format;
};

/** One of the pair on its way: painted, encoded, and at the end held whole in memory. */
struct Recording
{
    Recording(const QString &fileName, int scheme, const DemoScene &view)
        : name(fileName), telemetryScheme(scheme), scene(view)
    {}

    const QString name;
    const int telemetryScheme;
    DemoScene scene;
    DemoEncoder encoder;
    QByteArray content;
};

int fail(const QString &message)
{
    QTextStream(stderr) << "demo-recordings: " << message << '\n';
    return 1;
}

/** A whole number of an option, within limits; sets @p error when it is not. */
int number(const QCommandLineParser &parser, const QString &option, int least, int most,
           QString *error)
{
    bool isNumber = false;
    const int value = parser.value(option).toInt(&isNumber);
    if (!isNumber || value < least || value > most)
        *error =
            QStringLiteral("--%1 wants a number from %2 to %3").arg(option).arg(least).arg(most);
    return value;
}

QSize pictureSize(const QString &text, QString *error)
{
    const QStringList sides = text.split('x');
    const QSize size(sides.value(0).toInt(), sides.value(1).toInt());
    const bool isEven = size.width() % 2 == 0 && size.height() % 2 == 0;
    const bool isSensible = size.boundedTo(LargestSize).expandedTo(SmallestSize) == size;
    if (sides.size() != 2 || !isEven || !isSensible)
        *error = QStringLiteral("--size wants WIDTHxHEIGHT, even numbers from 160x90 to 3840x2160");
    return size;
}

Order readOrder(QString *error)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Makes a pair of demo recordings, front and rear, with telemetry."));
    parser.addHelpOption();
    parser.addPositionalArgument("OUTPUT_FOLDER", "Folder for the recordings, made if missing.");
    parser.addOption({"seconds", "Length of the recordings.", "N", "60"});
    parser.addOption({"size", "Size of the picture in pixels.", "WxH", "1280x720"});
    parser.addOption({"fps", "Frames a second.", "N", "30"});
    parser.process(*qApp);

    Order order;
    order.folder = parser.positionalArguments().value(0);
    order.format.seconds = number(parser, "seconds", 1, 600, error);
    order.format.size = pictureSize(parser.value("size"), error);
    order.format.framesPerSecond = number(parser, "fps", 1, 60, error);
    if (parser.positionalArguments().size() != 1)
        *error = QStringLiteral("one OUTPUT_FOLDER is wanted; see --help");
    return order;
}

/** Why the order cannot be carried out; empty when it can. */
QString obstacle(const Order &order)
{
    if (!QDir().mkpath(order.folder) || !QFileInfo(order.folder).isWritable())
        return QStringLiteral("cannot write into %1").arg(order.folder);
    if (QFontDatabase().families().isEmpty())
        return QStringLiteral("no fonts are installed");
    return DemoEncoder::obstacle();
}

TelemetryBlock telemetryOf(const DriveSample &sample)
{
    TelemetryBlock block;
    block.time = sample.localTime.toString("yyyyMMddHHmmss").toLatin1();
    block.time2 = sample.localTime.addSecs(-3600).toString("yyyyMMddHHmmss").toLatin1();
    block.setPosition(sample.latitudeDeg, sample.longitudeDeg);
    block.setSpeed(sample.speedKmh);
    block.setAcceleration(sample.rightG, sample.forwardG, sample.upG);
    return block;
}

bool writeFile(const QString &fileName, const QByteArray &content)
{
    QSaveFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() &&
           file.commit();
}

/** Encodes all at once, so that painting and encoding share the processors. Returns why it failed,
 *  or an empty text, as all functions below. */
QString encode(const RecordingFormat &format, const QList<Recording *> &recordings)
{
    const int frames = format.seconds * format.framesPerSecond;
    for (int frame = 0; frame < frames; ++frame) {
        for (Recording *recording : recordings) {
            if (!recording->encoder.write(recording->scene.paint(frame, format.framesPerSecond)))
                return recording->encoder.errorText();
        }
    }
    for (Recording *recording : recordings) {
        if (!recording->encoder.finish())
            return recording->encoder.errorText();
    }
    return {};
}

QString addTelemetry(Recording *recording, const QString &videoFile,
                     const QList<TelemetryBlock> &telemetry)
{
    QFile file(videoFile);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    recording->content = file.readAll();
    if (!graftTelemetry(recording->content, telemetry, recording->telemetryScheme))
        return QStringLiteral("the encoded %1 takes no telemetry").arg(recording->name);
    return {};
}

QString makePair(const DemoDrive &drive, const Order &order)
{
    const QTemporaryDir work;
    const QString soundFile = work.filePath(QStringLiteral("sound"));
    // A little short: sound is coded in blocks, and the last one must not outlast the pictures.
    if (!writeFile(soundFile, engineSound(drive, order.format.seconds - 0.1)))
        return QStringLiteral("cannot write temporary files into %1").arg(QDir::tempPath());

    const DemoCountry country(drive);
    const QSize size = order.format.size;
    Recording front("MOVA0001.MP4", 2, {drive, country, DemoScene::Camera::Front, size});
    Recording rear("MOVB0001.MP4", 4, {drive, country, DemoScene::Camera::Rear, size});
    const QList<Recording *> pair{&front, &rear};
    for (Recording *recording : pair)
        recording->encoder.start(order.format, soundFile, work.filePath(recording->name));
    QString error = encode(order.format, pair);

    QList<TelemetryBlock> telemetry;
    for (int second = 0; second < order.format.seconds; ++second)
        telemetry.append(telemetryOf(drive.sampleAt(second)));
    for (int i = 0; i < pair.size() && error.isEmpty(); ++i)
        error = addTelemetry(pair[i], work.filePath(pair[i]->name), telemetry);
    for (int i = 0; i < pair.size() && error.isEmpty(); ++i) {
        if (!writeFile(QDir(order.folder).filePath(pair[i]->name), pair[i]->content))
            error = QStringLiteral("cannot write %1 into %2").arg(pair[i]->name, order.folder);
    }
    return error;
}
} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);

    const DemoDrive drive;
    QString error;
    Order order = readOrder(&error);
    if (!error.isEmpty())
        return fail(error);
    order.format.startTime = drive.sampleAt(0).localTime;
    error = obstacle(order);
    if (error.isEmpty())
        error = makePair(drive, order);
    return error.isEmpty() ? 0 : fail(error);
}
