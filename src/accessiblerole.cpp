// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "accessiblerole.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QMetaEnum>
#include <QWidget>

namespace {

/** A widget with a role, and a description made when a screen reader asks. */
class SpokenWidget : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    QString text(QAccessible::Text kind) const override
    {
        const QVariant state = widget()->property("spokenState");
        const bool isAsked = kind == QAccessible::Description && state.isValid();
        return isAsked ? state.toString() : QAccessibleWidget::text(kind);
    }
};

/** Null, so that Qt makes its own, for all widgets without the property. */
QAccessibleInterface *interfaceWithRole(const QString &, QObject *object)
{
    const QByteArray name = object->property("accessibleRole").toByteArray();
    if (name.isEmpty() || !object->isWidgetType())
        return nullptr;
    const int role = QMetaEnum::fromType<QAccessible::Role>().keyToValue(name);
    return new SpokenWidget(static_cast<QWidget *>(object), QAccessible::Role(role));
}

} // namespace

void installAccessibleRoles()
{
    QAccessible::installFactory(interfaceWithRole);
}
