// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

/**
 * Notices that a computer is too slow for a recording: for five seconds in a row, less than half of
 * its pictures came. The position does not tell: the backend keeps it with the clock, and leaves
 * out the pictures that are late.
 *
 * It has no clock of its own. Times are in milliseconds of one that never goes back.
 */
class PaceObserver
{
public:
    /** Another recording. With a rate of 0 or less, which means that it is unknown, nothing is
     *  noticed. */
    void begin(double picturesPerSecond);
    /** A pause: what came before does not count. Seeks are noticed. */
    void interrupt();

    void notePicture() { ++mPictures; }
    /** To be asked several times a second while the recording plays. @p rate is that of the
     *  playback, @p positionMs a recording that stands is stuck, not slow. Returns true when it is
     *  noticed, once for each recording. */
    bool isTooSlow(qint64 nowMs, qint64 positionMs, double rate);

private:
    void beginSecond(qint64 nowMs, qint64 positionMs);

    double mPicturesPerSecond = 0;
    bool mIsTold = false;
    bool mIsCounting = false;
    qint64 mSinceMs = 0;
    qint64 mFromMs = 0;
    int mPictures = 0;
    int mSlowSeconds = 0; // in a row
};
