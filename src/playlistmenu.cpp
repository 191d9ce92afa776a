// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "playlistmenu.h"

#include "configuration.h"
#include "darkmenu.h"
#include "playlistmodel.h"
#include "rememberedlist.h"
#include "rowdata.h"
#include "trackmenu.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenu>
#include <QTableView>

PlaylistMenu::PlaylistMenu(QTableView *table, PlaylistModel *model)
    : QObject(table), mTable(table), mModel(model), mTracks(new TrackMenu(table->window(), model))
{
    connect(mTracks, &TrackMenu::saved, this, &PlaylistMenu::saved);
    mTable->viewport()->installEventFilter(this);
}

void PlaylistMenu::show()
{
    const QModelIndexList selected = mTable->selectionModel()->selectedRows();
    const QModelIndex index = selected.value(0);
    if (index.isValid())
        mTable->scrollTo(index);
    const QPoint place = index.isValid() ? mTable->visualRect(index).center() : QPoint();
    popUp(index, mTable->viewport()->mapToGlobal(place));
}

bool PlaylistMenu::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::ContextMenu)
        return QObject::eventFilter(object, event);
    const auto *request = static_cast<QContextMenuEvent *>(event);
    const QModelIndex index = mTable->indexAt(request->pos());
    if (index.isValid())
        mTable->selectRow(index.row());
    popUp(index, request->globalPos());
    return true;
}

void PlaylistMenu::popUp(const QModelIndex &index, const QPoint &globalPosition)
{
    QMenu *menu = createDarkMenu(mTable);
    addRecordingEntries(menu, index);
    menu->addSeparator();
    addListEntries(menu);
    menu->popup(globalPosition);
}

void PlaylistMenu::addRecordingEntries(QMenu *menu, const QModelIndex &index)
{
    const RowData *row = index.isValid() ? mModel->getRowData(index.row()) : nullptr;
    const QUrl url = row ? row->url : QUrl();
    const QString name = row ? row->fileName : QString();
    const QPersistentModelIndex recording = index; // invalid once the list has been cleared
    const QList<QAction *> entries = {
        menu->addAction(tr("Play"), this, [this, recording] { emit playRequested(recording); }),
        menu->addAction(tr("Open Folder"), this, [this, url] { openFolderOf(url); }),
        menu->addAction(tr("Copy Name"), this,
                        [name] { QGuiApplication::clipboard()->setText(name); }),
    };
    for (QAction *entry : entries)
        entry->setEnabled(row);
    mTracks->addEntries(menu, row);
}

void PlaylistMenu::addListEntries(QMenu *menu)
{
    menu->addAction(tr("Clear List"), this, &PlaylistMenu::clearRequested)
        ->setEnabled(mModel->rowCount() > 0);
    QAction *remember = menu->addAction(tr("Remember List"));
    remember->setCheckable(true);
    remember->setChecked(Configuration::GetInstance()->remembersList());
    connect(remember, &QAction::toggled, this, &PlaylistMenu::setRemembered);
}

void PlaylistMenu::openFolderOf(const QUrl &recording)
{
    const QString folder = QFileInfo(recording.toLocalFile()).absolutePath();
    if (!QFileInfo(folder).isDir())
        emit failed(tr("The folder %1 is gone").arg(QDir::toNativeSeparators(folder)));
    else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(folder)))
        emit failed(tr("No program opens the folder %1").arg(QDir::toNativeSeparators(folder)));
}

/** What is not to be remembered is forgotten at once. */
void PlaylistMenu::setRemembered(bool isRemembered)
{
    Configuration::GetInstance()->setRemembersList(isRemembered);
    if (!isRemembered)
        RememberedList::remove();
}
