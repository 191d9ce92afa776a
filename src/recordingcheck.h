// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "recordingcondition.h"

class QString;
class RecordingFile;

/**
 * Judges a recording by the headers of its container: whether it has what a player needs, and
 * whether it is as long as it claims. The content decides what kind of container it is, not the
 * name. Of the file a few headers are read, whatever its size, and none of its pictures.
 *
 * @p file is open, or could not be opened, which makes it gone; but one that only found no
 * descriptor left stays unknown. Its position is left alone. What the telemetry is stays unknown.
 */
RecordingCondition checkRecording(RecordingFile &file);

/** The same for a file by its name. Takes a descriptor for the time of the call. */
RecordingCondition checkRecording(const QString &fileName);
