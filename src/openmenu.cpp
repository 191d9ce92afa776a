// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "openmenu.h"

#include "controlpanel.h"
#include "darkmenu.h"

#include <QAbstractButton>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int HoldMs = 500;
constexpr int MarkSize = 5;

/** The triangle in the corner of a button that has a menu. */
class MenuMark : public QWidget
{
public:
    explicit MenuMark(QWidget *button) : QWidget(button)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setGeometry(button->width() - MarkSize, button->height() - MarkSize, MarkSize, MarkSize);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(170, 170, 170));
        painter.drawConvexPolygon(QPolygon({{MarkSize, 0}, {MarkSize, MarkSize}, {0, MarkSize}}));
    }
};

QAbstractButton *openButton(const ControlPanel *panel)
{
    return panel->findChild<QAbstractButton *>(QStringLiteral("btn_OpenFile"));
}

} // namespace

OpenMenu::OpenMenu(const ControlPanel *panel)
    : QObject(openButton(panel)), mButton(openButton(panel))
{
    mHold.setSingleShot(true);
    mHold.setInterval(HoldMs);
    connect(&mHold, &QTimer::timeout, this, &OpenMenu::popUp);
    mButton->installEventFilter(this);
    mButton->resize(mButton->minimumSize()); // its only size, which the layout gives it later
    new MenuMark(mButton);
}

bool OpenMenu::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton)
            mHold.start();
        break;
    case QEvent::MouseButtonRelease:
    case QEvent::Hide:
        mHold.stop();
        break;
    case QEvent::ContextMenu:
        popUp();
        return true;
    default:
        break;
    }
    return QObject::eventFilter(object, event);
}

void OpenMenu::popUp()
{
    mHold.stop();
    mButton->setDown(false); // letting go of it is no click then
    QMenu *menu = createDarkMenu(mButton);
    menu->addAction(tr("Open Files…"), this, &OpenMenu::filesRequested);
    menu->addAction(tr("Open All in a Folder…"), this, &OpenMenu::folderRequested);
    const QSize size = menu->sizeHint();
    menu->popup(mButton->mapToGlobal({0, -size.height()}));
}
