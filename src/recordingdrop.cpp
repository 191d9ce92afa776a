// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "recordingdrop.h"

#include "playareamanager.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QWidget>

#include <algorithm>

namespace {

bool isFolder(const QUrl &url)
{
    return QFileInfo(url.toLocalFile()).isDir();
}

bool hasFolder(const QList<QUrl> &urls)
{
    return std::any_of(urls.begin(), urls.end(), isFolder);
}

/** Local recordings and folders. */
QList<QUrl> droppedUrls(const QMimeData &data)
{
    QList<QUrl> dropped;
    const QList<QUrl> urls = data.urls();
    for (QUrl url : urls) {
        if (url.host() == QLatin1String("localhost"))
            url.setHost(QString());
        if (!url.isLocalFile() || !url.host().isEmpty())
            continue;
        if (isFolder(url) || PlayAreaManager::isRecordingName(url.toString()))
            dropped.append(url);
    }
    return dropped;
}

} // namespace

RecordingDrop::RecordingDrop(QWidget *widget, Taking taking) : QObject(widget), mTaking(taking)
{
    widget->setAcceptDrops(true);
    widget->installEventFilter(this);
}

bool RecordingDrop::eventFilter(QObject *object, QEvent *event)
{
    if (mIsTaken)
        return false;
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
        return accept(static_cast<QDropEvent *>(event)) || mTaking == All;
    case QEvent::Drop:
        break;
    default:
        return QObject::eventFilter(object, event);
    }
    auto *drop = static_cast<QDropEvent *>(event);
    if (!accept(drop))
        return mTaking == All;
    const QList<QUrl> urls = droppedUrls(*drop->mimeData());
    take(urls);
    if (mTaking == WithFolders) {
        // The widget tells of its files all the same, which are on their way already.
        const QScopedValueRollback<bool> taken(mIsTaken, true);
        object->event(event);
    }
    return true;
}

/** Returns whether this drop is taken. As a copy: after a move, which some sources propose, they
 *  would delete the camera's files. */
bool RecordingDrop::accept(QDropEvent *event) const
{
    const QList<QUrl> urls = droppedUrls(*event->mimeData());
    const bool isTaken = !urls.isEmpty() && (mTaking == All || hasFolder(urls));
    if (isTaken) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    } else if (mTaking == All) {
        event->ignore();
    }
    return isTaken;
}

void RecordingDrop::take(const QList<QUrl> &urls)
{
    if (hasFolder(urls)) {
        emit foldersDropped(urls);
        return;
    }
    for (const QUrl &url : urls)
        emit dropFile(url.toString());
}
