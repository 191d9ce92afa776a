// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

/**
 * A label that shows as much of its full text as fits, elided in the middle, and elides anew
 * whenever its width changes. Its size hint is that of the full text, so that what it shows never
 * feeds back into the layout.
 */
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    /** Sets font and text together; text() then is what is shown. */
    void setFullText(const QString &text, const QFont &font);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void elide();

    QString mFullText;
};
