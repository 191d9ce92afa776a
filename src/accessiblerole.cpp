// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "accessiblerole.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QMetaEnum>
#include <QWidget>

namespace {

/** Null, so that Qt makes its own, for all widgets without the property. */
QAccessibleInterface *interfaceWithRole(const QString &, QObject *object)
{
    const QByteArray name = object->property("accessibleRole").toByteArray();
    if (name.isEmpty() || !object->isWidgetType())
        return nullptr;
    const int role = QMetaEnum::fromType<QAccessible::Role>().keyToValue(name);
    return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Role(role));
}

} // namespace

void installAccessibleRoles()
{
    QAccessible::installFactory(interfaceWithRole);
}
