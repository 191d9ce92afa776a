// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <atomic>

/** Whether a file's name ends like a recording's: mp4, mov or avi in any case. */
bool isRecordingFile(const QString &fileName);

/**
 * The paths of all recordings in a folder and its subfolders, in natural order: 9 before 10, a
 * folder's own files before those of its subfolders. A folder that links lead to twice is looked
 * into once; one that cannot be read has nothing. Once @p wanted, which may be null, is cleared,
 * the search ends with what it has. May be called on any thread.
 */
QStringList recordingsBelow(const QString &folder, const std::atomic<bool> *wanted = nullptr);
