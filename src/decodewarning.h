// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QSize;

/**
 * Whether this computer can be expected to play pictures of this coding (as VideoInfo) and size in
 * pixels: all that are small, and large ones where the hardware decodes them. Otherwise says so in
 * a box, and waits for it. GUI thread only.
 */
bool warnUnlessDecodable(int coding, const QSize &size);
