// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

class PlayAreaManager;
struct RowData;

/**
 * The recording that is to be started next. It waits until the events at hand are done, so that of
 * many starts in a row the last one is loaded only, and until the media backend has settled, which
 * is safe to disturb only then; then it is due. A later request takes the place of a waiting one.
 * Whoever begins a recording may process events: the next one waits until that is done, else each
 * of many quick starts would begin within the one before, as deep as the stack is.
 *
 * The play area is not owned and must live longer, as must the rows. GUI thread only.
 */
class PendingStart : public QObject
{
    Q_OBJECT

public:
    explicit PendingStart(PlayAreaManager *area, QObject *parent = nullptr);

    /** The play area must have been stopped. */
    void request(const RowData *row);
    /** Nothing is to be started any more. */
    void drop();
    /** What waits; null for nothing. */
    const RowData *row() const { return mRow; }

signals:
    /** The play area is empty, and this row can be loaded. */
    void due(const RowData *row);

private:
    void onSettled();
    void advance();

    PlayAreaManager *mArea = nullptr;
    const RowData *mRow = nullptr;
    bool mIsBeginning = false;
    QTimer mTurn;     // fires when the events at hand are done
    QTimer mPatience; // with a backend that does not settle
};
