// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "mapclicks.h"

#include <QApplication>
#include <QChildEvent>
#include <QMouseEvent>
#include <QWebEnginePage>
#include <QWebEngineView>

#include <limits>

namespace {

constexpr int DragPx = 4;

/** -1 for what is no number of a sample. */
int sampleFrom(const QVariant &answer)
{
    const bool isNumber = answer.userType() == QMetaType::Double ||
                          answer.userType() == QMetaType::Int ||
                          answer.userType() == QMetaType::LongLong;
    const double number = answer.toDouble();
    const bool isIndex = isNumber && number >= 0.0 && number <= std::numeric_limits<int>::max() &&
                         number == double(int(number));
    return isIndex ? int(number) : -1;
}

} // namespace

MapClicks::MapClicks(QWebEngineView *view) : QObject(view), mView(view)
{
    mTimer.setSingleShot(true);
    connect(&mTimer, &QTimer::timeout, this, [this] { emit clicked(mPressed); });
    mView->installEventFilter(this);
    for (QWidget *child : mView->findChildren<QWidget *>())
        child->installEventFilter(this);
}

void MapClicks::askForSample(const QPoint &place, int played,
                             const std::function<void(int)> &answer)
{
    const QString call = QStringLiteral("window.talvorMap && talvorMap.sampleAt(%1, %2, %3)");
    mView->page()->runJavaScript(call.arg(place.x()).arg(place.y()).arg(played),
                                 [answer](const QVariant &said) {
                                     const int sample = sampleFrom(said);
                                     if (sample >= 0)
                                         answer(sample);
                                 });
}

/** The mouse goes to a child of the view, which every new process of the page brings along. */
bool MapClicks::eventFilter(QObject *watched, QEvent *event)
{
    const auto mouse = [event] { return static_cast<QMouseEvent *>(event); };
    switch (event->type()) {
    case QEvent::ChildPolished:
        static_cast<QChildEvent *>(event)->child()->installEventFilter(this);
        break;
    case QEvent::MouseButtonPress:
        mIsClick = watched != mView && mouse()->button() == Qt::LeftButton;
        mPressed = mouse()->pos();
        break;
    case QEvent::MouseButtonDblClick:
        mIsClick = false;
        mTimer.stop();
        break;
    case QEvent::MouseMove:
        mIsClick = mIsClick && (mouse()->pos() - mPressed).manhattanLength() <= DragPx;
        break;
    case QEvent::MouseButtonRelease:
        if (mIsClick && mouse()->button() == Qt::LeftButton)
            mTimer.start(QApplication::doubleClickInterval());
        mIsClick = false;
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
