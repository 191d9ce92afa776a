// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "mainwindows.h"

#include "ui_mainwindows.h"

#include "appname.h"
#include "computeinfo.h"
#include "configuration.h"
#include "gpsuser.h"
#include "gyrosampling.h"
#include "mediaurl.h"
#include "movefilter.h"
#include "playlistmodel.h"
#include "rowdata.h"
#include "setting.h"

#include <QDateTime>
#include <QDebug>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTime>
#include <QTimer>

#include <cmath>

namespace {

QFont pixelFont(const QString &family, int pixelSize, QFont::Weight weight)
{
    QFont font(family);
    font.setPixelSize(pixelSize);
    font.setWeight(weight);
    return font;
}

/** The hemisphere letter carries the sign. */
QString coordinateText(char reference, double degrees)
{
    return QLatin1Char(reference) + QString::number(std::fabs(degrees), 'f', 6);
}

} // namespace

void shell::sleep(unsigned int ms)
{
    const QTime end = QTime::currentTime().addMSecs(int(ms));
    while (QTime::currentTime() < end)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 100);
}

MainWindows::MainWindows(QWidget *parent)
    : QDialog(parent), mUi(std::make_unique<Ui::MainWindows>())
{
    mUi->setupUi(this);
    setWindowTitle(APP_NAME);
    installMoving();
    mUi->wgt_ControlPanel->setFocusPolicy(Qt::StrongFocus);
    mPlaylistModel = new PlaylistModel(this);
    mUi->tbl_PlayListView->setPlaylist(mPlaylistModel);
    setupControlPanel();
    setAppName(APP_NAME);
    connectControlPanel();
    connectPlayArea();
    connectPlaylistAndSettings();
    restoreGeometryFromSettings();
}

MainWindows::~MainWindows()
{
    // Waiting for the workers processes events, which must not reach this window any more.
    mUi->wgt_PlayArea->disconnect(this);
    mUi->wgt_PlayArea->stop();
    mUi->wgt_PlayArea->forgetRows();
    mPlaylistModel->disconnect(this);
    delete mPlaylistModel;
    mPlaylistModel = nullptr;
}

void MainWindows::setAppName(const QString &name)
{
    mUi->lbl_Title->setFullText(name, pixelFont(QStringLiteral("Arial"), 15, QFont::Bold));
}

void MainWindows::setTitleFileName(const QString &name)
{
    mUi->lbl_FileName->setFullText(name, pixelFont(QStringLiteral("Calibri"), 13, QFont::Normal));
}

void MainWindows::openRecordings(const QList<QUrl> &urls)
{
    if (urls.isEmpty())
        return;
    const int first = mPlaylistModel->addDataByUrl(urls.first());
    for (const QUrl &url : urls)
        mPlaylistModel->addDataByUrl(url);
    playByData(mPlaylistModel->getRowData(first));
}

void MainWindows::playByData(const RowData *row)
{
    if (!row || !row->url.isValid())
        return;
    mUi->tbl_PlayListView->selectRow(row->id);
    mUi->wgt_PlayArea->stop();
    const RowData *related = mPlaylistModel->getRelateDataByMainData(*row);
    mUi->wgt_PlayArea->setPlayerNum(related ? 2 : 1);
    mUi->wgt_PlayArea->setResourceData(row, related);
    setTitleFileName(row->url.fileName(QUrl::FullyDecoded));
    clearGauges();
    mIsStopped = false;
    // Later, because clearing the map processes events: this may be the media backend's own
    // end-of-media handling, which has to finish before the next recording starts.
    const int rowId = row->id;
    const int round = ++mRound;
    QTimer::singleShot(0, this, [this, rowId, round] { clearAndAskForTelemetry(rowId, round); });
}

void MainWindows::clearAll()
{
    clearGauges();
    mUi->wgt_MapView->clearAll();
}

bool MainWindows::isSuportH264orH265(int row)
{
    constexpr int h264 = 1;
    constexpr int h265 = 2;
    constexpr int largestSoftwarePicture = 4000000; // pixels
    const ComputeInfo *computer = ComputeInfo::GetInstance();
    const int coding = mPlaylistModel->getVideoDecodeType(row);
    const QSize size = mPlaylistModel->getVideoSize(row);
    const bool hasHardware = computer->mCpuLevelH &&
                             (coding == h265 ? computer->isHDDecodeH265 : computer->isHDDecodeH264);
    if ((coding != h264 && coding != h265) || hasHardware ||
        qint64(size.width()) * size.height() <= largestSoftwarePicture)
        return true;
    const QString message =
        coding == h265
            ? tr("This computer cannot play this video because it does not have the video "
                 "playback support function required to play H.265 (HEVC).")
            : tr("This computer cannot play this video because it does not have the video "
                 "playback support function required to play H.264 (AVC).");
    QMessageBox::warning(nullptr, tr("Error") + QLatin1Char(' ') + computer->hardwareInfo, message);
    return false;
}

void MainWindows::onUpdateLanguage()
{
    mUi->retranslateUi(this);
    QCoreApplication::setApplicationName(APP_NAME);
    QCoreApplication::setOrganizationName(QObject::tr("Quellfern"));
    QCoreApplication::setApplicationVersion(APP_VERSION);
    setAppName(APP_NAME);
    setTitleFileName(QString()); // cleared by the form, until the next recording starts
    setWindowTitle(QCoreApplication::applicationName());
    showMaximizedState(); // the form knows one of the two tooltips only
    mUi->wgt_MapView->setMapType(Configuration::GetInstance()->maps());
}

void MainWindows::openFile()
{
    qDebug() << "open file--";
    const QList<QUrl> urls = askForRecordings();
    int lastRow = -1;
    for (const QUrl &url : urls) {
        if (!QFileInfo(url.toLocalFile()).isDir())
            lastRow = mPlaylistModel->addDataByUrl(url);
    }
    if (lastRow < 0)
        return;
    const QString folder = QFileInfo(urls.last().toLocalFile()).absolutePath();
    Configuration::GetInstance()->setVideoFilePath(folder);
    qDebug() << "all file count:" << lastRow;
    qDebug() << "select file count:" << urls.size();
    mUi->tbl_PlayListView->selectRow(lastRow - urls.size() + 1);
    onTableDoubleClicked(mUi->tbl_PlayListView->currentIndex());
}

void MainWindows::onDropFile(const QString &filePath)
{
    mUi->tbl_PlayListView->selectRow(mPlaylistModel->addDataByUrl(QUrl(filePath)));
    onTableDoubleClicked(mUi->tbl_PlayListView->currentIndex());
}

void MainWindows::onStop()
{
    mIsStopped = true;
    ++mRound;
    clearGauges();
    mUi->wgt_PlayArea->stop();
    mUi->wgt_ControlPanel->reinit();
    setTitleFileName(QString());
    QTimer::singleShot(0, this, &MainWindows::clearAll); // for the same reason as at a start
}

void MainWindows::playClicked()
{
    if (mUi->wgt_ControlPanel->state() == QMediaPlayer::PausedState) {
        mUi->wgt_PlayArea->play();
        return;
    }
    const QModelIndexList selected = mUi->tbl_PlayListView->selectionModel()->selectedRows();
    if (!selected.isEmpty())
        playByData(mPlaylistModel->getRowData(selected.first().row()));
}

void MainWindows::previousClicked()
{
    playByData(mPlaylistModel->getPreviousDataByCurrentUrl(mediaUrl(mUi->wgt_PlayArea->media())));
}

// Only the end of the list puts the control bar into its stopped look; its beginning does not.
void MainWindows::nextClicked()
{
    const QUrl current = mediaUrl(mUi->wgt_PlayArea->media());
    if (const RowData *next = mPlaylistModel->getNextDataByCurrentUrl(current))
        playByData(next);
    else
        mUi->wgt_ControlPanel->setStoped();
}

void MainWindows::durationChanged(qint64 duration)
{
    mUi->wgt_ControlPanel->setMaxDuration(int(duration / 1000));
}

void MainWindows::positionChanged(qint64 second, int rowId)
{
    mUi->wgt_ControlPanel->setCurrentPosition(int(second));
    mPlaylistModel->setCurPlayPosition(rowId, int(second));
}

void MainWindows::on_pBtn_Step_clicked()
{
    Setting(this).exec();
    // Told again, both show the speed in the unit that is set now.
    mUi->wgt_ControlPanel->setGpsSpeed(mUi->wgt_ControlPanel->gpsSpeed());
    mUi->wgt_Speed->setSpeed(mUi->wgt_Speed->speedKmh());
}

void MainWindows::on_pBtn_Minimize_clicked()
{
    qDebug() << "最小化--";
    showMinimized();
}

void MainWindows::on_pBtn_Maximize_clicked()
{
    if (isMaximized())
        showNormal();
    else
        showMaximized();
    showMaximizedState();
}

void MainWindows::on_pBtn_Close_clicked()
{
    close();
}

void MainWindows::onTableDoubleClicked(const QModelIndex &index)
{
    if (index.isValid())
        playByData(mPlaylistModel->getRowData(index.row()));
}

void MainWindows::onGpsDataChanged(int rowId, const GpsData &sample)
{
    ControlPanel *panel = mUi->wgt_ControlPanel;
    if (panel->state() == QMediaPlayer::StoppedState || !isPlayingRow(rowId))
        return;
    // Latitude first, whatever the name says: the bar reads like its placeholder.
    panel->setLongitudeAndLatitude(coordinateText(sample.latitudeRef, sample.latitude),
                                   coordinateText(sample.longitudeRef, sample.longitude));
    panel->setGpsDataTime(
        QDateTime::fromString(QLatin1String(sample.time), QStringLiteral("yyyyMMddhhmmss")));
    panel->setGpsSpeed(sample.speed);
    mUi->wgt_Speed->setSpeed(sample.speed);
    mUi->wgt_Direction->setDirection(int(sample.direction));
    mUi->gView_GyroChart->setCurAxis(sample.id);
    if (sample.longitude != 0.0 || sample.latitude != 0.0)
        mUi->wgt_MapView->addPoint({sample.id, sample.longitude, sample.latitude});
}

void MainWindows::onAllGpsDataParserFinished(int rowId, const QList<GpsData> &dataList)
{
    if (mIsStopped || !isPlayingRow(rowId) || !fillChart(rowId, dataList))
        return;
    mUi->wgt_PlayArea->play();
    showTrack(rowId, dataList);
}

void MainWindows::onKeyPressEvent(QKeyEvent *event)
{
    if (controlPlayback(event->key()))
        event->accept();
}

void MainWindows::onFullScreenChanged(bool fullScreen)
{
    mUi->wgt_MapView->setWebViewVisible(!fullScreen);
}

void MainWindows::keyPressEvent(QKeyEvent *event)
{
    qDebug() << "MainWindows::keyPressEvent" << event->key();
    if (event->key() == Qt::Key_Escape) {
        // Swallowed, as it must never close the window; a picture that fills the screen may have
        // lost the keyboard to this window.
        mUi->wgt_PlayArea->leaveFullScreen();
        event->accept();
    } else if (controlPlayback(event->key())) {
        event->accept();
    } else {
        QDialog::keyPressEvent(event);
    }
}

void MainWindows::closeEvent(QCloseEvent *event)
{
    mGeometry.store();
    // Whatever waits or is being filled ends now, and the program with it.
    mIsStopped = true;
    ++mRound;
    mUi->wgt_PlayArea->stop();
    mUi->wgt_MapView->dropTrack();
    event->accept();
}

void MainWindows::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    // The window manager may maximise or restore the window as well.
    if (event->type() == QEvent::WindowStateChange)
        showMaximizedState();
}

void MainWindows::installMoving()
{
    connect(MoveFilter::installMoveFilter(this, this), &MoveFilter::doubleClicked, this,
            &MainWindows::on_pBtn_Maximize_clicked);
    mUi->wgt_Grip->setEnabled(false);
    setSizeGripEnabled(true);
}

void MainWindows::setupControlPanel()
{
    ControlPanel *panel = mUi->wgt_ControlPanel;
    panel->setState(mUi->wgt_PlayArea->state());
    panel->setVolume(mUi->wgt_PlayArea->volume());
    panel->setMuted(panel->isMuted());
}

void MainWindows::connectControlPanel()
{
    const ControlPanel *panel = mUi->wgt_ControlPanel;
    const PlayAreaManager *area = mUi->wgt_PlayArea;
    connect(panel, &ControlPanel::pause, area, &PlayAreaManager::pause);
    connect(panel, &ControlPanel::changeVolume, area, &PlayAreaManager::setVolume);
    connect(panel, &ControlPanel::changeMuting, area, &PlayAreaManager::setMuted);
    connect(panel, &ControlPanel::changeRate, area, &PlayAreaManager::setPlaybackRate);
    connect(panel, &ControlPanel::screenshot, area, &PlayAreaManager::screenshot);
    connect(panel, &ControlPanel::sliderMoved, area, &PlayAreaManager::seek);
    connect(panel, &ControlPanel::sliderStatusChanged, area,
            &PlayAreaManager::onSliderStatusChanged);
    connect(panel, &ControlPanel::stop, this, &MainWindows::onStop);
    connect(panel, &ControlPanel::openFile, this, &MainWindows::openFile);
    connect(panel, &ControlPanel::play, this, &MainWindows::playClicked);
    connect(panel, &ControlPanel::previous, this, &MainWindows::previousClicked);
    connect(panel, &ControlPanel::next, this, &MainWindows::nextClicked);
}

void MainWindows::connectPlayArea()
{
    const ControlPanel *panel = mUi->wgt_ControlPanel;
    const PlayAreaManager *area = mUi->wgt_PlayArea;
    connect(area, &PlayAreaManager::stateChanged, panel, &ControlPanel::setState);
    connect(area, &PlayAreaManager::volumeChanged, panel, &ControlPanel::setVolume);
    connect(area, &PlayAreaManager::mutedChanged, panel, &ControlPanel::setMuted);
    connect(area, &PlayAreaManager::durationChanged, this, &MainWindows::durationChanged);
    connect(area, &PlayAreaManager::positionChanged, this, &MainWindows::positionChanged);
    connect(area, &PlayAreaManager::keyPressSignals, this, &MainWindows::onKeyPressEvent);
    connect(area, &PlayAreaManager::fullScreenChanged, this, &MainWindows::onFullScreenChanged);
    connect(area, &PlayAreaManager::dropFile, this, &MainWindows::onDropFile);
}

void MainWindows::connectPlaylistAndSettings()
{
    connect(mUi->tbl_PlayListView, &QTableView::doubleClicked, this,
            &MainWindows::onTableDoubleClicked);
    connect(mPlaylistModel, &PlaylistModel::gpsDataChanged, this, &MainWindows::onGpsDataChanged);
    connect(mPlaylistModel, &PlaylistModel::allGpsDataParserFinished, this,
            &MainWindows::onAllGpsDataParserFinished);
    connect(Configuration::GetInstance(), &Configuration::updateLanguage, this,
            &MainWindows::onUpdateLanguage);
    connect(Configuration::GetInstance(), &Configuration::mapsChanged, mUi->wgt_MapView,
            &MapWebView::setMapType);
}

void MainWindows::restoreGeometryFromSettings()
{
    if (Configuration::GetInstance()->getMainwindowsIsMaximize())
        on_pBtn_Maximize_clicked();
    mGeometry.restore();
}

void MainWindows::showMaximizedState()
{
    const bool maximized = isMaximized();
    mUi->pBtn_Maximize->setChecked(maximized);
    mUi->pBtn_Maximize->setToolTip(maximized ? tr("Restore Down") : tr("Maximize"));
}

QList<QUrl> MainWindows::askForRecordings()
{
    QFileDialog dialog(this, tr("Open Files"), Configuration::GetInstance()->videoFilePath(),
                       QStringLiteral("*.mov *.mp4 *.avi"));
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFiles);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedUrls() : QList<QUrl>();
}

bool MainWindows::controlPlayback(int key)
{
    switch (key) {
    case Qt::Key_Space:
        mUi->wgt_ControlPanel->playClicked();
        return true;
    case Qt::Key_Left:
        mUi->wgt_ControlPanel->setSliderMove(-1);
        return true;
    case Qt::Key_Right:
        mUi->wgt_ControlPanel->setSliderMove(1);
        return true;
    default:
        return false;
    }
}

/** Whether a delivery for this row is still wanted. */
bool MainWindows::isPlayingRow(int rowId) const
{
    const RowData *playing = mUi->wgt_PlayArea->mainRow();
    return rowId == (playing ? playing->id : -1);
}

void MainWindows::clearGauges()
{
    mUi->wgt_Speed->setSpeed(0);
    mUi->gView_GyroChart->clearAll();
}

void MainWindows::clearAndAskForTelemetry(int rowId, int round)
{
    if (round != mRound)
        return; // the later start or stop clears the displays
    clearAll();
    if (round == mRound)
        mPlaylistModel->updateAllGpsData(rowId);
}

/** Returns false when playback or another filling was begun, or all stopped, between two points. */
bool MainWindows::fillChart(int rowId, const QList<GpsData> &samples)
{
    const GyroCurve curve = gyroCurveOf(samples, mPlaylistModel->getCurPlayFileDuration(rowId),
                                        mPlaylistModel->getVideoframerate(rowId));
    const int round = mRound;
    const int filling = ++mFillings;
    mUi->gView_GyroChart->clearAll();
    mUi->gView_GyroChart->setAxisXRange(curve.xRange);
    for (const GyroData &point : curve.points) {
        mUi->gView_GyroChart->insertPoints(point);
        QCoreApplication::processEvents();
        if (round != mRound || filling != mFillings)
            return false;
    }
    return true;
}

void MainWindows::showTrack(int rowId, const QList<GpsData> &samples)
{
    QVector<QVector<double>> track;
    for (const GpsData &sample : samples)
        track.append({sample.longitude, sample.latitude});
    qDebug() << "获取某个视频的所有GPS数据，组数：" << track.size();
    const int filling = mFillings;
    mUi->wgt_MapView->loadAllGpsData(track);
    if (filling != mFillings)
        return; // A later recording's track has come in the meantime, and stays.
    delete mUi->wgt_MapView->userData(GPS_USER_DATA_ID);
    mUi->wgt_MapView->setUserData(GPS_USER_DATA_ID, new GPSUser(rowId, track));
    qDebug() << "本地存储每个视频的GPS数据" << track.size();
}
