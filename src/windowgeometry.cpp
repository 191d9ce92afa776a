// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windowgeometry.h"

#include "configuration.h"

#include <QEvent>
#include <QGuiApplication>
#include <QRegion>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace {

bool isOnAnyScreen(const QPoint &point)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(),
                       [&](const QScreen *screen) { return screen->geometry().contains(point); });
}

QRect availableArea(const QPoint &point)
{
    const QScreen *screen = QGuiApplication::screenAt(point);
    return (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
}

/** Whether the screens show all of it, be it across several. */
bool isAvailable(const QRect &rect)
{
    QRegion hidden(rect);
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *screen : screens)
        hidden -= screen->availableGeometry();
    return hidden.isEmpty();
}

/** Moved into the area, and shrunk where it is larger, but not below the minimum. */
QRect movedInto(const QRect &area, const QRect &rect, const QSize &minimum)
{
    const QSize size = rect.size().boundedTo(area.size()).expandedTo(minimum);
    const int lastLeft = area.x() + area.width() - size.width();
    const int lastTop = area.y() + area.height() - size.height();
    // The top left corner last, which has to be inside.
    return {QPoint(std::max(std::min(rect.x(), lastLeft), area.x()),
                   std::max(std::min(rect.y(), lastTop), area.y())),
            size};
}

} // namespace

WindowGeometry::WindowGeometry(QWidget *window) : mWindow(window)
{
    window->installEventFilter(this);
}

void WindowGeometry::restore()
{
    if (mWindow->isMaximized())
        return;
    QRect rect = Configuration::GetInstance()->getMainwindowsRect();
    if (!rect.isValid() || !isOnAnyScreen(rect.center()))
        rect = Configuration::defaultMainwindowsRect();
    mWindow->setGeometry(rect);
    mUnconfirmedRect = rect;
}

void WindowGeometry::store() const
{
    Configuration::GetInstance()->setMainwindowsRect(mWindow->geometry());
    Configuration::GetInstance()->setMainwindowsIsMaximize(mWindow->isMaximized());
}

bool WindowGeometry::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show && !event->spontaneous())
        fit();
    else if (event->type() == QEvent::ActivationChange && mWindow->isActiveWindow())
        confirm();
    return QObject::eventFilter(watched, event);
}

/** When the window opens, and its smallest size is known. */
void WindowGeometry::fit()
{
    const QRect rect = mWindow->geometry();
    // Without a display, the screen is made up.
    const bool isDisplayed = QGuiApplication::platformName() != QLatin1String("offscreen");
    if (!isDisplayed || mWindow->isMaximized() || isAvailable(rect))
        return;
    const QSize minimum = mWindow->minimumSize().expandedTo(mWindow->minimumSizeHint());
    mUnconfirmedRect = movedInto(availableArea(rect.center()), rect, minimum);
    mWindow->setGeometry(mUnconfirmedRect);
}

// Under X11 the position that Qt notes while the window manager takes the window over may be that
// inside the manager's own frame. Setting the geometry once more makes it ask again; otherwise the
// wrong one would be stored at the end.
void WindowGeometry::confirm()
{
    const bool isWrong = mUnconfirmedRect.isValid() && mWindow->geometry() != mUnconfirmedRect;
    if (isWrong && !mWindow->isMaximized())
        mWindow->setGeometry(mUnconfirmedRect);
    mUnconfirmedRect = QRect();
}
