// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlaywindow.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QEvent>
#include <QRegion>
#include <QScreen>
#include <QWindow>

namespace {

// Where less of a window is on the screen, some window managers move it.
constexpr int SmallestStripPx = 32;
// Compositing managers take up to a second to show a window in a new size.
constexpr int PaintIntervalMs = 200;
constexpr int PaintsAfterCovering = 8;

} // namespace

OverlayWindow::OverlayWindow(QWidget *overlay, QWidget *place, QObject *parent)
    : QObject(parent), mOverlay(overlay), mPlace(place)
{
    mOverlay->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    mOverlay->setAttribute(Qt::WA_MacAlwaysShowToolWindow);
    mOverlay->setAttribute(Qt::WA_ShowWithoutActivating);
    mPaintTimer.setSingleShot(true);
    mPaintTimer.setInterval(PaintIntervalMs);
    connect(&mPaintTimer, &QTimer::timeout, this, &OverlayWindow::paintAgain);
}

void OverlayWindow::cover()
{
    const QRect visible = visiblePlace();
    if (visible.isEmpty()) {
        hide();
        return;
    }
    mOverlay->setGeometry(visible);
    show();
    mPaintsLeft = PaintsAfterCovering;
    mPaintTimer.start();
}

/** Only behind the window below: a window manager that hears of the overlay first puts it below. */
void OverlayWindow::show()
{
    if (!mPlace->isVisible() || visiblePlace().isEmpty())
        return;
    if (!mPlace->window()->windowHandle()->isVisible()) {
        QTimer::singleShot(0, this, &OverlayWindow::show);
        return;
    }
    if (!mOverlay->windowHandle())
        makeWindow();
    // Window managers minimise the overlay together with the window below. Shown as a minimised
    // one, it would minimise both again.
    mOverlay->setWindowState(mOverlay->windowState() & ~Qt::WindowMinimized);
    mOverlay->show();
}

void OverlayWindow::hide()
{
    mOverlay->hide();
}

void OverlayWindow::park()
{
    mOverlay->setGeometry(0, QApplication::desktop()->geometry().height(), 1, 1);
}

/** A click makes some window managers raise the overlay alone, out of what covers the rest. */
bool OverlayWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        mPlace->window()->raise();
        mPlace->window()->activateWindow();
    }
    return QObject::eventFilter(watched, event);
}

void OverlayWindow::makeWindow()
{
    // The window system never gives it the keyboard, which the shortcuts of the window below need.
    mOverlay->winId();
    mOverlay->windowHandle()->setFlag(Qt::WindowDoesNotAcceptFocus);
    mOverlay->windowHandle()->installEventFilter(this);
}

/** A compositing manager may resize the window only after its content has been painted in the new
 *  size, and throw that away. */
void OverlayWindow::paintAgain()
{
    const QList<QWidget *> parts = mOverlay->findChildren<QWidget *>();
    for (QWidget *part : parts)
        part->update();
    mOverlay->update();
    if (--mPaintsLeft > 0)
        mPaintTimer.start();
}

/** Empty if the overlay cannot lie there. */
QRect OverlayWindow::visiblePlace() const
{
    const QRect place(mPlace->mapToGlobal(QPoint(0, 0)),
                      mPlace->mapToGlobal(QPoint(mPlace->width() - 1, mPlace->height() - 1)));
    QRegion screens;
    for (const QScreen *screen : QGuiApplication::screens())
        screens += screen->geometry();
    const QRect visible = screens.intersected(place).boundingRect();
    const bool isStrip = qMin(visible.width(), visible.height()) < SmallestStripPx;
    return visible != place && isStrip ? QRect() : visible;
}
