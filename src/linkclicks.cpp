// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "linkclicks.h"

#include <QChildEvent>
#include <QDesktopServices>
#include <QMouseEvent>
#include <QWebEnginePage>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineView>

namespace {

constexpr int ClickMs = 3000; // for a busy page to follow the click

// The first to hear of a press: behind any script of the page, the link could be another one.
// Elements of the page may have names that hide the functions of other elements.
const char NotePressedLink[] =
    "window.addEventListener('pointerdown', (event) => {"
    "    if (!event.isTrusted) return;"
    "    const hit = event.target instanceof Element ? event.target : document.documentElement;"
    "    const link = Element.prototype.closest.call(hit, 'a[href]');"
    "    window.pressedLink = link instanceof HTMLAnchorElement ? link.href : '';"
    "}, true);";
const char TakePressedLink[] = "(() => {"
                               "    const link = window.pressedLink;"
                               "    window.pressedLink = '';"
                               "    return link;"
                               "})()";

bool isWeb(const QUrl &url)
{
    return url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http");
}

} // namespace

LinkClicks::LinkClicks(QWebEngineView *view) : QObject(view), mView(view)
{
    QWebEngineScript script;
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::ApplicationWorld);
    script.setSourceCode(QString::fromLatin1(NotePressedLink));
    mView->page()->scripts().insert(script);
    mView->installEventFilter(this);
    for (QWidget *child : mView->findChildren<QWidget *>())
        child->installEventFilter(this);
}

/** The mouse goes to a child of the view, which every new process of the page brings along. */
bool LinkClicks::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ChildPolished) {
        static_cast<QChildEvent *>(event)->child()->installEventFilter(this);
    } else if (watched != mView && event->type() == QEvent::MouseButtonRelease) {
        const Qt::MouseButton button = static_cast<QMouseEvent *>(event)->button();
        if (button == Qt::LeftButton || button == Qt::MiddleButton)
            mSinceClick.start();
    }
    return QObject::eventFilter(watched, event);
}

void LinkClicks::follow(const QUrl &url)
{
    askForLink([url](const QUrl &link) { return link == url; });
}

// Where it leads is not known yet, but what was clicked is.
void LinkClicks::followInWindow()
{
    askForLink([](const QUrl &) { return true; });
}

/** By now the page has heard of the click, if there was one. One click opens one page. */
void LinkClicks::askForLink(const std::function<bool(const QUrl &)> &isWanted)
{
    if (!mSinceClick.isValid() || mSinceClick.elapsed() > ClickMs)
        return;
    mView->page()->runJavaScript(QString::fromLatin1(TakePressedLink),
                                 QWebEngineScript::ApplicationWorld,
                                 [isWanted](const QVariant &answer) {
                                     const QUrl link(answer.toString());
                                     if (isWeb(link) && isWanted(link))
                                         QDesktopServices::openUrl(link);
                                 });
}
