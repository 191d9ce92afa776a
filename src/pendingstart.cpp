// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "pendingstart.h"

#include "playareamanager.h"

#include <utility>

namespace {

// A backend that has not settled by then never does, and must not hold up the list.
constexpr int PatienceMs = 3000;

} // namespace

PendingStart::PendingStart(PlayAreaManager *area, QObject *parent) : QObject(parent), mArea(area)
{
    mTurn.setSingleShot(true);
    mPatience.setSingleShot(true);
    connect(&mTurn, &QTimer::timeout, this, &PendingStart::advance);
    connect(&mPatience, &QTimer::timeout, this, &PendingStart::advance);
    connect(mArea, &PlayAreaManager::settled, this, &PendingStart::onSettled);
}

void PendingStart::request(const RowData *row)
{
    const bool isWaiting = std::exchange(mRow, row);
    if (isWaiting)
        return;
    mTurn.start(0);
    mPatience.start(PatienceMs);
}

void PendingStart::drop()
{
    mRow = nullptr;
    mTurn.stop();
    mPatience.stop();
}

// Not at once: this may be the backend's own handling of what has happened.
void PendingStart::onSettled()
{
    if (mRow)
        mTurn.start(0);
}

void PendingStart::advance()
{
    if (!mRow || mIsBeginning || (!mArea->isSettled() && mPatience.isActive()))
        return;
    if (mArea->unloadOne()) {
        // What the backend has still to tell of the recording before must not be taken for news of
        // the next one.
        mTurn.start(0);
        return;
    }
    const RowData *row = mRow;
    drop();
    mIsBeginning = true;
    emit due(row);
    mIsBeginning = false;
    onSettled(); // for what was requested meanwhile
}
