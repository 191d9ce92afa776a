// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "elidedlabel.h"

#include <QFontMetrics>

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText); // file names may look like markup
}

void ElidedLabel::setFullText(const QString &text, const QFont &font)
{
    setFont(font);
    mFullText = text;
    elide();
    updateGeometry();
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
    setText(fontMetrics().elidedText(mFullText, Qt::ElideMiddle, width()));
}
