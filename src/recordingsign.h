// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "recordingcondition.h"

#include <QCoreApplication>
#include <QString>

class QPainter;
class QRectF;

/**
 * The small sign that a row of the playlist bears for what is wrong with its recording, and the
 * words for it. Told apart by shape as well as by colour: a triangle for damage, a cross for what
 * is gone, a bar for what is no video, an empty frame, a pin struck out for no telemetry, and dots
 * while nobody knows yet.
 */
class RecordingSign
{
    Q_DECLARE_TR_FUNCTIONS(RecordingSign)

public:
    static constexpr int Size = 16; ///< pixels of a screen without scaling, either way

    explicit RecordingSign(const RecordingCondition &condition) : mCondition(condition) {}

    bool isWaiting() const { return mCondition.kind == RecordingCondition::Unknown; }
    /** Whether there is anything to show; the sign of one that waits is. */
    bool isVisible() const;

    /** Draws it with lines, crisp at every scale, into the middle of @p place. One of three dots
     *  is brighter than the others: that of @p phase, taken modulo three. */
    void draw(QPainter &painter, const QRectF &place, int phase) const;

    /** What it means, in the user's language, in one or two lines; empty if it is not visible. */
    QString text() const;

private:
    bool lacksTelemetry() const;
    QString kindText() const;
    QString cutText() const;

    RecordingCondition mCondition;
};
