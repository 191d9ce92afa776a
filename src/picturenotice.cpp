// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturenotice.h"

#include "configuration.h"
#include "languagefont.h"
#include "picturenoticewindow.h"

#include <QAccessible>
#include <QEvent>
#include <QWidget>
#include <QWindow>

namespace {

constexpr int EdgePx = 8; // of the picture that stays free around the lines

} // namespace

PictureNotice::PictureNotice(QWidget *player) : QObject(player), mPlayer(player)
{
    mEnd.setSingleShot(true);
    connect(&mEnd, &QTimer::timeout, this, &PictureNotice::clear);
    mRefresh.setSingleShot(true);
    mRefresh.setInterval(0);
    connect(&mRefresh, &QTimer::timeout, this, &PictureNotice::refresh);
    mPlayer->installEventFilter(this);
}

PictureNotice::~PictureNotice()
{
    delete mWindow;
}

void PictureNotice::tell(const QString &heading, const QString &text, Place place)
{
    show(heading, text, place, false);
}

void PictureNotice::tellFor(int ms, const QString &text)
{
    show(QString(), text, Top, false);
    mEnd.start(ms);
}

void PictureNotice::tellProgress(const QString &text)
{
    show(QString(), text, Middle, true);
}

void PictureNotice::clear()
{
    show(QString(), QString(), Middle, false);
}

QRect PictureNotice::geometry() const
{
    return mWindow && mWindow->isVisible() ? mWindow->geometry() : QRect();
}

bool PictureNotice::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::WinIdChange:
    case QEvent::ParentChange:
    case QEvent::WindowStateChange:
        if (isShown())
            mRefresh.start();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void PictureNotice::show(const QString &heading, const QString &text, Place place, bool isProgress)
{
    mEnd.stop();
    const bool isSame = heading == mHeading && text == mText;
    mHeading = heading;
    mText = text;
    mPlace = place;
    mIsProgress = isProgress;
    refresh();
    if (isSame)
        return;
    // Screen readers do not see what is only painted.
    mPlayer->setAccessibleDescription(QStringList{heading, text}.join(QLatin1Char('\n')).trimmed());
    QAccessibleEvent alert(mPlayer, QAccessible::Alert);
    if (isShown())
        QAccessible::updateAccessibility(&alert);
}

void PictureNotice::refresh()
{
    if (!isShown() || !mPlayer->isVisible()) {
        delete mWindow;
        return;
    }
    mPlayer->winId(); // makes the window, where there is none yet
    QWindow *below = mPlayer->windowHandle();
    if (mWindow && mWindow->parent() != below)
        delete mWindow;
    if (!mWindow)
        mWindow = new PictureNoticeWindow(below);
    QFont font(QStringLiteral("Calibri"));
    font = languageFont(font, Configuration::GetInstance()->language());
    const QSize room = mPlayer->size() - QSize(2 * EdgePx, 2 * EdgePx);
    const QSize size = mWindow->fit({mHeading, mText, mIsProgress}, font, room);
    if (size.isEmpty()) {
        delete mWindow;
        return;
    }
    const int left = (mPlayer->width() - size.width()) / 2;
    const int middle = (mPlayer->height() - size.height()) / 2;
    mWindow->setGeometry(QRect(QPoint(left, mPlace == Top ? EdgePx : middle), size));
    mWindow->show();
    mWindow->raise();
}
