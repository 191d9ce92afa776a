// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QRasterWindow>
#include <QString>
#include <QTimer>

/** The window that PictureNotice lays over a player. It only paints. */
class PictureNoticeWindow : public QRasterWindow
{
    Q_OBJECT

public:
    struct Content
    {
        QString heading; ///< one line, or empty
        QString text;    ///< wraps
        bool isProgress; ///< with a moving bar below
    };

    /** A child of the player's window, which deletes it. Not shown yet. */
    explicit PictureNoticeWindow(QWindow *player);

    /** Takes over what to show, in the largest letters with which it fits into @p room, in device
     *  independent pixels, and returns the size of that: never more than the room. */
    QSize fit(const Content &content, const QFont &font, const QSize &room);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QSize sizeWith(const QFont &font, int width) const;
    void paintBar(QPainter &painter);

    Content mContent{};
    QFont mFont;
    QTimer mMotion;
    int mStep = 0;
};
