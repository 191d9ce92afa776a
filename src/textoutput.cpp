// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "textoutput.h"

#include <QIODevice>
#include <QJsonArray>
#include <QJsonDocument>

#include <charconv>
#include <cmath>

namespace {

constexpr int PieceSize = 64 * 1024;
constexpr qint64 PowersOfTen[] = {1,      10,      100,      1000,      10000,
                                  100000, 1000000, 10000000, 100000000, 1000000000};
constexpr double Largest = 9.0e18; // of what 64 bits hold

void appendNumber(QByteArray &text, qint64 number)
{
    char digits[24];
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, number);
    text.append(digits, int(end.ptr - digits));
}

} // namespace

TextOutput::TextOutput(QIODevice *device) : mDevice(device)
{
    mText.reserve(2 * PieceSize);
}

TextOutput &TextOutput::operator<<(const char *text)
{
    mText.append(text);
    makeRoom();
    return *this;
}

TextOutput &TextOutput::operator<<(const QByteArray &text)
{
    mText.append(text);
    makeRoom();
    return *this;
}

TextOutput &TextOutput::operator<<(qint64 number)
{
    appendNumber(mText, number);
    return *this;
}

TextOutput &TextOutput::fixed(double number, int decimals)
{
    appendFixed(mText, number, decimals);
    return *this;
}

bool TextOutput::flush()
{
    mHasFailed = mHasFailed || mDevice->write(mText) != mText.size();
    mText.resize(0); // which keeps the room, unlike clear()
    return !mHasFailed;
}

void TextOutput::makeRoom()
{
    if (mText.size() >= PieceSize)
        flush();
}

void appendFixed(QByteArray &text, double number, int decimals)
{
    const double scaled = number * double(PowersOfTen[decimals]);
    const qint64 digits =
        std::isfinite(scaled) && std::fabs(scaled) < Largest ? std::llround(scaled) : 0;
    if (digits < 0)
        text.append('-');
    appendNumber(text, std::abs(digits) / PowersOfTen[decimals]);
    if (decimals > 0)
        text.append('.');
    for (int place = decimals - 1; place >= 0; --place)
        text.append(char('0' + std::abs(digits) / PowersOfTen[place] % 10));
}

QByteArray xmlText(const QString &text)
{
    QString allowed;
    for (const QChar c : text) {
        const bool isControl = c < QLatin1Char(' ') && c != QLatin1Char('\t');
        if (!isControl && c.unicode() < 0xFFFE)
            allowed.append(c);
    }
    return allowed.toHtmlEscaped().toUtf8();
}

QByteArray jsonText(const QString &text)
{
    const QByteArray list =
        QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact); // ["text"]
    return list.mid(1, list.size() - 2);
}

QByteArray csvField(const QString &text)
{
    QString field = text;
    if (!field.contains(QLatin1Char('"')) && !field.contains(QLatin1Char(',')) &&
        !field.contains(QLatin1Char('\n')) && !field.contains(QLatin1Char('\r')))
        return field.toUtf8();
    return '"' + field.replace(QLatin1Char('"'), QLatin1String("\"\"")).toUtf8() + '"';
}
