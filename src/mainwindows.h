// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gpsdata.h"
#include "windowgeometry.h"

#include <QDialog>
#include <QList>
#include <QMediaPlayer>
#include <QModelIndex>

#include <memory>

class PendingStart;
class PlaybackNotices;
class PlaylistAdvance;
class PlaylistModel;
class QKeyEvent;
class QUrl;
class RecordingOpener;
class SeekByClick;
class Shortcuts;
class TelemetryDisplays;
struct RowData;

namespace Ui {
class MainWindows;
}

namespace shell {

/** Processes events for @p ms milliseconds of the time of day; a wait across midnight ends at
 *  once. */
void sleep(unsigned int ms);

} // namespace shell

/**
 * The one top-level window: frameless, with a title bar of its own, the play area above control
 * bar and playlist on the left, and the telemetry displays on the right. It wires all of them
 * together, turns the user's requests into playback, and routes telemetry to the displays.
 *
 * GUI thread only. Owns the playlist model, which goes before the widgets.
 */
class MainWindows : public QDialog
{
    Q_OBJECT

public:
    explicit MainWindows(QWidget *parent = nullptr);
    ~MainWindows() override;

    void setAppName(const QString &name);
    void setTitleFileName(const QString &name);

    /** Adds the recordings, and those of the folders, in order and plays the first of them. Nothing
     *  for an empty list. */
    void openRecordings(const QList<QUrl> &urls);
    /** Plays a row, beside its related recording if the playlist has one, once its telemetry has
     *  been delivered. Nothing for null. */
    void playByData(const RowData *row);
    /** Empties gauge, chart and map. Playback goes on. */
    void clearAll();

public slots:
    /** Whether this computer can be expected to play a row's recording: all that are small, and
     *  large ones where the hardware decodes them. Otherwise says so in a box, and waits for it. */
    bool isSuportH264orH265(int row);
    void onUpdateLanguage();
    void openFile();
    void openFolder();
    /** Stops, and begins anew with an empty list. */
    void clearList();
    /** @param filePath the recording's URL as text. */
    void onDropFile(const QString &filePath);
    /** A recording that waits to be started is still loaded, but not played: previous and next are
     *  what is beside it in the list. */
    void onStop();
    void playClicked();
    void previousClicked();
    void nextClicked();
    /** @param duration in milliseconds. */
    void durationChanged(qint64 duration);
    void positionChanged(qint64 second, int rowId);
    void on_pBtn_Step_clicked();
    void on_pBtn_Minimize_clicked();
    void on_pBtn_Maximize_clicked();
    void on_pBtn_Close_clicked();
    void onTableDoubleClicked(const QModelIndex &index);
    void onGpsDataChanged(int rowId, const GpsData &sample);
    void onAllGpsDataParserFinished(int rowId, const QList<GpsData> &dataList);
    void onKeyPressEvent(QKeyEvent *event);
    /** Keeps the map's window out of the picture that fills the screen. */
    void onFullScreenChanged(bool fullScreen);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void installMoving();
    void setupControlPanel();
    void setupPlayback();
    void setupOpening();
    void connectControlPanel();
    void connectPlayArea();
    void connectPlaylistAndSettings();
    void restoreGeometryFromSettings();

    void showMaximizedState();
    void onRecordingDue(const RowData *row);
    void onPlaybackStateChanged(QMediaPlayer::State state);
    void onRecordingEnded();
    bool isPlayingRow(int rowId) const;
    QUrl currentUrl() const;
    void giveUpRound();

    std::unique_ptr<Ui::MainWindows> mUi;
    PlaylistModel *mPlaylistModel = nullptr; // deleted by hand: it goes before the widgets
    WindowGeometry mGeometry{this};
    std::unique_ptr<TelemetryDisplays> mDisplays;
    PendingStart *mPendingStart = nullptr; // a child
    PlaybackNotices *mNotices = nullptr;   // a child
    PlaylistAdvance *mAdvance = nullptr;   // a child
    RecordingOpener *mOpener = nullptr;    // a child
    SeekByClick *mSeekByClick = nullptr;   // a child
    Shortcuts *mShortcuts = nullptr;       // a child
    int mRound = 0;                        // starts and stops: those before are given up
    bool mIsStopped = false; // or closed, and no start since: what is delivered now is too late
    bool mIsReportingPosition = false;
    QList<GpsData> mFirstSample; // to be shown when playback begins, if there is one
};
