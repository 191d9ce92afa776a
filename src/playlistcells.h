// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QStyledItemDelegate>

class QTableView;
class QTimer;

/**
 * Draws the cells of the playlist: in one font that fits them all, and beside a recording's name
 * the sign of its condition. The tool tip has what is elided, and what the sign means.
 *
 * A recording that has not been looked at yet shows moving dots, if it has not a moment later
 * either. Only painting a cell that waits starts the timer for the next picture, so that none runs
 * when no such cell can be seen, and what happens at it depends on the rows in view alone.
 */
class PlaylistCells : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static constexpr int TextMargins = 6; ///< pixels, both together, of a cell

    /** A child of the table that it draws. */
    explicit PlaylistCells(QTableView *table);

    QFont font() const { return mFont; }
    void setFont(const QFont &font) { mFont = font; }

    /** Whether the next picture of a waiting sign is on its way. */
    bool isAnimating() const;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private slots:
    void showNextPhase();

private:
    bool hasSign(const QModelIndex &index) const;

    QTableView *mTable;
    QTimer *mTimer;
    QFont mFont;
    int mPhase = 0;
    int mRowsSeenWaiting = 0; ///< rows from here on are too new to be shown as waiting
};

/** Shows the text as a tool tip, or none if it is empty. */
void showPlainToolTip(const QPoint &globalPosition, const QString &text);
