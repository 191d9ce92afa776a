// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gpsdata.h"
#include "recordingcondition.h"
#include "videoinfo.h"

#include <QAbstractItemModel>
#include <QHash>
#include <QSize>
#include <QTimer>

#include <memory>
#include <vector>

struct RowData;
class QUrl;

/**
 * The playlist: a flat table with one row per opened recording. Each row owns its parse worker,
 * so the model is also the switchboard between the player and the telemetry: it starts the
 * workers, fills in what they find, forwards their samples and passes requests to them.
 *
 * Lives on the GUI thread; the workers' signals arrive queued. RowData pointers that it hands out
 * stay valid until the rows are cleared or the model is destroyed.
 */
class PlaylistModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column
    {
        FileName,
        Duration,
        CreateDate,
        Size,
        Resolution,
        ColumnCount
    };

    /** Beside the display and the alignment, which are all that other roles give. */
    enum Role
    {
        ConditionRole = Qt::UserRole + 1 ///< of every column: the row's RecordingCondition
    };

    explicit PlaylistModel(QObject *parent = nullptr);
    /** Tells every worker to end before it waits for the first. */
    ~PlaylistModel() override;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex index(int row, int column,
                      const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    /** A number of bytes in the largest unit that keeps it at 1 or above, in steps of 1024, with
     *  @p precision decimals. */
    static QString tohumanReadableSize(const qint64 &bytes, int precision);

    /** The row, owned by the model; null when out of range. */
    RowData *getRowData(int row) const;
    /** Removes every row and tells its worker to end, without waiting for it: it is disposed of
     *  when it has. Nothing that it still delivers is taken for a later row's. */
    void clearAllData();

    /** Seconds; 0 when out of range. */
    int getCurPlayFileDuration(int row) const;
    /** Frames per second; 0 when out of range. */
    float getVideoframerate(int row) const;
    /** As VideoInfo; 1 (H.264) when out of range. */
    int getVideoDecodeType(int row) const;
    /** Pixels; 1920 x 1080 when out of range. */
    QSize getVideoSize(int row) const;

    /** Asks the row's worker for the sample with this index. */
    void setCurPlayPosition(int row, int sampleIndex);
    /** Asks the row's worker for all samples, because the row is to be played. Its file may have
     *  gone or come back since it was read: then its condition changes. */
    void updateAllGpsData(int row);

    /** Appends the recording and starts its worker. Returns its row, or that of a recording with
     *  the same file name, whatever its folder. A file that cannot be read is added all the same.
     */
    int addDataByUrl(const QUrl &url);

    /**
     * The recording of the other camera at the same moment, null when there is none. Names that
     * begin with "MOV" pair by equal last 8 characters, others by being equal but for the last 7.
     */
    RowData *getRelateDataByMainData(const RowData &main) const;
    /** The neighbours of the row with this URL; null at the ends of the list. */
    RowData *getPreviousDataByCurrentUrl(const QUrl &url) const;
    RowData *getNextDataByCurrentUrl(const QUrl &url) const;

signals:
    void gpsDataChanged(int id, GpsData sample);
    void allGpsDataParserFinished(int id, const QList<GpsData> &list);

public slots:
    void onVideoInfoChanged(int id, VideoInfo info);
    /** Ignores ids of no row. */
    void onConditionChanged(int id, const RecordingCondition &condition);

private:
    using Rows = std::vector<std::unique_ptr<RowData>>;

    void connectWorker(const RowData &row);
    void updatePresence(const RowData &row);
    RowData *findPartnerByEnd(const RowData &main) const;
    RowData *findPartnerByStart(const RowData &main) const;
    void takeRows();
    void disposeOfEnded();

    Rows mRows;
    Rows mEnding;        // taken out of the list, until their workers have ended
    QTimer mEndingTimer; // looks whether they have
    int mClearings = 0;
    QHash<QString, int> mRowOfFileName;
};
