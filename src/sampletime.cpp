// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sampletime.h"

#include <QDate>
#include <QRegularExpression>

namespace {

constexpr qint64 UnixEpochJulianDay = 2440588;
constexpr qint64 DayS = 86400;
constexpr int MaxOffsetS = 14 * 3600;

/** Digits only; -1 for anything else. */
int number(const char *text, int length)
{
    int value = 0;
    for (int i = 0; i < length; ++i) {
        if (text[i] < '0' || text[i] > '9')
            return -1;
        value = value * 10 + (text[i] - '0');
    }
    return value;
}

void putNumber(char *text, int length, int value)
{
    for (int i = length; i-- > 0; value /= 10)
        text[i] = char('0' + value % 10);
}

} // namespace

std::optional<qint64> SampleTime::localSeconds(const GpsData &sample)
{
    const char *text = sample.time;
    const int hour = number(text + 8, 2);
    const int minute = number(text + 10, 2);
    const int second = number(text + 12, 2);
    const QDate date(number(text, 4), number(text + 4, 2), number(text + 6, 2));
    const bool isTime =
        hour >= 0 && hour < 24 && minute >= 0 && minute < 60 && second >= 0 && second < 60;
    if (!date.isValid() || date.year() < 1 || !isTime)
        return std::nullopt;
    return (date.toJulianDay() - UnixEpochJulianDay) * DayS + hour * 3600 + minute * 60 + second;
}

QByteArray SampleTime::isoText(qint64 seconds)
{
    const qint64 day = (seconds >= 0 ? seconds : seconds - DayS + 1) / DayS;
    const int ofDay = int(seconds - day * DayS);
    int year = 0;
    int month = 0;
    int dayOfMonth = 0;
    QDate::fromJulianDay(day + UnixEpochJulianDay).getDate(&year, &month, &dayOfMonth);
    char text[] = "0000-00-00T00:00:00";
    putNumber(text, 4, year);
    putNumber(text + 5, 2, month);
    putNumber(text + 8, 2, dayOfMonth);
    putNumber(text + 11, 2, ofDay / 3600);
    putNumber(text + 14, 2, ofDay / 60 % 60);
    putNumber(text + 17, 2, ofDay % 60);
    return QByteArray(text);
}

QByteArray SampleTime::utcText(qint64 localSeconds, int utcOffsetS)
{
    return isoText(localSeconds - utcOffsetS) + 'Z';
}

std::optional<int> SampleTime::utcOffsetFrom(const QString &text)
{
    if (text == QLatin1String("Z"))
        return 0;
    static const QRegularExpression pattern(QStringLiteral("^([+-])([0-9]{2}):([0-5][0-9])$"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const int seconds = match.captured(2).toInt() * 3600 + match.captured(3).toInt() * 60;
    if (seconds > MaxOffsetS)
        return std::nullopt;
    return match.captured(1) == QLatin1String("-") ? -seconds : seconds;
}
