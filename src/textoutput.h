// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

class QIODevice;

/**
 * Text for programs, in UTF-8, on its way to a device: collected into large pieces, with numbers as
 * no language changes them. Much quicker than a text stream, since a drive is a million numbers.
 *
 * A device that refuses a piece is given no more; failed() tells. The device is not owned and must
 * live longer. Belongs to one thread.
 */
class TextOutput
{
public:
    explicit TextOutput(QIODevice *device);

    TextOutput &operator<<(const char *text);
    TextOutput &operator<<(const QByteArray &text);
    TextOutput &operator<<(qint64 number);
    TextOutput &operator<<(int number) { return *this << qint64(number); }

    /** As appendFixed(). */
    TextOutput &fixed(double number, int decimals);

    /** Hands over what is still here. Returns whether the device has taken everything. */
    bool flush();
    bool failed() const { return mHasFailed; }

private:
    void makeRoom();

    QIODevice *mDevice = nullptr;
    QByteArray mText;
    bool mHasFailed = false;
};

/** Appends a number with exactly @p decimals digits, at most 9, behind its point. One that is not
 *  finite, or has no room in 64 bits, is written as zero. */
void appendFixed(QByteArray &text, double number, int decimals);

/** Text between the tags or in an attribute of an XML document. What such a document cannot hold is
 *  left out. */
QByteArray xmlText(const QString &text);
/** A string of a JSON document, with its quotation marks. */
QByteArray jsonText(const QString &text);
/** A field of a CSV table (RFC 4180), in quotation marks where it needs them. */
QByteArray csvField(const QString &text);
