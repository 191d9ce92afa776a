// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "paceobserver.h"

namespace {

constexpr qint64 SecondMs = 1000;
constexpr int SlowSecondsToTell = 5;
constexpr double LeastShare = 0.5;
constexpr double SeekMs = 500; // the position is no more ahead of the clock by itself

} // namespace

void PaceObserver::begin(double picturesPerSecond)
{
    mPicturesPerSecond = picturesPerSecond;
    mIsTold = false;
    interrupt();
}

void PaceObserver::interrupt()
{
    mIsCounting = false;
    mSlowSeconds = 0;
}

bool PaceObserver::isTooSlow(qint64 nowMs, qint64 positionMs, double rate)
{
    if (mIsTold || mPicturesPerSecond <= 0)
        return false;
    if (!mIsCounting) {
        beginSecond(nowMs, positionMs);
        return false;
    }
    const qint64 elapsedMs = nowMs - mSinceMs;
    if (elapsedMs < SecondMs)
        return false;
    // Played quickly, a recording may leave out what would come faster than the camera took it.
    const double perSecond = mPicturesPerSecond * qMin(rate, 1.0);
    const double aheadMs = double(positionMs - mFromMs) - double(elapsedMs) * rate;
    const bool isSought = positionMs < mFromMs || aheadMs > SeekMs;
    const bool isSlow = mPictures < LeastShare * perSecond * double(elapsedMs) / SecondMs;
    mSlowSeconds = isSlow && !isSought && positionMs != mFromMs ? mSlowSeconds + 1 : 0;
    beginSecond(nowMs, positionMs);
    mIsTold = mSlowSeconds >= SlowSecondsToTell;
    return mIsTold;
}

void PaceObserver::beginSecond(qint64 nowMs, qint64 positionMs)
{
    mIsCounting = true;
    mSinceMs = nowMs;
    mFromMs = positionMs;
    mPictures = 0;
}
