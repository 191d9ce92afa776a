// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QStringList>
#include <QUrl>

class QWebEnginePage;

/**
 * The calls of a local page's JavaScript functions, none of which has a result.
 *
 * Calls made before the page has loaded are held back and run in order when it has; a new page
 * drops those held for the old one. The calls of a page that is gone are lost.
 *
 * GUI thread only.
 */
class PageCalls : public QObject
{
    Q_OBJECT

public:
    /** @p page must live as long as calls are made. */
    explicit PageCalls(QWebEnginePage *page, QObject *parent = nullptr);

    void load(const QUrl &url);
    /** Tells one page from the next, a page that was loaded again included. */
    int pageCount() const { return mPageCount; }

    void run(const QString &call);
    /** Processes events until the page has caught up with the calls made before the last time, so
     *  that a call made meanwhile does not wait long behind them. A page that is not loaded, or is
     *  silent for seconds, is not waited for. */
    void letPageCatchUp();

signals:
    /** The page's process died, or a script has left the page, which has to be loaded again. Not
     *  told of a page that is lost over and over. */
    void pageLost();
    /** The page has come to some letPageCatchUp(), or never will. */
    void caughtUp();

private:
    void onLoadFinished();
    void onUrlChanged(const QUrl &url);
    void onLost();
    void askPage(int page);
    void onPageState(int page, const QString &state);
    void runHeldCalls();
    void onAnswer(int question);
    void waitForAnswer(int question);
    void forgetQuestions();

    QWebEnginePage *mPage;
    QUrl mUrl;
    int mPageCount = 0;
    bool mIsLoaded = false;      // or will never be: then calls fail in silence
    bool mIsOverlapping = false; // the page was asked for before the one before it had loaded
    bool mIsGivenUp = false;
    QStringList mHeldCalls;
    int mQuestionCount = 0;
    int mAnswerCount = 0;
    bool mIsSilent = false;
    QElapsedTimer mSinceFirstLoss;
    int mLossCount = 0;
    int mLostPage = 0; // by its count; told of once
};
