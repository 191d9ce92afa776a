// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

/** The bytes of these MP4 boxes without which nobody can learn the facts of a recording and the
 *  places of its telemetry: headers, the fields that hold the facts, the telemetry's table. */
quint64 neededOfBoxes(const QByteArray &boxes);
