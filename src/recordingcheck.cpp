// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "recordingcheck.h"

#include "avicheck.h"
#include "mp4check.h"
#include "recordingfile.h"

RecordingCondition checkRecording(RecordingFile &file)
{
    RecordingCondition condition;
    if (!file.isOpen()) {
        const bool lacksDescriptors = file.error() == QFileDevice::ResourceError;
        condition.kind = lacksDescriptors ? RecordingCondition::Unknown : RecordingCondition::Gone;
        return condition;
    }
    if (file.size() == 0) {
        condition.kind = RecordingCondition::Empty;
        return condition;
    }
    return AviCheck::isAvi(file) ? AviCheck(file).condition() : Mp4Check(file).condition();
}

RecordingCondition checkRecording(const QString &fileName)
{
    RecordingFile file(fileName);
    file.openRegular();
    return checkRecording(file);
}
