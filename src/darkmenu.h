// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QMenu;
class QWidget;

/** An empty menu in the colours of the main window, which deletes itself when it is closed. Its
 *  parent is the widget that it belongs to. */
QMenu *createDarkMenu(QWidget *parent);
