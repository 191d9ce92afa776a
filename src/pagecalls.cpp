// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "pagecalls.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <QWebEnginePage>

#include <utility>

namespace {

constexpr int PageStateMs = 20;
constexpr int AnswerMs = 3000;
// A page that is lost more often than this within the time is given up.
constexpr int MostLosses = 3;
constexpr int LossesMs = 60 * 1000;

} // namespace

PageCalls::PageCalls(QWebEnginePage *page, QObject *parent) : QObject(parent), mPage(page)
{
    connect(mPage, &QWebEnginePage::loadFinished, this, &PageCalls::onLoadFinished);
    connect(mPage, &QWebEnginePage::renderProcessTerminated, this, &PageCalls::onLost);
    connect(mPage, &QWebEnginePage::urlChanged, this, &PageCalls::onUrlChanged);
}

void PageCalls::load(const QUrl &url)
{
    mIsOverlapping = mPageCount > 0 && !mIsLoaded;
    mIsLoaded = false;
    mIsGivenUp = false;
    ++mPageCount;
    mUrl = url;
    mHeldCalls.clear();
    forgetQuestions();
    mPage->load(url);
}

void PageCalls::run(const QString &call)
{
    if (mIsLoaded)
        mPage->runJavaScript(call);
    else if (!mIsGivenUp)
        mHeldCalls.append(call);
}

// A question is answered after all calls made before it. The last but one is waited for: meanwhile
// the page is busy with what came between the two.
void PageCalls::letPageCatchUp()
{
    if (!mIsLoaded || mIsSilent) {
        QCoreApplication::processEvents();
        return;
    }
    const int question = ++mQuestionCount;
    mPage->runJavaScript(QStringLiteral("0"),
                         [this, question](const QVariant &) { onAnswer(question); });
    waitForAnswer(question - 1);
}

// Of loads that overlap the web engine reports one end only, and that may be before the last page
// has its functions.
void PageCalls::onLoadFinished()
{
    if (mIsOverlapping)
        askPage(mPageCount);
    else if (!mIsGivenUp)
        runHeldCalls();
}

// An empty page asks nobody whether it may be shown.
void PageCalls::onUrlChanged(const QUrl &url)
{
    if (mIsLoaded && (url.scheme() != mUrl.scheme() || url.path() != mUrl.path()))
        onLost();
}

void PageCalls::onLost()
{
    if (mLostPage == mPageCount)
        return;
    mLostPage = mPageCount;
    mIsLoaded = false;
    mHeldCalls.clear();
    forgetQuestions();
    if (!mSinceFirstLoss.isValid() || mSinceFirstLoss.elapsed() > LossesMs) {
        mSinceFirstLoss.start();
        mLossCount = 0;
    }
    mIsGivenUp = ++mLossCount > MostLosses;
    if (!mIsGivenUp)
        QTimer::singleShot(0, this, &PageCalls::pageLost); // the web engine is still at it
}

/** Asks again and again: an answer is lost with the page that was asked. */
void PageCalls::askPage(int page)
{
    if (mIsLoaded || mIsGivenUp || page != mPageCount)
        return;
    mPage->runJavaScript(
        QStringLiteral("document.readyState"),
        [this, page](const QVariant &state) { onPageState(page, state.toString()); });
    QTimer::singleShot(PageStateMs, this, [this, page] { askPage(page); });
}

void PageCalls::onPageState(int page, const QString &state)
{
    if (!mIsLoaded && page == mPageCount && state == QLatin1String("complete") &&
        mPage->url() == mUrl)
        runHeldCalls();
}

void PageCalls::runHeldCalls()
{
    mIsLoaded = true;
    const QStringList calls = std::exchange(mHeldCalls, {});
    for (const QString &call : calls)
        mPage->runJavaScript(call);
}

void PageCalls::onAnswer(int question)
{
    mAnswerCount = qMax(mAnswerCount, question);
    mIsSilent = false;
    emit caughtUp();
}

void PageCalls::waitForAnswer(int question)
{
    QEventLoop loop;
    QTimer::singleShot(AnswerMs, &loop, &QEventLoop::quit);
    connect(this, &PageCalls::caughtUp, &loop, [this, &loop, question] {
        if (mAnswerCount >= question)
            loop.quit();
    });
    if (mAnswerCount >= question)
        loop.processEvents();
    else
        loop.exec();
    mIsSilent = mAnswerCount < question;
}

/** A page that is gone answers nothing. */
void PageCalls::forgetQuestions()
{
    mAnswerCount = mQuestionCount;
    mIsSilent = false;
    emit caughtUp();
}
