// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/** The kind of an MP4 track, by the handler type of its "hdlr" box (ISO/IEC 14496-12, 8.4.3). */
enum class TrakType
{
    Unknown = 0,
    Video = 1,    ///< "vide"
    Sound = 2,    ///< "soun"
    Text = 3,     ///< "text"
    Metadata = 4, ///< "meta"
    Other = 5,    ///< any other handler type
};
