// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later

// Makes the recordings that the fuzzers start from: make-seeds FOLDER
// FOLDER/mp4 and FOLDER/avi are made anew, with one recording for each scheme of telemetry.
#include "smallrecordings.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFileInfo>

namespace {
bool makeSeed(const QDir &folder, int scheme)
{
    const QString container = QFileInfo(QString::fromLatin1(recordingName(scheme))).suffix();
    QFile file(folder.filePath(QStringLiteral("%1/scheme%2").arg(container).arg(scheme)));
    const QByteArray recording = smallRecording(scheme, ride(2));
    return folder.mkpath(container) && file.open(QIODevice::WriteOnly) &&
           file.write(recording) == recording.size();
}
} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    const QString name = app.arguments().value(1);
    if (name.isEmpty()) {
        qCritical("usage: make-seeds FOLDER");
        return 2;
    }
    const QDir folder(name);
    for (const char *container : {"mp4", "avi"})
        QDir(folder.filePath(QLatin1String(container))).removeRecursively();
    for (int scheme : TelemetrySchemes) {
        if (!makeSeed(folder, scheme)) {
            qCritical() << "make-seeds: cannot write into" << name;
            return 1;
        }
    }
    return 0;
}
