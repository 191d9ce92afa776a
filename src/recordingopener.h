// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foldersearch.h"

#include <QList>
#include <QObject>
#include <QQueue>
#include <QStringList>
#include <QTimer>
#include <QUrl>

class ElidedLabel;
class PlaylistModel;

/**
 * The one door for what is opened: puts recordings and those of folders into the playlist, in the
 * order given, and tells which is to be played. Folders are searched and many recordings added
 * while the window goes on; what is opened meanwhile waits, unless it is a few recordings only.
 *
 * Says in the title how far a search is, and for a moment what came of an opening that shows
 * nothing else: no recording found, or one of the same name in the list already.
 *
 * Neither model nor label are owned; both must live longer, or it must have been cancelled. GUI
 * thread only.
 */
class RecordingOpener : public QObject
{
    Q_OBJECT

public:
    RecordingOpener(PlaylistModel *model, ElidedLabel *title, QObject *parent = nullptr);

    /** Recordings and folders. A few recordings are in the list at once; one that is on its way
     * with others comes in its place among these. */
    void open(const QList<QUrl> &urls);
    /** What the open dialog gave: folders among it are passed over, and its place is remembered for
     *  the next time. */
    void openChosen(const QList<QUrl> &urls);
    /** Puts recordings into the list without anything being played. */
    void restore(const QList<QUrl> &urls);
    /** Gives up the search or the adding that is under way, and what waits. What is in the list
     *  stays there. Returns false if there was nothing to give up. */
    bool cancel();

    /** Whether the list lacks rows that are being restored. */
    bool isRestoring() const { return mJob.isRestored; }

    /** Shows a notice in the title for a moment. */
    void tell(const QString &notice);

signals:
    /** All is in the list, and this row is its first recording. */
    void opened(int row);
    /** All is in the list, of which nothing is to be played. */
    void restored();

private:
    struct Job
    {
        QList<QUrl> urls;
        bool isRestored = false;
    };

    void enqueue(const Job &job);
    bool isOnItsWay(const QUrl &url) const;
    void beginNext();
    void onFound(const QList<QUrl> &recordings);
    void addSlice();
    void endAdding();
    int add(const QUrl &url);
    void showProgress();
    void tellNotOpened();

    PlaylistModel *mModel = nullptr;
    ElidedLabel *mTitle = nullptr;
    FolderSearch mSearch;
    QQueue<Job> mWaiting;
    Job mJob; // the one under way
    bool mIsBusy = false;
    QList<QUrl> mFound; // to be added
    int mAddedCount = 0;
    int mFirstRow = -1;
    QStringList mNamesakes; // in the list already, from other folders
    QTimer mAddTimer;
    QTimer mProgressTimer;
    QTimer mNamesakesTimer;
};
