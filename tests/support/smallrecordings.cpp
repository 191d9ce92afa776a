// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "smallrecordings.h"

#include "aviwriter.h"
#include "recordingwriter.h"

namespace {
bool isAvi(int scheme)
{
    return scheme == 7 || scheme == 8;
}
} // namespace

const char *recordingName(int scheme)
{
    return isAvi(scheme) ? "a.avi" : "a.mp4";
}

QList<TelemetryBlock> ride(int sampleCount)
{
    QList<TelemetryBlock> samples;
    for (int i = 0; i < sampleCount; ++i) {
        TelemetryBlock sample;
        sample.time = QByteArray::number(Q_INT64_C(20260314092600) + i);
        sample.setPosition(48.1 + 0.001 * i, 11.5 + 0.002 * i);
        sample.setSpeed(10 + i);
        sample.setAcceleration(0.01 * i, -0.02, 1.0);
        samples.append(sample);
    }
    return samples;
}

QByteArray smallRecording(int scheme, const QList<TelemetryBlock> &samples)
{
    if (isAvi(scheme)) {
        AviWriter writer;
        writer.junkSize = 12;
        writer.videoChunkSize = 33;
        writer.soundChunkExtra = 1;
        writer.setTelemetry(scheme, samples);
        return writer.encoded();
    }
    RecordingWriter writer;
    writer.tracks = {Mp4::videoTrack(640, 480, 300, "avc1", 86400)};
    writer.setTelemetry(scheme, samples);
    return writer.encoded();
}
