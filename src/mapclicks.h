// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPoint>
#include <QTimer>

#include <functional>

class QWebEngineView;

/**
 * The clicks of a user on the map, as the mouse makes them: what a page says of clicks could be a
 * script's. Drags and double clicks, which move the view, are none.
 *
 * GUI thread only.
 */
class MapClicks : public QObject
{
    Q_OBJECT

public:
    /** Belongs to the view. */
    explicit MapClicks(QWebEngineView *view);

    /**
     * Asks the page which sample of the drive lies at a place of the view, in its pixels; where the
     * drive has passed several times, that of the pass nearest in time to the sample @p played.
     * The answer comes later: a number of 0 or more, which may be no sample of any recording, since
     * the page is not to be trusted. Without one there is none.
     */
    void askForSample(const QPoint &place, int played, const std::function<void(int)> &answer);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /** As soon as it cannot become a double click any more. */
    void clicked(const QPoint &place);

private:
    QWebEngineView *mView;
    QPoint mPressed;
    bool mIsClick = false; // the press, so far
    QTimer mTimer;
};
