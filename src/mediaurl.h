// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMediaContent>
#include <QUrl>

#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
#include <QNetworkRequest>
#endif

/** The URL that the media was set from; empty for no media. */
inline QUrl mediaUrl(const QMediaContent &media)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
    return media.request().url();
#else
    return media.canonicalUrl();
#endif
}
