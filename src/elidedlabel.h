// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QTimer>

/**
 * A label that shows as much of its full text as fits, elided in the middle, and elides anew
 * whenever its width changes; the tool tip has the whole of what is elided. Its size hint is that
 * of the full text, so that what it shows never feeds back into the layout.
 */
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    /** Sets font and text together; text() then is what is shown. */
    void setFullText(const QString &text, const QFont &font);

    /** Shows a notice in place of the full text for @p ms milliseconds, or until a text is set. */
    void showNotice(const QString &notice, const QString &details, int ms);
    /** Shows the full text again. */
    void endNotice();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void elide();

    QString mFullText;
    QString mNotice; // empty: there is none
    QString mNoticeDetails;
    QTimer mNoticeTimer;
};

/** The text for a tool tip, which would show the name of a file that looks like markup as such. */
QString plainToolTip(const QString &text);
