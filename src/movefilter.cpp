// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "movefilter.h"

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace {

/** Where windows may not place themselves, the window system moves them. Returns whether it does.
 */
bool moveBySystem(QWidget *window)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland")) &&
           window->windowHandle() && window->windowHandle()->startSystemMove();
#else
    Q_UNUSED(window)
    return false;
#endif
}

} // namespace

MoveFilter::MoveFilter(QWidget *target, QWidget *watched)
    : QObject(target), mMoveWidget(target), mWatched(watched)
{
    mWatched->installEventFilter(this);
}

MoveFilter *MoveFilter::installMoveFilter(QWidget *target, QWidget *watched)
{
    target->setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint |
                           Qt::WindowMinimizeButtonHint);
    return new MoveFilter(target, watched);
}

bool MoveFilter::eventFilter(QObject *object, QEvent *event)
{
    if (object == mWatched) {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
            press(*static_cast<QMouseEvent *>(event));
            break;
        case QEvent::MouseMove:
            drag();
            break;
        case QEvent::MouseButtonRelease:
            mPressed = false;
            break;
        case QEvent::MouseButtonDblClick:
            emit doubleClicked();
            break;
        default:
            break;
        }
    }
    return QObject::eventFilter(object, event);
}

void MoveFilter::press(const QMouseEvent &event)
{
    if (event.button() != Qt::LeftButton)
        return;
    mPressPos = event.localPos().toPoint();
    mPressedFrom = event.globalPos();
    mPressed = true;
}

void MoveFilter::drag()
{
    if (!mPressed || !isMeant())
        return;
    if (moveBySystem(mMoveWidget)) {
        mPressed = false;
        return;
    }
    if (mMoveWidget->isMaximized())
        restoreUnderPointer();
    mMoveWidget->move(QCursor::pos() - mPressPos);
}

/** A maximised window must not be torn loose by a hand that only trembles. */
bool MoveFilter::isMeant() const
{
    return !mMoveWidget->isMaximized() ||
           (QCursor::pos() - mPressedFrom).manhattanLength() >= QApplication::startDragDistance();
}

/** Gives the window its normal size, and puts it where the pointer stays at the same part of it.
 *  Moving alone would leave it as large as it is. */
void MoveFilter::restoreUnderPointer()
{
    const QSize size = mMoveWidget->normalGeometry().size();
    mPressPos = {mPressPos.x() * size.width() / mMoveWidget->width(),
                 mPressPos.y() * size.height() / mMoveWidget->height()};
    mMoveWidget->showNormal();
    mMoveWidget->setGeometry(QRect(QCursor::pos() - mPressPos, size));
}
