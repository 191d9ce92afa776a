// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCollator>
#include <QSet>
#include <QString>
#include <QStringList>

#include <atomic>
#include <limits>

/**
 * Looks for the recordings in folders and those below, in natural order: 9 before 10, in either
 * case, those of a folder before those of the folders in it.
 *
 * A folder is entered once, however many links lead to it. Hidden files are left out, as are
 * sockets and the like; folders that cannot be read, or go meanwhile, have what was read of them.
 *
 * One thread searches; cancel() and foundCount() may be called from any.
 */
class RecordingSearch
{
public:
    /** The search ends when it has found @p most recordings. */
    explicit RecordingSearch(int most = std::numeric_limits<int>::max());

    /** Appends what is in the folder. */
    void lookInto(const QString &folder);
    /** Appends a file that is not looked at. */
    void take(const QString &path);
    /** Nothing more is looked for. */
    void cancel() { mIsCancelled = true; }

    bool isOver() const { return mIsCancelled || mFoundCount >= mMost; }
    int foundCount() const { return mFoundCount; }
    /** Paths; to be asked by the thread that searches, or when it has ended. */
    const QStringList &found() const { return mFound; }

    /** Whether a file's name is that of a recording: its suffix is mp4, mov or avi in any case. */
    static bool isRecording(const QString &fileName);

private:
    QStringList sorted(const QStringList &names) const;

    int mMost;
    QCollator mOrder;
    QSet<QString> mEntered;
    QStringList mFound;
    std::atomic<int> mFoundCount{0};
    std::atomic<bool> mIsCancelled{false};
};
