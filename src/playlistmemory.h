// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QTimer>
#include <QUrl>

class MainWindows;
class PlayAreaManager;
class PlaylistModel;
class PlaylistTable;
class ResumeOffer;
struct RowData;

/**
 * Keeps the playlist from one run to the next, if the user wants it: stores it a little after each
 * change and when the window closes, then with the recording that was playing and its position.
 * restore() brings the rows back; nothing plays then, but that recording is selected and a line
 * below the list offers to go on with it.
 *
 * The window must outlive it. GUI thread only.
 */
class PlaylistMemory : public QObject
{
    Q_OBJECT

public:
    explicit PlaylistMemory(MainWindows *window);

    /** Nothing unless the user wants it. */
    void restore();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void store();
    void onRestored();
    void onStateChanged();
    void resume();
    void seekWhenPlaying();
    const RowData *rowOf(const QUrl &url) const;

    MainWindows *mWindow;
    PlaylistModel *mModel;
    PlaylistTable *mTable;
    PlayAreaManager *mArea;
    QTimer mStoreTimer;
    QPointer<ResumeOffer> mOffer; // a child of the window's left column, while it is made
    QUrl mOffered;
    qint64 mOfferedMs = 0;
    bool mIsResuming = false;
};
