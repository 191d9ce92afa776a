// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "pointerhider.h"

#include <QCursor>
#include <QWidget>

namespace {

constexpr int LookIntervalMs = 50;
constexpr qint64 RestMs = 2000;

} // namespace

PointerHider::PointerHider(QWidget *picture) : QObject(picture), mPicture(picture)
{
    mTimer.setInterval(LookIntervalMs);
    connect(&mTimer, &QTimer::timeout, this, &PointerHider::look);
}

void PointerHider::setActive(bool isActive)
{
    mPicture->unsetCursor();
    mPlace = QCursor::pos();
    mSinceMove.start();
    if (isActive)
        mTimer.start();
    else
        mTimer.stop();
}

void PointerHider::look()
{
    const QPoint place = QCursor::pos();
    if (place != mPlace) {
        mPlace = place;
        mSinceMove.restart();
        mPicture->unsetCursor();
    } else if (mSinceMove.hasExpired(RestMs) && mPicture->cursor().shape() != Qt::BlankCursor) {
        mPicture->setCursor(Qt::BlankCursor);
    }
}
