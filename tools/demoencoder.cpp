// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demoencoder.h"

#include "demosound.h"

#include <QSysInfo>

namespace {
// Without B-frames the first picture is shown at 0, not after a reordering delay.
const char InputOptions[] =
    "-hide_banner -loglevel error -y -f rawvideo -pix_fmt %1 -s %2x%3 -r %4 -i pipe:0 "
    "-f %5 -ar %6 -ac 1 -i";
const char OutputOptions[] =
    "-c:v libx264 -preset superfast -crf 23 -bf 0 -g %1 -keyint_min %1 -sc_threshold 0 "
    "-vf scale=out_color_matrix=bt709:out_range=tv -pix_fmt yuv420p "
    "-colorspace bt709 -color_primaries bt709 -color_trc bt709 "
    "-c:a aac -b:a 64k -metadata creation_time=%2";

// An AVI of bounded size: each Motion JPEG picture stands alone and is large. Its colours are those
// of JPEG.
const char AviOptions[] =
    "-c:v mjpeg -b:v 5000k -vf scale=w='min(960,iw)':h=-2:out_color_matrix=bt601:out_range=pc "
    "-pix_fmt yuvj420p -c:a pcm_s16le -f avi";

QStringList arguments(const RecordingFormat &format, const QString &soundFile,
                      const QString &videoFile)
{
    const bool isLittle = QSysInfo::ByteOrder == QSysInfo::LittleEndian;
    const QString input = QString(InputOptions)
                              .arg(isLittle ? "bgr0" : "0rgb")
                              .arg(format.size.width())
                              .arg(format.size.height())
                              .arg(format.framesPerSecond)
                              .arg(isLittle ? "s16le" : "s16be")
                              .arg(EngineSoundRate);
    const QString output = QString(OutputOptions)
                               .arg(format.framesPerSecond)
                               .arg(format.startTime.toString("yyyy-MM-ddTHH:mm:ssZ"));
    return input.split(' ') + QStringList{soundFile} + output.split(' ') + QStringList{videoFile};
}

QStringList aviArguments(const QString &videoFile, double seconds, const QString &aviFile)
{
    const QString input = QStringLiteral("-hide_banner -loglevel error -nostdin -y -t %1 -i");
    return input.arg(seconds).split(' ') + QStringList{videoFile} + QString(AviOptions).split(' ') +
           QStringList{aviFile};
}
} // namespace

DemoEncoder::~DemoEncoder()
{
    mProcess.kill();
    mProcess.waitForFinished();
}

QString DemoEncoder::obstacle()
{
    QProcess process;
    process.start("ffmpeg", {"-hide_banner", "-encoders"});
    if (!process.waitForStarted())
        return QStringLiteral("the program ffmpeg is needed and was not found");
    process.waitForFinished();
    const QByteArray encoders = process.readAllStandardOutput();
    for (const char *name : {"libx264", "aac", "mjpeg", "pcm_s16le"}) {
        if (!encoders.contains(QByteArray(" ") + name + ' '))
            return QStringLiteral("this ffmpeg has no encoder %1").arg(QLatin1String(name));
    }
    return {};
}

void DemoEncoder::start(const RecordingFormat &format, const QString &soundFile,
                        const QString &videoFile)
{
    mProcess.setStandardOutputFile(QProcess::nullDevice());
    mProcess.start("ffmpeg", arguments(format, soundFile, videoFile));
}

void DemoEncoder::startAvi(const QString &videoFile, double seconds, const QString &aviFile)
{
    mProcess.start("ffmpeg", aviArguments(videoFile, seconds, aviFile));
}

bool DemoEncoder::write(const QImage &picture)
{
    // One picture may wait while the next is painted.
    while (mProcess.bytesToWrite() > 0) {
        if (!mProcess.waitForBytesWritten(-1))
            return false;
    }
    return mProcess.write(reinterpret_cast<const char *>(picture.constBits()),
                          picture.sizeInBytes()) == picture.sizeInBytes();
}

bool DemoEncoder::finish()
{
    mProcess.closeWriteChannel();
    return mProcess.waitForFinished(-1) && mProcess.exitStatus() == QProcess::NormalExit &&
           mProcess.exitCode() == 0;
}

QString DemoEncoder::errorText()
{
    // The pipe breaks before the program's last words have been read.
    mProcess.waitForFinished(1000);
    const QString said = QString::fromLocal8Bit(mProcess.readAllStandardError()).trimmed();
    return said.isEmpty() ? mProcess.errorString() : said;
}
