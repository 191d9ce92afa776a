// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "darkmenu.h"

#include <QMenu>

namespace {

const char MenuStyle[] =
    "QMenu{background-color: rgb(44, 44, 52); color: rgb(230, 230, 230);"
    " border: 1px solid rgb(110, 110, 120); padding: 4px 0px;}"
    "QMenu::item{padding: 6px 28px 6px 28px; background-color: transparent;}"
    "QMenu::item:selected{background-color: rgb(73, 85, 114); color: rgb(250, 250, 250);}"
    "QMenu::item:disabled{color: rgb(120, 120, 128);}"
    "QMenu::separator{height: 1px; margin: 4px 8px; background-color: rgb(80, 80, 88);}"
    "QMenu::indicator{width: 12px; height: 12px; left: 8px; border: 1px solid rgb(170, 170, 170);}"
    "QMenu::indicator:checked{background-color: rgb(38, 153, 238);}";

} // namespace

QMenu *createDarkMenu(QWidget *parent)
{
    auto *menu = new QMenu(parent);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setStyleSheet(QLatin1String(MenuStyle));
    return menu;
}
