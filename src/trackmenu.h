// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gpsdata.h"

#include <QObject>
#include <QString>

class PlaylistModel;
class QMenu;
class QWidget;
class TrackSaving;
struct RowData;

/**
 * The entries of the playlist's menu that take a drive along: its track as a file, and the position
 * of the moment that is played.
 *
 * GUI thread only. A child of the window, over which its dialogs open; the model is not owned.
 */
class TrackMenu : public QObject
{
    Q_OBJECT

public:
    TrackMenu(QWidget *window, PlaylistModel *model);

    /** Appends the entries for a row; null for none, which disables them. */
    void addEntries(QMenu *menu, const RowData *row);

    /** Writes the recording's track in the format that the suffix of the file names; one without a
     *  suffix of a track gets that of GPX. Failures are told in a box. */
    void save(const QString &recording, const QString &fileName);

    /** "48.1371540, 11.5761240": degrees, as other programs take them. */
    static QString positionText(const GpsData &sample);

signals:
    /** For the user's eyes. */
    void saved(const QString &notice);

private:
    void onSample(int rowId, const GpsData &sample);
    void ask(const QString &recording);
    void onFinished(TrackSaving *saving);
    void tellFailure(const QString &fileName, const QString &reason);
    void tell(const QString &text);

    QWidget *mWindow = nullptr; // the parent
    int mRowId = -1;            // of the last sample
    GpsData mSample;
};
