// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "playlistmodel.h"

#include "recordingcheck.h"
#include "rowdata.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileInfo>
#include <QTime>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr int SecondsPerDay = 24 * 60 * 60;
constexpr int SharedEndLength = 8;  // "0001.MP4"
constexpr int CameraPartLength = 7; // what differs between the cameras, extension included
constexpr int H264 = 1;
constexpr int EndingLookMs = 100;

const char *const ColumnTitles[PlaylistModel::ColumnCount] = {
    QT_TRANSLATE_NOOP("PlaylistModel", "File Name"),
    QT_TRANSLATE_NOOP("PlaylistModel", "Duration"),
    QT_TRANSLATE_NOOP("PlaylistModel", "Create Date"),
    QT_TRANSLATE_NOOP("PlaylistModel", "Size"),
    QT_TRANSLATE_NOOP("PlaylistModel", "Resolution"),
};

const char *const SizeUnits[] = {
    QT_TRANSLATE_NOOP("QInstaller", "bytes"), QT_TRANSLATE_NOOP("QInstaller", "KB"),
    QT_TRANSLATE_NOOP("QInstaller", "MB"),    QT_TRANSLATE_NOOP("QInstaller", "GB"),
    QT_TRANSLATE_NOOP("QInstaller", "TB"),    QT_TRANSLATE_NOOP("QInstaller", "PB"),
    QT_TRANSLATE_NOOP("QInstaller", "EB"),    QT_TRANSLATE_NOOP("QInstaller", "ZB"),
    QT_TRANSLATE_NOOP("QInstaller", "YB"),
};

} // namespace

PlaylistModel::PlaylistModel(QObject *parent) : QAbstractItemModel(parent)
{
    mEndingTimer.setInterval(EndingLookMs);
    connect(&mEndingTimer, &QTimer::timeout, this, &PlaylistModel::disposeOfEnded);
}

PlaylistModel::~PlaylistModel()
{
    takeRows();
    mEndingTimer.stop();
    // Waiting for a worker processes events, which must not find rows that are half gone.
    const Rows rows = std::exchange(mEnding, Rows());
}

int PlaylistModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(mRows.size());
}

int PlaylistModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

QModelIndex PlaylistModel::index(int row, int column, const QModelIndex &parent) const
{
    return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

QModelIndex PlaylistModel::parent(const QModelIndex &) const
{
    return QModelIndex();
}

QVariant PlaylistModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || section < 0)
        return QVariant();
    if (orientation == Qt::Vertical)
        return section < rowCount() ? QVariant(section) : QVariant();
    return section < ColumnCount ? QVariant(tr(ColumnTitles[section])) : QVariant();
}

QVariant PlaylistModel::data(const QModelIndex &index, int role) const
{
    const RowData *row = index.isValid() ? getRowData(index.row()) : nullptr;
    if (!row || index.column() >= ColumnCount)
        return QVariant();
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignCenter);
    if (role == ConditionRole)
        return QVariant::fromValue(row->condition);
    if (role != Qt::DisplayRole)
        return QVariant();
    switch (index.column()) {
    case FileName:
        return row->fileName;
    case Duration:
        return QTime(0, 0)
            .addSecs(int(row->duration % SecondsPerDay))
            .toString(QStringLiteral("HH:mm:ss"));
    case CreateDate:
        return row->createDate.toString(QStringLiteral("yyyy/MM/dd hh:mm:ss"));
    case Size:
        return tohumanReadableSize(row->size, 0);
    default:
        return QStringLiteral("%1 x %2").arg(row->width).arg(row->height);
    }
}

QString PlaylistModel::tohumanReadableSize(const qint64 &bytes, int precision)
{
    constexpr double OneStep = 0.0009765625; // 1 / 1024
    auto unit = std::begin(SizeUnits);
    double value = double(bytes);
    while (value >= 1024.0 && std::next(unit) != std::end(SizeUnits)) {
        value *= OneStep;
        ++unit;
    }
    return QStringLiteral("%1 %2")
        .arg(value, 0, 'f', precision)
        .arg(QCoreApplication::translate("QInstaller", *unit));
}

RowData *PlaylistModel::getRowData(int row) const
{
    return row >= 0 && row < rowCount() ? mRows[size_t(row)].get() : nullptr;
}

void PlaylistModel::clearAllData()
{
    beginResetModel();
    takeRows();
    endResetModel();
    mEndingTimer.start();
}

int PlaylistModel::getCurPlayFileDuration(int row) const
{
    const RowData *data = getRowData(row);
    return data ? int(data->duration) : 0;
}

float PlaylistModel::getVideoframerate(int row) const
{
    const RowData *data = getRowData(row);
    return data ? data->frameRate : 0.0f;
}

int PlaylistModel::getVideoDecodeType(int row) const
{
    const RowData *data = getRowData(row);
    return data ? data->decodeType : H264;
}

QSize PlaylistModel::getVideoSize(int row) const
{
    const RowData *data = getRowData(row);
    return data ? QSize(data->width, data->height) : QSize(1920, 1080);
}

void PlaylistModel::setCurPlayPosition(int row, int sampleIndex)
{
    if (RowData *data = getRowData(row))
        data->parser.updatePaserGpsDataPosition(sampleIndex);
}

void PlaylistModel::updateAllGpsData(int row)
{
    if (RowData *data = getRowData(row)) {
        data->parser.updateAllGpsData();
        updatePresence(*data);
    }
}

int PlaylistModel::addDataByUrl(const QUrl &url)
{
    const QFileInfo file(url.toLocalFile());
    const auto existing = mRowOfFileName.constFind(file.fileName());
    if (existing != mRowOfFileName.cend())
        return existing.value();

    const int id = rowCount();
    beginInsertRows(QModelIndex(), id, id);
    auto row = std::make_unique<RowData>();
    row->id = id;
    row->fileName = file.fileName();
    if (file.isFile() && file.isReadable()) {
        row->createDate = file.birthTime();
        row->size = file.size();
    }
    row->url = url;
    connectWorker(*row);
    row->parser.start(url, id, 0);
    mRowOfFileName.insert(row->fileName, id);
    mRows.push_back(std::move(row));
    endInsertRows();

    // The range ends one past the last column. Views repaint as a whole upon any range.
    emit dataChanged(createIndex(id, 0), createIndex(id, ColumnCount));
    return id;
}

RowData *PlaylistModel::getRelateDataByMainData(const RowData &main) const
{
    qDebug() << main.fileName;
    RowData *partner = main.fileName.startsWith(QLatin1String("MOV"), Qt::CaseInsensitive)
                           ? findPartnerByEnd(main)
                           : findPartnerByStart(main);
    if (partner)
        qDebug() << "found: row->fileName" << partner->fileName;
    return partner;
}

RowData *PlaylistModel::getPreviousDataByCurrentUrl(const QUrl &url) const
{
    for (size_t row = 1; row < mRows.size(); ++row) {
        if (mRows[row]->url == url)
            return mRows[row - 1].get();
    }
    return nullptr;
}

RowData *PlaylistModel::getNextDataByCurrentUrl(const QUrl &url) const
{
    for (size_t row = 0; row + 1 < mRows.size(); ++row) {
        if (mRows[row]->url == url)
            return mRows[row + 1].get();
    }
    return nullptr;
}

void PlaylistModel::onVideoInfoChanged(int id, VideoInfo info)
{
    RowData *row = getRowData(id);
    if (!row)
        return;
    row->duration = info.duration;
    row->width = info.width;
    row->height = info.height;
    row->decodeType = info.decodeType;
    row->frameRate = info.frameRate;
    // An empty range, upon which views repaint as a whole.
    emit dataChanged(QModelIndex(), QModelIndex());
}

void PlaylistModel::onConditionChanged(int id, const RecordingCondition &condition)
{
    RowData *row = getRowData(id);
    if (!row)
        return;
    row->condition = condition;
    emit dataChanged(createIndex(id, 0), createIndex(id, ColumnCount - 1), {ConditionRole});
}

// What a worker has sent by then arrives after a clearing too, when its id may be another row's.
void PlaylistModel::connectWorker(const RowData &row)
{
    const auto isListed = [this, clearings = mClearings] { return clearings == mClearings; };
    connect(&row.parser, &VideoParser::videoInfoChanged, this,
            [this, isListed](int id, const VideoInfo &info) {
                if (isListed())
                    onVideoInfoChanged(id, info);
            });
    connect(&row.parser, &VideoParser::gpsDataChanged, this,
            [this, isListed](int id, const GpsData &sample) {
                if (isListed())
                    emit gpsDataChanged(id, sample);
            });
    connect(&row.parser, &VideoParser::allGpsDataParserFinished, this,
            [this, isListed](int id, const QList<GpsData> &list) {
                if (isListed())
                    emit allGpsDataParserFinished(id, list);
            });
    connect(&row.parser, &VideoParser::conditionChanged, this,
            [this, isListed](int id, const RecordingCondition &condition) {
                if (isListed())
                    onConditionChanged(id, condition);
            });
}

void PlaylistModel::updatePresence(const RowData &row)
{
    if (row.condition.kind == RecordingCondition::Unknown)
        return; // its worker is about to look
    const QFileInfo file(row.url.toLocalFile());
    const bool isThere = file.isFile() && file.isReadable();
    if (isThere == (row.condition.kind != RecordingCondition::Gone))
        return;
    RecordingCondition condition = checkRecording(file.filePath());
    condition.telemetry = row.condition.telemetry;
    onConditionChanged(row.id, condition);
}

RowData *PlaylistModel::findPartnerByEnd(const RowData &main) const
{
    qDebug() << "MOV";
    const QString keyWord = main.fileName.right(SharedEndLength);
    qDebug() << "keyWord: " << keyWord;
    for (const auto &row : mRows) {
        qDebug() << "row->fileName" << row->fileName;
        if (row->id != main.id && row->fileName.endsWith(keyWord, Qt::CaseInsensitive))
            return row.get();
    }
    return nullptr;
}

RowData *PlaylistModel::findPartnerByStart(const RowData &main) const
{
    if (main.fileName.size() <= CameraPartLength)
        return nullptr;
    const QString key = main.fileName.chopped(CameraPartLength);
    for (const auto &row : mRows) {
        if (row->id != main.id && row->fileName.startsWith(key, Qt::CaseInsensitive))
            return row.get();
    }
    return nullptr;
}

/** Empties the list, and has the workers end all at once. */
void PlaylistModel::takeRows()
{
    ++mClearings;
    mRowOfFileName.clear();
    for (auto &row : std::exchange(mRows, Rows())) {
        row->parser.stopParserGpsData();
        mEnding.push_back(std::move(row));
    }
}

void PlaylistModel::disposeOfEnded()
{
    const auto ended = std::partition(mEnding.begin(), mEnding.end(),
                                      [](const auto &row) { return row->parser.isRunning(); });
    // Taken out first: what waits for a worker's very end processes events.
    const Rows gone(std::make_move_iterator(ended), std::make_move_iterator(mEnding.end()));
    mEnding.erase(ended, mEnding.end());
    if (mEnding.empty())
        mEndingTimer.stop();
}
