// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QStringList>
#include <QVector>

class QGridLayout;

/**
 * A small window that tells which keys do what, in the colours of the main window. Escape and its
 * button close it. GUI thread only.
 */
class KeyList : public QDialog
{
    Q_OBJECT

public:
    struct Line
    {
        QStringList keys; ///< as they are written on the keyboard
        QString description;
    };

    /** Shows the lines from top to bottom. @p parent is the window that it belongs to. */
    KeyList(const QVector<Line> &lines, QWidget *parent);

private:
    QWidget *createTitle();
    QWidget *createTable(const QVector<Line> &lines);
};
