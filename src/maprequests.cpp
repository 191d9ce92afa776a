// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "maprequests.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMutexLocker>
#include <QRegularExpression>
#include <QUrl>
#include <QWebEngineProfile>

#include <algorithm>
#include <iterator>

namespace {

const char HostsFile[] = "hosts.json";

// In the maps folder, but nobody's business in a page.
const char *const PrivateFiles[] = {HostsFile, "keys.js"};

using Info = QWebEngineUrlRequestInfo;

bool isFile(const QUrl &url)
{
    return url.isLocalFile() && url.host().isEmpty();
}

/** By what is on the disk: names that differ may mean one file there. */
bool isPrivate(const QString &path)
{
    const QString file = QFileInfo(path).canonicalFilePath();
    return std::any_of(std::begin(PrivateFiles), std::end(PrivateFiles), [&](const char *name) {
        return file == QFileInfo(MapRequests::folder() + QLatin1String(name)).canonicalFilePath();
    });
}

bool isPartOfPage(const QUrl &url)
{
    const QString path = url.toLocalFile();
    return isFile(url) && QDir::cleanPath(path) == path && path.startsWith(MapRequests::folder()) &&
           QFileInfo(path).isFile() && !isPrivate(path);
}

bool isReadAsPart(Info::ResourceType type)
{
    return type == Info::ResourceTypeScript || type == Info::ResourceTypeStylesheet ||
           type == Info::ResourceTypeImage || type == Info::ResourceTypeFontResource;
}

const QRegularExpression &sourcePattern()
{
    static const QRegularExpression pattern(
        QStringLiteral("\\A(?:https://(?<all>\\*\\.)?(?<host>[a-z0-9-]+(?:\\.[a-z0-9-]+)+)"
                       "|http://127\\.0\\.0\\.1:(?<port>[0-9]{1,5}))\\z"));
    return pattern;
}

bool isFrom(const QString &source, const QUrl &url)
{
    const QRegularExpressionMatch match = sourcePattern().match(source);
    const QString host = match.captured(QStringLiteral("host"));
    if (host.isEmpty())
        return url.scheme() == QLatin1String("http") && url.host() == QLatin1String("127.0.0.1") &&
               url.port(80) == match.captured(QStringLiteral("port")).toInt();
    if (url.scheme() != QLatin1String("https") || url.port(443) != 443)
        return false;
    return match.captured(QStringLiteral("all")).isEmpty()
               ? url.host() == host
               : url.host().endsWith(QLatin1Char('.') + host);
}

/** Empty if one of the sources is none. */
QStringList sourcesIn(const QJsonValue &list)
{
    QStringList sources;
    for (const QJsonValue &source : list.toArray()) {
        if (!sourcePattern().match(source.toString()).hasMatch()) {
            qWarning() << HostsFile << "has a host that is none:" << source;
            return {};
        }
        sources.append(source.toString());
    }
    return sources;
}

} // namespace

MapRequests::MapRequests(QWebEngineProfile *profile) : QWebEngineUrlRequestInterceptor(profile)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 13, 0)
    profile->setUrlRequestInterceptor(this);
#else
    profile->setRequestInterceptor(this);
#endif
}

QString MapRequests::folder()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/maps/");
}

bool MapRequests::isMapPage(const QUrl &url)
{
    const QFileInfo file(url.toLocalFile());
    return isFile(url) && file.path() + QLatin1Char('/') == folder() &&
           file.suffix() == QLatin1String("html");
}

void MapRequests::readHosts()
{
    QFile file(folder() + QLatin1String(HostsFile));
    file.open(QIODevice::ReadOnly);
    const QJsonObject table = QJsonDocument::fromJson(file.readAll()).object();
    if (table.isEmpty())
        qWarning() << "No hosts for the maps in" << file.fileName();
    const QMutexLocker locker(&mMutex);
    mHosts.clear();
    for (auto row = table.begin(); row != table.end(); ++row)
        mHosts.insert(row.key(), sourcesIn(row.value()));
}

void MapRequests::interceptRequest(QWebEngineUrlRequestInfo &info)
{
    if (!isAllowed(info))
        info.block(true);
}

bool MapRequests::isAllowed(const QWebEngineUrlRequestInfo &info)
{
    const QUrl url = info.requestUrl();
    const Info::ResourceType type = info.resourceType();
    if (type == Info::ResourceTypeMainFrame)
        return isMapPage(url);
    if (type == Info::ResourceTypeSubFrame)
        return false;
    if (url.scheme() == QLatin1String("data") || url.scheme() == QLatin1String("blob"))
        return true; // of the page itself
    if (url.isLocalFile())
        return isReadAsPart(type) && isPartOfPage(url);
    return isProviders(url, info.firstPartyUrl());
}

bool MapRequests::isProviders(const QUrl &url, const QUrl &page)
{
    if (!isMapPage(page))
        return false;
    const QString name = page.fileName();
    const QMutexLocker locker(&mMutex);
    for (auto row = mHosts.cbegin(); row != mHosts.cend(); ++row) {
        if (name.startsWith(row.key()))
            return std::any_of(row->begin(), row->end(),
                               [&url](const QString &source) { return isFrom(source, url); });
    }
    return false;
}
