// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "elidedlabel.h"

#include <QFontMetrics>
#include <QTextDocument>

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText); // file names may look like markup
    mNoticeTimer.setSingleShot(true);
    connect(&mNoticeTimer, &QTimer::timeout, this, &ElidedLabel::endNotice);
}

void ElidedLabel::setFullText(const QString &text, const QFont &font)
{
    setFont(font);
    mFullText = text;
    endNotice();
    updateGeometry();
}

void ElidedLabel::showNotice(const QString &notice, const QString &details, int ms)
{
    mNotice = notice;
    mNoticeDetails = details;
    mNoticeTimer.start(ms);
    elide();
}

QSize ElidedLabel::sizeHint() const
{
    return QSize(fontMetrics().horizontalAdvance(mFullText), fontMetrics().height());
}

QSize ElidedLabel::minimumSizeHint() const
{
    return QSize(0, fontMetrics().height());
}

void ElidedLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    elide();
}

void ElidedLabel::elide()
{
    const QString &whole = mNotice.isEmpty() ? mFullText : mNotice;
    const QString &details = mNotice.isEmpty() ? mFullText : mNoticeDetails;
    setText(fontMetrics().elidedText(whole, Qt::ElideMiddle, width()));
    const bool isWhole = text() == details;
    setToolTip(isWhole ? QString() : plainToolTip(details));
}

void ElidedLabel::endNotice()
{
    mNoticeTimer.stop();
    mNotice.clear();
    elide();
}

QString plainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}
