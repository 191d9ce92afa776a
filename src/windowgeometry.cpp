// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windowgeometry.h"

#include "configuration.h"

#include <QGuiApplication>
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

} // namespace

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

void WindowGeometry::store() const
{
    Configuration::GetInstance()->setMainwindowsRect(mWindow->geometry());
    Configuration::GetInstance()->setMainwindowsIsMaximize(mWindow->isMaximized());
}
