// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later

// Makes recordings of a simulated drive, a pair, front and rear, and the beginning of the front one
// as an AVI: pictures, sound and telemetry that agree, so that a person sees at a glance whether a
// player's displays are in step.

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

#include <algorithm>
#include <cmath>

namespace {
constexpr QSize SmallestSize(160, 90);
constexpr QSize LargestSize(3840, 2160);
// Players take an AVI's duration from the whole microseconds of a frame and cut it to seconds: a
// little more than 20 s makes it 20.
constexpr double AviSeconds = 20.1;

struct Order
{
    QString folder;
    RecordingFormat format;
};

/** A recording on its way: at the end held whole in memory. */
struct Recording
{
    QString name;
    int telemetryScheme;
    int sampleCount; ///< of telemetry, one for each second begun
    QByteArray content = {};
};

/** One of the pair, painted and encoded. */
struct View
{
    View(const Recording &product, const DemoScene &view) : recording(product), scene(view) {}

    Recording recording;
    DemoScene scene;
    DemoEncoder encoder;
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
    parser.setApplicationDescription(QStringLiteral(
        "Makes demo recordings with telemetry: a pair, front and rear, and an AVI."));
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
QString encode(const RecordingFormat &format, const QList<View *> &views)
{
    const int frames = format.seconds * format.framesPerSecond;
    for (int frame = 0; frame < frames; ++frame) {
        for (View *view : views) {
            if (!view->encoder.write(view->scene.paint(frame, format.framesPerSecond)))
                return view->encoder.errorText();
        }
    }
    for (View *view : views) {
        if (!view->encoder.finish())
            return view->encoder.errorText();
    }
    return {};
}

QString encodePair(const DemoDrive &drive, const RecordingFormat &format, const QDir &work,
                   const QList<View *> &pair)
{
    const QString soundFile = work.filePath(QStringLiteral("sound"));
    // A little short: sound is coded in blocks, and the last one must not outlast the pictures.
    if (!writeFile(soundFile, engineSound(drive, format.seconds - 0.1)))
        return QStringLiteral("cannot write temporary files into %1").arg(QDir::tempPath());
    for (View *view : pair)
        view->encoder.start(format, soundFile, work.filePath(view->recording.name));
    return encode(format, pair);
}

QString encodeAvi(const QString &videoFile, const QString &aviFile)
{
    DemoEncoder encoder;
    encoder.startAvi(videoFile, AviSeconds, aviFile);
    return encoder.finish() ? QString() : encoder.errorText();
}

QString addTelemetry(Recording *recording, const DemoDrive &drive, const QDir &work)
{
    QFile file(work.filePath(recording->name));
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    recording->content = file.readAll();
    QList<TelemetryBlock> telemetry;
    for (int second = 0; second < recording->sampleCount; ++second)
        telemetry.append(telemetryOf(drive.sampleAt(second)));
    if (!graftTelemetry(recording->content, telemetry, recording->telemetryScheme))
        return QStringLiteral("the encoded %1 takes no telemetry").arg(recording->name);
    return {};
}

QString deliver(const Recording &recording, const QString &folder)
{
    if (writeFile(QDir(folder).filePath(recording.name), recording.content))
        return {};
    return QStringLiteral("cannot write %1 into %2").arg(recording.name, folder);
}

QString makeRecordings(const DemoDrive &drive, const Order &order)
{
    const QTemporaryDir temporary;
    const QDir work(temporary.path());
    const DemoCountry country(drive);
    const QSize size = order.format.size;
    const int seconds = order.format.seconds;
    View front({"MOVA0001.MP4", 2, seconds}, {drive, country, DemoScene::Camera::Front, size});
    View rear({"MOVB0001.MP4", 4, seconds}, {drive, country, DemoScene::Camera::Rear, size});
    Recording avi{"MOVA0002.AVI", 7, std::min(seconds, int(std::ceil(AviSeconds)))};

    QString error = encodePair(drive, order.format, work, {&front, &rear});
    if (error.isEmpty())
        error = encodeAvi(work.filePath(front.recording.name), work.filePath(avi.name));
    const QList<Recording *> recordings{&front.recording, &rear.recording, &avi};
    for (int i = 0; i < recordings.size() && error.isEmpty(); ++i)
        error = addTelemetry(recordings[i], drive, work);
    for (int i = 0; i < recordings.size() && error.isEmpty(); ++i)
        error = deliver(*recordings[i], order.folder);
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
        error = makeRecordings(drive, order);
    return error.isEmpty() ? 0 : fail(error);
}
