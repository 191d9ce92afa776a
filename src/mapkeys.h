// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "configuration.h"

#include <QByteArray>
#include <QString>

/**
 * The keys that some map providers ask for, from two files.
 *
 * The user's file is "mapkeys.ini" beside the settings file: lines "google=..." and "baidu=...".
 * The deployment's is "keys.js" in the folder of the map pages, which builds and installations
 * write anew; a user's key precedes it. It has the form of a script, and users have put their keys
 * into it, so it is read as text that may have been edited in every way that a script allows.
 *
 * Nothing is cached: every question reads the files, so that a key counts from the next load of a
 * page. Anything but a readable regular file of at most 64 KiB has no key in it, and is not opened.
 *
 * Has no state but the paths; any thread.
 */
class MapKeys
{
public:
    MapKeys(const QString &userFile, const QString &deploymentFile);

    /** Those of this program and user. Needs the application and its names. */
    static MapKeys ofProgram();

    /** The full path of the user's file, whether or not there is one. */
    QString userFile() const { return mUserFile; }

    /** Writes the user's file, with explanations and without keys, for the user's eyes only, and
     *  its folder. What bears the name already is left alone. Without a place to write, there is
     *  none afterwards. */
    void createUserFile() const;

    /** The provider's key without blanks and quotes around it. Empty if there is none: a text with
     *  unprintable characters or of more than 512 is no key. */
    QString key(MapTypes provider) const;

    /** What the provider's page is told, as a JSON object: "file", the path of the user's file, and
     *  the key, if there is one, by the name of the provider: "google" or "baidu". Empty for a
     *  provider that needs no key. */
    QByteArray forPage(MapTypes provider) const;

private:
    QString mUserFile;
    QString mDeploymentFile;
};
