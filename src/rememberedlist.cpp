// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rememberedlist.h"

#include "configuration.h"
#include "foldersearch.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace {

const QString RecordingsKey = QStringLiteral("recordings");
const QString PlayingKey = QStringLiteral("playing");
const QString PositionKey = QStringLiteral("positionMs");

// As long as ten thousand paths of the greatest length, percent signs left out of account.
constexpr qint64 MostBytes = 40 * 1024 * 1024;

QString path()
{
    return Configuration::directory() + QStringLiteral("/playlist.json");
}

/** An empty one for anything but a local file. */
QUrl urlOf(const QJsonValue &value)
{
    const QUrl url(value.toString(), QUrl::StrictMode);
    return url.isLocalFile() && url.host().isEmpty() ? url : QUrl();
}

QString textOf(const QUrl &url)
{
    return url.toString(QUrl::FullyEncoded);
}

} // namespace

RememberedList RememberedList::load()
{
    RememberedList list;
    QFile file(path());
    if (!file.open(QFile::ReadOnly) || file.size() > MostBytes)
        return list;
    const QJsonObject object = QJsonDocument::fromJson(file.read(MostBytes)).object();
    const QJsonArray recordings = object.value(RecordingsKey).toArray();
    for (const QJsonValue &value : recordings) {
        const QUrl url = urlOf(value);
        if (!url.isEmpty() && list.recordings.size() < FolderSearch::MostRecordings)
            list.recordings.append(url);
    }
    list.playing = urlOf(object.value(PlayingKey));
    list.positionMs = qint64(qBound(0.0, object.value(PositionKey).toDouble(), 1e12));
    return list;
}

void RememberedList::remove()
{
    QFile::remove(path());
}

bool RememberedList::store() const
{
    QJsonArray texts;
    for (const QUrl &url : recordings)
        texts.append(textOf(url));
    const QJsonObject object{
        {RecordingsKey, texts}, {PlayingKey, textOf(playing)}, {PositionKey, double(positionMs)}};
    QSaveFile file(path());
    if (!QDir().mkpath(Configuration::directory()) || !file.open(QFile::WriteOnly))
        return false;
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    file.write(QJsonDocument(object).toJson());
    return file.commit();
}
