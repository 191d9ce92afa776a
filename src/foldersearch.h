// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QObject>
#include <QUrl>

#include <memory>

class QThread;

/**
 * Looks for the recordings in folders as RecordingSearch does, on a thread of its own.
 *
 * The public operations belong to the GUI thread. None of them waits for the file system: a search
 * in a folder that does not answer is left to itself.
 */
class FolderSearch : public QObject
{
    Q_OBJECT

public:
    /** The search ends there: each row of the playlist costs a thread. */
    static constexpr int MostRecordings = 10000;

    explicit FolderSearch(QObject *parent = nullptr);
    /** Cancels. */
    ~FolderSearch() override;

    /** Cancels what is under way and begins anew. Folders are replaced by what is in them, local
     *  files are taken as they are, and the order of both stays. */
    void start(const QList<QUrl> &urls);
    /** What is under way is not told of. */
    void cancel();

    bool isRunning() const { return mWalk != nullptr; }
    /** The number of recordings so far, those that were given included; 0 if none runs. */
    int foundCount() const;

signals:
    void finished(const QList<QUrl> &recordings);

private:
    struct Walk;

    void finish();

    std::shared_ptr<Walk> mWalk; // shared with the thread; null while none runs
    QThread *mThread = nullptr;  // deletes itself
};
