// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "mapkeys.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTextCodec>

#include <algorithm>
#include <iterator>

namespace {

constexpr int MostBytes = 64 * 1024;
constexpr int MostKeyLength = 512;

const char Explanation[] =
    R"(; Your own keys for the maps of Talvor Player.
;
; Google Maps and Baidu Maps show their maps only to those who have a key, which the provider gives
; you. OpenStreetMap needs none. Put your key behind the "=" of its line below and save this file:
;
;   google   a key for Google's "Maps JavaScript API"
;   baidu    a key (AK) for Baidu's JavaScript API
;
; The file is read whenever the map is loaded, so no restart is needed: choose another map in the
; settings, and then yours again. A key in this file precedes one that the program was installed
; with; an empty line changes nothing.
;
; Whoever can read this file can read the keys: restrict them at the provider to what you use.

google=
baidu=
)";

/** As files and pages know the provider; null for one that needs no key. */
const char *nameOf(MapTypes provider)
{
    switch (provider) {
    case MapGoogle:
        return "google";
    case MapBaidu:
        return "baidu";
    case MapOpenStreetMap:
        break;
    }
    return nullptr;
}

/** The text of a file, in the encoding that its first bytes tell, else UTF-8. */
QString textOf(const QString &path)
{
    QFile file(path);
    const QFileInfo info(file);
    if (!info.isFile() || info.size() > MostBytes || !file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = file.read(MostBytes);
    return QTextCodec::codecForUtfText(bytes, QTextCodec::codecForName("UTF-8"))->toUnicode(bytes);
}

bool isBlankOrQuote(QChar character)
{
    return character.isSpace() || QStringLiteral("'\"`‘’‚‛“”„‟«»").contains(character);
}

/** The key in what was written for one, else an empty text. */
QString keyIn(const QString &written)
{
    const auto first = std::find_if_not(written.begin(), written.end(), isBlankOrQuote);
    const auto last =
        std::find_if_not(written.rbegin(), std::make_reverse_iterator(first), isBlankOrQuote);
    const QString key = written.mid(int(first - written.begin()), int(last.base() - first));
    const bool isKey = key.size() <= MostKeyLength &&
                       std::all_of(key.begin(), key.end(), [](QChar c) { return c.isPrint(); });
    return isKey ? key : QString();
}

/** Of lines with one name the last one with a key counts, whatever the section. */
QString keyInLines(const QString &text, const QString &name)
{
    static const QRegularExpression lineEnd(QStringLiteral("[\r\n]"));
    static const QRegularExpression entry(QStringLiteral("^\\s*([\\w\"']++)\\s*+[=:](.*)$"));
    static const QRegularExpression remark(QStringLiteral("(^|\\s)[;#].*$"));
    QString key;
    const QStringList lines = text.split(lineEnd);
    for (const QString &line : lines) {
        const QRegularExpressionMatch match = entry.match(line);
        if (keyIn(match.captured(1)).compare(name, Qt::CaseInsensitive) != 0)
            continue;
        const QString found = keyIn(match.captured(2).remove(remark));
        if (!found.isEmpty())
            key = found;
    }
    return key;
}

/** A text in quotes with its escapes resolved, as far as keys can have some; null for all else. */
QString literal(const QString &token)
{
    static const QRegularExpression escape(QStringLiteral("\\\\(.)"));
    if (token.size() < 2 || token.front() != token.back() ||
        !QStringLiteral("'\"`").contains(token.front()))
        return {};
    return token.mid(1, token.size() - 2).replace(escape, QStringLiteral("\\1"));
}

/** Looks for the name, in quotes or not, a colon or an assignment, and a text in quotes. What is
 * left open ends with its line or the file, so that no text takes long. */
QString keyInScript(const QString &text, const QString &name)
{
    static const QRegularExpression token(
        QStringLiteral("(?<remark>//[^\r\n]*+|/\\*.*?(?:\\*/|\\z)|\\s++)|\\w++|"
                       "'(?:\\\\.|[^'\\\\\r\n])*+'?|\"(?:\\\\.|[^\"\\\\\r\n])*+\"?|"
                       "`(?:\\\\.|[^`\\\\])*+`?|."),
        QRegularExpression::DotMatchesEverythingOption);
    QString key;
    QString beforeLast;
    QString last;
    for (auto tokens = token.globalMatch(text); tokens.hasNext();) {
        const QRegularExpressionMatch match = tokens.next();
        if (match.capturedLength(QStringLiteral("remark")) > 0)
            continue;
        const QString current = match.captured();
        const bool isNamed = beforeLast == name || literal(beforeLast) == name;
        if (isNamed && (last == QLatin1String(":") || last == QLatin1String("=")))
            key = keyIn(literal(current));
        beforeLast = last;
        last = current;
    }
    return key;
}

} // namespace

MapKeys::MapKeys(const QString &userFile, const QString &deploymentFile)
    : mUserFile(userFile), mDeploymentFile(deploymentFile)
{}

MapKeys MapKeys::ofProgram()
{
    return {Configuration::directory() + QStringLiteral("/mapkeys.ini"),
            QCoreApplication::applicationDirPath() + QStringLiteral("/maps/keys.js")};
}

// What bears the name already, be it a link that leads nowhere, keeps a new file from being made.
void MapKeys::createUserFile() const
{
    QFile file(mUserFile);
    if (!QDir().mkpath(QFileInfo(file).path()) ||
        !file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return;
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    file.write(Explanation);
}

QString MapKeys::key(MapTypes provider) const
{
    const QString name = QLatin1String(nameOf(provider));
    if (name.isEmpty())
        return {};
    const QString own = keyInLines(textOf(mUserFile), name);
    return own.isEmpty() ? keyInScript(textOf(mDeploymentFile), name) : own;
}

QByteArray MapKeys::forPage(MapTypes provider) const
{
    const QString name = QLatin1String(nameOf(provider));
    if (name.isEmpty())
        return {};
    QJsonObject page{{QStringLiteral("file"), QDir::toNativeSeparators(mUserFile)}};
    const QString providerKey = key(provider);
    if (!providerKey.isEmpty())
        page.insert(name, providerKey);
    return QJsonDocument(page).toJson(QJsonDocument::Compact);
}
