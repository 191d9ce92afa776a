// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QUrl>

#include <functional>

class QWebEngineView;

/**
 * Opens the links of a web view in the system's browser, those that a user clicks.
 *
 * What a script does looks the same to the page as what a user does. So a link is opened only if
 * the mouse was clicked on the view, the link lay under it when the button went down, and the page
 * then wants to go there. Where the link leads is noted in a world of its own, which the page's
 * scripts cannot reach.
 *
 * GUI thread only.
 */
class LinkClicks : public QObject
{
    Q_OBJECT

public:
    /** Belongs to the view, which has its page by now. */
    explicit LinkClicks(QWebEngineView *view);

    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    /** The page wants to go to another one. */
    void follow(const QUrl &url);
    /** The page wants a window, for a page that is not known yet. */
    void followInWindow();

private:
    void askForLink(const std::function<bool(const QUrl &)> &isWanted);

    QWebEngineView *mView;
    QElapsedTimer mSinceClick;
};
