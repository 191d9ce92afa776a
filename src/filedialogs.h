// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QUrl>

class QWidget;

// The dialogs in which the user looks for files and folders. Modal over the window given as parent;
// GUI thread only. A start folder that is gone, as on a card that was pulled, is replaced by the
// nearest one above it that is there.

/** The recordings that the user chose to open; none when he thought better of it. */
QList<QUrl> askForRecordings(QWidget *parent, const QString &title, const QString &startFolder);

/** The folder that the user chose; empty when he thought better of it. */
QString askForFolder(QWidget *parent, const QString &title, const QString &startFolder);

/** The file that the user chose for a track, with the suffix of its format; empty when he thought
 *  better of it. @p file is proposed; one that is there is only chosen after a question. */
QString askForTrackFile(QWidget *parent, const QString &title, const QString &file);
