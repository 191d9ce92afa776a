// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "playlistcells.h"

#include "elidedlabel.h"
#include "playlistmodel.h"
#include "recordingsign.h"

#include <QHelpEvent>
#include <QPainter>
#include <QTableView>
#include <QTimer>
#include <QToolTip>

namespace {

constexpr int PhaseMs = 300;

/** Models without conditions have recordings of which nothing is to be said. */
RecordingSign signOf(const QModelIndex &index)
{
    RecordingCondition silent;
    silent.kind = RecordingCondition::Whole;
    const QVariant condition = index.column() == PlaylistModel::FileName
                                   ? index.data(PlaylistModel::ConditionRole)
                                   : QVariant();
    return RecordingSign(condition.isValid() ? condition.value<RecordingCondition>() : silent);
}

} // namespace

PlaylistCells::PlaylistCells(QTableView *table)
    : QStyledItemDelegate(table), mTable(table), mTimer(new QTimer(this))
{
    mTimer->setSingleShot(true);
    mTimer->setInterval(PhaseMs);
    connect(mTimer, &QTimer::timeout, this, &PlaylistCells::showNextPhase);
}

bool PlaylistCells::isAnimating() const
{
    return mTimer->isActive();
}

void PlaylistCells::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const RecordingSign sign = signOf(index);
    if (sign.isWaiting() && !mTimer->isActive())
        mTimer->start();
    if (!hasSign(index))
        return;
    QStyleOptionViewItem filled = option;
    initStyleOption(&filled, index);
    const QRect place =
        mTable->style()->subElementRect(QStyle::SE_ItemViewItemDecoration, &filled, option.widget);
    sign.draw(*painter, place, mPhase);
}

bool PlaylistCells::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                              const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QStyleOptionViewItem filled = option;
    initStyleOption(&filled, index);
    const QRect place =
        mTable->style()->subElementRect(QStyle::SE_ItemViewItemText, &filled, option.widget);
    QStringList lines;
    if (filled.fontMetrics.horizontalAdvance(filled.text) > place.width() - TextMargins)
        lines.append(filled.text);
    if (hasSign(index))
        lines.append(signOf(index).text());
    showPlainToolTip(event->globalPos(), lines.join(QLatin1Char('\n')));
    return true;
}

/** The style leaves room for the sign as for an icon, and the name what is left. */
void PlaylistCells::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->font = mFont;
    option->fontMetrics = QFontMetrics(mFont);
    if (!hasSign(index))
        return;
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->decorationSize = QSize(RecordingSign::Size, RecordingSign::Size);
    option->decorationPosition = QStyleOptionViewItem::Left;
    option->decorationAlignment = Qt::AlignCenter;
}

/** Rows that are looked at at once do not flash up: only those of the last phase wait visibly. */
bool PlaylistCells::hasSign(const QModelIndex &index) const
{
    const RecordingSign sign = signOf(index);
    return sign.isVisible() && (!sign.isWaiting() || index.row() < mRowsSeenWaiting);
}

void PlaylistCells::showNextPhase()
{
    ++mPhase;
    const QAbstractItemModel *rows = mTable->model();
    mRowsSeenWaiting = rows->rowCount();
    const int first = mTable->rowAt(0);
    const int last = mTable->rowAt(mTable->viewport()->height() - 1);
    for (int row = std::max(first, 0); row < mRowsSeenWaiting && (row <= last || last < 0); ++row) {
        const QModelIndex cell = rows->index(row, PlaylistModel::FileName);
        if (signOf(cell).isWaiting())
            mTable->update(cell);
    }
}

void showPlainToolTip(const QPoint &globalPosition, const QString &text)
{
    QToolTip::showText(globalPosition, plainToolTip(text));
}
