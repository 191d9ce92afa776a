// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QObject>
#include <QUrl>

class QDropEvent;
class QMimeData;
class QWidget;

/**
 * Takes what is dropped on a widget: recordings and folders, which it tells of in their order. A
 * widget that takes drops itself keeps those without a folder.
 *
 * GUI thread only. A child of the widget.
 */
class RecordingDrop : public QObject
{
    Q_OBJECT

public:
    enum Taking
    {
        All,
        WithFolders, ///< leaves drops of files alone to the widget itself
    };

    RecordingDrop(QWidget *widget, Taking taking);

signals:
    /** A drop with a folder in it. */
    void foldersDropped(const QList<QUrl> &urls);
    /** One recording of a drop without a folder, as URL text. */
    void dropFile(const QString &filePath);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    bool accept(QDropEvent *event) const;
    void take(const QList<QUrl> &urls);

    Taking mTaking;
    bool mIsTaken = false; // the widget itself is being told of a drop
};
