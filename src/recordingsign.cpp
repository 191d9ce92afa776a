// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "recordingsign.h"

#include "playlistmodel.h"

#include <QPainter>
#include <QPainterPath>
#include <QStringList>

namespace {

// Drawn on a field of 16 x 16. All stand out from plain, alternate and selected rows.
constexpr qreal Field = 16.0;
constexpr qreal LineWidth = 1.4;
const QColor DamageColour(226, 176, 92);
const QColor NoHeaderColour(226, 132, 104);
const QColor ProblemColour(176, 180, 192);
const QColor QuietColour(255, 255, 255, 96);
const QColor FaintColour(255, 255, 255, 48);

void setPen(QPainter &painter, const QColor &colour)
{
    painter.setPen(QPen(colour, LineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void drawTriangle(QPainter &painter, const QColor &colour)
{
    setPen(painter, colour);
    painter.drawPolygon(QPolygonF({{8.0, 2.2}, {14.2, 13.4}, {1.8, 13.4}}));
    painter.drawLine(QPointF(8.0, 6.4), QPointF(8.0, 9.2));
    painter.drawPoint(QPointF(8.0, 11.4));
}

void drawFrame(QPainter &painter)
{
    setPen(painter, ProblemColour);
    painter.drawRoundedRect(QRectF(3.5, 2.5, 9.0, 11.0), 1.5, 1.5);
}

void drawCircle(QPainter &painter, bool isCross)
{
    setPen(painter, ProblemColour);
    painter.drawEllipse(QPointF(8.0, 8.0), 5.8, 5.8);
    if (isCross) {
        painter.drawLine(QPointF(5.8, 5.8), QPointF(10.2, 10.2));
        painter.drawLine(QPointF(10.2, 5.8), QPointF(5.8, 10.2));
    } else {
        painter.drawLine(QPointF(4.9, 8.0), QPointF(11.1, 8.0));
    }
}

void drawStruckPin(QPainter &painter)
{
    setPen(painter, QuietColour);
    QPainterPath pin(QPointF(8.0, 14.0));
    pin.cubicTo(4.6, 9.8, 4.0, 8.4, 4.0, 6.6);
    pin.arcTo(QRectF(4.0, 2.6, 8.0, 8.0), 180.0, -180.0);
    pin.cubicTo(12.0, 8.4, 11.4, 9.8, 8.0, 14.0);
    painter.drawPath(pin);
    painter.drawLine(QPointF(2.6, 3.0), QPointF(13.4, 13.0));
}

void drawDots(QPainter &painter, int phase)
{
    painter.setPen(Qt::NoPen);
    for (int dot = 0; dot < 3; ++dot) {
        painter.setBrush(dot == phase % 3 ? QuietColour : FaintColour);
        painter.drawEllipse(QPointF(3.5 + 4.5 * dot, 8.0), 1.4, 1.4);
    }
}

} // namespace

bool RecordingSign::isVisible() const
{
    return mCondition.kind != RecordingCondition::Whole || lacksTelemetry();
}

/** Of what has no pictures, nobody expects it. */
bool RecordingSign::lacksTelemetry() const
{
    return mCondition.telemetry == RecordingCondition::NoTelemetry &&
           (mCondition.kind == RecordingCondition::Whole ||
            mCondition.kind == RecordingCondition::CutOff);
}

void RecordingSign::draw(QPainter &painter, const QRectF &place, int phase) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.translate(place.center() - QPointF(Size, Size) / 2.0);
    painter.scale(Size / Field, Size / Field);
    switch (mCondition.kind) {
    case RecordingCondition::Unknown:
        drawDots(painter, phase);
        break;
    case RecordingCondition::CutOff:
        drawTriangle(painter, DamageColour);
        break;
    case RecordingCondition::NoHeader:
        drawTriangle(painter, NoHeaderColour);
        break;
    case RecordingCondition::Empty:
        drawFrame(painter);
        break;
    case RecordingCondition::Gone:
        drawCircle(painter, true);
        break;
    case RecordingCondition::NotVideo:
        drawCircle(painter, false);
        break;
    case RecordingCondition::Whole:
        if (lacksTelemetry())
            drawStruckPin(painter);
        break;
    }
    painter.restore();
}

QString RecordingSign::text() const
{
    QStringList lines;
    if (mCondition.kind != RecordingCondition::Whole)
        lines.append(kindText());
    if (lacksTelemetry())
        lines.append(tr("No telemetry in this recording"));
    return lines.join(QLatin1Char('\n'));
}

QString RecordingSign::kindText() const
{
    switch (mCondition.kind) {
    case RecordingCondition::Unknown:
        return tr("Being examined");
    case RecordingCondition::CutOff:
        return cutText();
    case RecordingCondition::NoHeader:
        return tr("Damaged: the header is missing, without which it cannot be played");
    case RecordingCondition::Empty:
        return tr("Empty: the file has no content");
    case RecordingCondition::Gone:
        return tr("The file is gone or cannot be read");
    case RecordingCondition::NotVideo:
        return tr("Not an MP4, MOV or AVI video");
    case RecordingCondition::Whole:
        break;
    }
    return QString();
}

QString RecordingSign::cutText() const
{
    const QString missing = PlaylistModel::tohumanReadableSize(mCondition.missingBytes, 0);
    const QString whole = PlaylistModel::tohumanReadableSize(mCondition.wholeBytes, 0);
    if (mCondition.missingBytes <= 0)
        return tr("Damaged: the recording is cut off");
    if (mCondition.wholeBytes <= 0)
        return tr("Damaged: the recording is cut off, at least %1 missing").arg(missing);
    return tr("Damaged: the recording is cut off, at least %1 of %2 missing").arg(missing, whole);
}
