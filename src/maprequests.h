// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QMutex>
#include <QStringList>
#include <QWebEngineUrlRequestInterceptor>

class QWebEngineProfile;

/**
 * What the map pages may fetch: their own files in the maps folder, and what lies on their own
 * provider's hosts. All else is refused, redirects included.
 *
 * The hosts stand in hosts.json beside the pages: under the beginning of a page's name a list of
 * sources as a Content-Security-Policy has them, "https://host", or with "*.domain" for all hosts
 * below a domain; plain http and a port are for this machine only ("http://127.0.0.1:8080"). The
 * policies in the pages are made of the same lists. They bind what never comes along here, such as
 * web sockets.
 *
 * Made on the GUI thread; old web engines ask on a thread of their own.
 */
class MapRequests : public QWebEngineUrlRequestInterceptor
{
    Q_OBJECT

public:
    /** Belongs to the profile, and answers for all its requests. */
    explicit MapRequests(QWebEngineProfile *profile);

    /** Where the pages lie, with a slash at the end. */
    static QString folder();
    /** Whether this is one of the program's own pages. */
    static bool isMapPage(const QUrl &url);

    /** Reads hosts.json again. With one that is missing or broken the pages reach their own files
     *  only. */
    void readHosts();

    void interceptRequest(QWebEngineUrlRequestInfo &info) override;

private:
    bool isAllowed(const QWebEngineUrlRequestInfo &info);
    bool isProviders(const QUrl &url, const QUrl &page);

    QMutex mMutex;
    QHash<QString, QStringList> mHosts; // of the beginning of a page's name
};
