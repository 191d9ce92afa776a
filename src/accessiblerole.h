// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/**
 * Tells screen readers what plain widgets stand for: without a role they are passed over, whatever
 * their name. A form gives it as the dynamic property "accessibleRole", the name of one of the
 * roles of QAccessible.
 *
 * What changes all the time, such as the position of playback, is not announced but said when asked
 * for: a widget with a property "spokenState" has it as its description. To be called before the
 * widgets are asked for; again does no harm.
 */
void installAccessibleRoles();
