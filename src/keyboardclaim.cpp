// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "keyboardclaim.h"

#include "windowfront.h"
#include "windowhandover.h"

#include <QApplication>
#include <QResizeEvent>
#include <QWidget>
#include <QWindow>

namespace {

constexpr int LookIntervalMs = 100;
constexpr qint64 AskIntervalMs = 500;
constexpr qint64 GiveUpMs = 120000; // the manager hangs

} // namespace

void KeyboardClaim::make(QWidget *window, QWidget *picture)
{
    static QPointer<KeyboardClaim> present;
    delete present;
    if (QGuiApplication::platformName() == QLatin1String("xcb"))
        present = new KeyboardClaim(window, picture);
}

KeyboardClaim::KeyboardClaim(QWidget *window, QWidget *picture)
    : QObject(window), mWindow(window), mPicture(picture)
{
    mTimer.setInterval(LookIntervalMs);
    connect(&mTimer, &QTimer::timeout, this, &KeyboardClaim::look);
    mTimer.start();
    mAge.start();
    mSinceAsked.start();
}

void KeyboardClaim::look()
{
    // What is seen before the manager has let go of the picture may not last.
    const bool hasLeft = this->hasLeft();
    const bool canHaveIt =
        mWindow->isVisible() && !mWindow->isMinimized() && !QApplication::activeModalWidget();
    const KeyboardHolder holder =
        canHaveIt ? keyboardHolder(*mWindow->windowHandle()) : KeyboardHolder::OtherProgram;
    const bool isDecided = holder != KeyboardHolder::Nobody;
    if ((isDecided && hasLeft) || mAge.hasExpired(GiveUpMs)) {
        deleteLater();
        return;
    }
    if (!isDecided && mSinceAsked.hasExpired(AskIntervalMs)) {
        askForKeyboard(mWindow);
        mSinceAsked.restart();
    }
}

/** Whether the manager has let go of the picture, which then is where it belongs. */
bool KeyboardClaim::hasLeft()
{
    const QWindow *window = mPicture && !mPicture->isWindow() ? mPicture->windowHandle() : nullptr;
    if (!window)
        return true;
    if (!isLetGo(*window))
        return false;
    if (putBack(*window))
        return true;
    // What it showed is lost: it is drawn anew as after any change of its size.
    QCoreApplication::postEvent(mPicture, new QResizeEvent(mPicture->size(), mPicture->size()));
    return false;
}
