// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QModelIndex>
#include <QObject>
#include <QUrl>

class PlaylistModel;
class QMenu;
class QTableView;
class TrackMenu;

/**
 * The context menu of the playlist: what can be done with the recording under the pointer, and with
 * the list. By the keyboard, for which show() is called as the list has no focus, it is that of the
 * selected recording.
 *
 * GUI thread only. A child of the table; the model is not owned.
 */
class PlaylistMenu : public QObject
{
    Q_OBJECT

public:
    PlaylistMenu(QTableView *table, PlaylistModel *model);

    /** Beside the selected row. */
    void show();

signals:
    void playRequested(const QModelIndex &index);
    void clearRequested();
    /** What was asked for could not be done; for the user's eyes. */
    void failed(const QString &notice);
    /** A track has been saved; for the user's eyes. */
    void saved(const QString &notice);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void popUp(const QModelIndex &index, const QPoint &globalPosition);
    void addRecordingEntries(QMenu *menu, const QModelIndex &index);
    void addListEntries(QMenu *menu);
    void openFolderOf(const QUrl &recording);
    static void setRemembered(bool isRemembered);

    QTableView *mTable = nullptr; // the parent
    PlaylistModel *mModel = nullptr;
    TrackMenu *mTracks = nullptr; // a child of the window
};
