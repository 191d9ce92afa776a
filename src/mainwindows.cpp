// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "mainwindows.h"

#include "ui_mainwindows.h"

#include "accessiblerole.h"
#include "appname.h"
#include "configuration.h"
#include "decodewarning.h"
#include "filedialogs.h"
#include "gyrosampling.h"
#include "languagefont.h"
#include "mapreload.h"
#include "mediaurl.h"
#include "movefilter.h"
#include "openingplaces.h"
#include "pendingstart.h"
#include "playbacknotices.h"
#include "playlistadvance.h"
#include "playlistmodel.h"
#include "recordingopener.h"
#include "rowdata.h"
#include "screenshotnotice.h"
#include "seekbyclick.h"
#include "setting.h"
#include "shortcuts.h"
#include "telemetrydisplays.h"

#include <QDebug>
#include <QKeyEvent>
#include <QTime>
#include <QTimer>

namespace {

QFont pixelFont(const QString &family, int pixelSize, QFont::Weight weight)
{
    QFont font(family);
    font.setPixelSize(pixelSize);
    font.setWeight(weight);
    return languageFont(font, Configuration::GetInstance()->language());
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
    installAccessibleRoles();
    mUi->setupUi(this);
    setWindowTitle(APP_NAME);
    installMoving();
    mUi->wgt_ControlPanel->setFocusPolicy(Qt::StrongFocus);
    mPlaylistModel = new PlaylistModel(this);
    mUi->tbl_PlayListView->setPlaylist(mPlaylistModel);
    setupControlPanel();
    setupPlayback();
    setupOpening();
    mShortcuts =
        new Shortcuts(this, {mUi->wgt_ControlPanel, mUi->wgt_PlayArea, mUi->tbl_PlayListView});
    setAppName(APP_NAME);
    connectControlPanel();
    connectPlayArea();
    connectPlaylistAndSettings();
    restoreGeometryFromSettings();
}

MainWindows::~MainWindows()
{
    // Waiting for the workers processes events, which must not reach this window any more.
    mOpener->cancel();
    mUi->wgt_PlayArea->disconnect(this);
    mIsStopped = true;
    mPendingStart->drop();
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
    mOpener->open(urls);
}

void MainWindows::playByData(const RowData *row)
{
    if (!row || !row->url.isValid())
        return;
    mUi->tbl_PlayListView->selectRow(row->id);
    mUi->wgt_PlayArea->stop();
    mIsStopped = false;
    giveUpRound();
    mNotices->begin();
    mPendingStart->request(row);
    setTitleFileName(row->url.fileName(QUrl::FullyDecoded));
    mDisplays->clearRecording();
}

void MainWindows::clearAll()
{
    mDisplays->clearAll();
}

bool MainWindows::isSuportH264orH265(int row)
{
    return warnUnlessDecodable(mPlaylistModel->getVideoDecodeType(row),
                               mPlaylistModel->getVideoSize(row));
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
}

void MainWindows::openFile()
{
    qDebug() << "open file--";
    mOpener->openChosen(
        askForRecordings(this, tr("Open Files"), Configuration::GetInstance()->videoFilePath()));
}

void MainWindows::openFolder()
{
    Configuration *settings = Configuration::GetInstance();
    const QString folder = askForFolder(this, tr("Open Folder"), settings->videoFilePath());
    if (folder.isEmpty())
        return;
    settings->setVideoFilePath(folder);
    mOpener->open({QUrl::fromLocalFile(folder)});
}

void MainWindows::onDropFile(const QString &filePath)
{
    mOpener->open({QUrl(filePath)});
}

void MainWindows::clearList()
{
    mOpener->cancel();
    mPendingStart->drop();
    onStop();
    mUi->wgt_PlayArea->forgetRows();
    mPlaylistModel->clearAllData();
}

void MainWindows::onStop()
{
    mIsStopped = true;
    giveUpRound();
    mNotices->end();
    mDisplays->clearGauges();
    mUi->wgt_PlayArea->stop();
    mUi->wgt_ControlPanel->reinit();
    setTitleFileName(QString());
    // Later, because clearing the map processes events: this may be the media backend's own
    // end-of-media handling, which has to finish first.
    QTimer::singleShot(0, this, &MainWindows::clearAll);
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
    mAdvance->giveUp();
    playByData(mPlaylistModel->getPreviousDataByCurrentUrl(currentUrl()));
}

// Only the end of the list puts the control bar into its stopped look; its beginning does not.
void MainWindows::nextClicked()
{
    // The last whole second has begun, but the recording goes on to its end.
    if (mIsReportingPosition)
        return;
    mAdvance->giveUp();
    if (const RowData *next = mPlaylistModel->getNextDataByCurrentUrl(currentUrl()))
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
    mIsReportingPosition = true;
    mUi->wgt_ControlPanel->setCurrentPosition(int(second));
    mIsReportingPosition = false;
    mPlaylistModel->setCurPlayPosition(rowId, int(second));
}

void MainWindows::on_pBtn_Step_clicked()
{
    Setting(this).exec();
    mDisplays->showSpeedUnit();
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
    if (mUi->wgt_ControlPanel->state() != QMediaPlayer::StoppedState && isPlayingRow(rowId))
        mDisplays->showSample(sample);
}

void MainWindows::onAllGpsDataParserFinished(int rowId, const QList<GpsData> &dataList)
{
    if (mIsStopped || !isPlayingRow(rowId))
        return;
    mDisplays->setRecording(dataList);
    const GyroCurve curve = gyroCurveOf(dataList, mPlaylistModel->getCurPlayFileDuration(rowId),
                                        mPlaylistModel->getVideoframerate(rowId));
    if (!mDisplays->fillChart(curve))
        return;
    mSeekByClick->setRecording(dataList, curve.samplesPerPoint);
    // The worker has offered the first sample before, when there was nothing to show it beside.
    if (mUi->wgt_PlayArea->state() == QMediaPlayer::StoppedState)
        mFirstSample = dataList.mid(0, 1);
    mUi->wgt_PlayArea->play();
    mDisplays->showTrack(rowId, dataList);
}

void MainWindows::onPlaybackStateChanged(QMediaPlayer::State state)
{
    if (state != QMediaPlayer::PlayingState)
        return;
    const QList<GpsData> samples = std::exchange(mFirstSample, {});
    for (const GpsData &sample : samples)
        mDisplays->showSample(sample);
}

void MainWindows::onRecordingDue(const RowData *row)
{
    const RowData *related = mPlaylistModel->getRelateDataByMainData(*row);
    mUi->wgt_PlayArea->setPlayerNum(related ? 2 : 1);
    mUi->wgt_PlayArea->setResourceData(row, related);
    const int rowId = row->id;
    const int round = mRound;
    clearAll();
    if (round != mRound)
        return;
    mNotices->awaitTelemetry();
    mPlaylistModel->updateAllGpsData(rowId);
}

void MainWindows::onRecordingEnded()
{
    if (mIsStopped || mPendingStart->row())
        return;
    // What is wrong with the last one stays to be read. It has been stopped before.
    const bool hasFailed = mUi->wgt_PlayArea->mainPlayer()->loader()->hasFailed();
    if (!hasFailed || mPlaylistModel->getNextDataByCurrentUrl(currentUrl()))
        nextClicked();
}

void MainWindows::onKeyPressEvent(QKeyEvent *event)
{
    if (mShortcuts->controlPlayback(*event))
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
        if (mUi->wgt_PlayArea->isPictureFullScreen() || !mOpener->cancel())
            mUi->wgt_PlayArea->leaveFullScreen();
        event->accept();
    } else if (mShortcuts->press(*event)) {
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
    giveUpRound();
    mOpener->cancel();
    mPendingStart->drop();
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

void MainWindows::setupPlayback()
{
    mDisplays = std::make_unique<TelemetryDisplays>(
        TelemetryDisplays::Widgets{mUi->wgt_ControlPanel, mUi->wgt_Speed, mUi->wgt_Direction,
                                   mUi->gView_GyroChart, mUi->wgt_MapView});
    mPendingStart = new PendingStart(mUi->wgt_PlayArea, this);
    connect(mPendingStart, &PendingStart::due, this, &MainWindows::onRecordingDue);
    mSeekByClick = new SeekByClick(
        {mUi->wgt_ControlPanel, mUi->wgt_PlayArea, mUi->gView_GyroChart, mUi->wgt_MapView}, this);
    mNotices = new PlaybackNotices(mUi->wgt_PlayArea, this);
    mAdvance = new PlaylistAdvance(mUi->wgt_PlayArea, this);
    connect(mAdvance, &PlaylistAdvance::due, this, &MainWindows::onRecordingEnded);
}

void MainWindows::setupOpening()
{
    mOpener = new RecordingOpener(mPlaylistModel, mUi->lbl_FileName, this);
    connect(mOpener, &RecordingOpener::opened, this,
            [this](int row) { playByData(mPlaylistModel->getRowData(row)); });
    new OpeningPlaces(this, {mUi->wgt_ControlPanel, mUi->wgt_PlayArea, mUi->tbl_PlayListView},
                      mPlaylistModel, mOpener);
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
    connect(panel, &ControlPanel::pause, mAdvance, &PlaylistAdvance::giveUp);
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
    connect(area, &PlayAreaManager::stateChanged, this, &MainWindows::onPlaybackStateChanged);
    const auto *notice = new ScreenshotNotice(mUi->lbl_FileName);
    connect(panel, &ControlPanel::screenshot, notice, &ScreenshotNotice::begin);
    connect(area, &PlayAreaManager::screenshotDone, notice, &ScreenshotNotice::tell);
}

void MainWindows::connectPlaylistAndSettings()
{
    connect(mUi->tbl_PlayListView, &QTableView::doubleClicked, this,
            &MainWindows::onTableDoubleClicked);
    connect(mPlaylistModel, &PlaylistModel::gpsDataChanged, this, &MainWindows::onGpsDataChanged);
    connect(mPlaylistModel, &PlaylistModel::allGpsDataParserFinished, this,
            &MainWindows::onAllGpsDataParserFinished);
    connect(mPlaylistModel, &PlaylistModel::dataChanged, mNotices, &PlaybackNotices::refresh);
    connect(Configuration::GetInstance(), &Configuration::updateLanguage, this,
            &MainWindows::onUpdateLanguage);
    new MapReload(mUi->wgt_MapView); // first: a page of another provider makes its own needless
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
    mUi->pBtn_Maximize->setAccessibleName(mUi->pBtn_Maximize->toolTip());
}

/** Whether a delivery for this row is still wanted. */
bool MainWindows::isPlayingRow(int rowId) const
{
    if (mPendingStart->row())
        return false;
    const RowData *playing = mUi->wgt_PlayArea->mainRow();
    return rowId == (playing ? playing->id : -1);
}

/** What is before and after it in the list are the previous and the next recording. */
QUrl MainWindows::currentUrl() const
{
    const RowData *pending = mPendingStart->row();
    return pending ? pending->url : mediaUrl(mUi->wgt_PlayArea->media());
}

/** What was begun for the recording before does not go on. */
void MainWindows::giveUpRound()
{
    ++mRound;
    mAdvance->giveUp();
    mSeekByClick->forget();
    mDisplays->giveUpFilling();
    mFirstSample.clear();
}
