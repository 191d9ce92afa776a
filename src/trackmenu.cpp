// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "trackmenu.h"

#include "filedialogs.h"
#include "fix.h"
#include "playlistmodel.h"
#include "rowdata.h"
#include "tracksaving.h"

#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenu>
#include <QMessageBox>
#include <QStandardPaths>
#include <QWidget>

#include <cerrno>

TrackMenu::TrackMenu(QWidget *window, PlaylistModel *model) : QObject(window), mWindow(window)
{
    connect(model, &PlaylistModel::gpsDataChanged, this, &TrackMenu::onSample);
    connect(model, &PlaylistModel::modelReset, this, [this] { mRowId = -1; });
}

void TrackMenu::addEntries(QMenu *menu, const RowData *row)
{
    const QString recording = row ? row->url.toLocalFile() : QString();
    menu->addAction(tr("Save Track As…"), this, [this, recording] { ask(recording); })
        ->setEnabled(row);
    const QString position = positionText(mSample);
    menu->addAction(tr("Copy Position"), this,
                    [position] { QGuiApplication::clipboard()->setText(position); })
        ->setEnabled(row && row->id == mRowId && hasFix(mSample));
}

void TrackMenu::save(const QString &recording, const QString &fileName)
{
    const std::optional<TrackWriter::Format> format =
        TrackWriter::formatNamed(QFileInfo(fileName).suffix());
    const QString file =
        format ? fileName : fileName + QLatin1Char('.') + TrackWriter::nameOf(TrackWriter::Gpx);
    if (!format && QFileInfo::exists(file)) { // which the dialog has not asked about
        tellFailure(file, qt_error_string(EEXIST));
        return;
    }
    auto *saving = new TrackSaving(recording, file, format.value_or(TrackWriter::Gpx), this);
    connect(saving, &TrackSaving::finished, this, [this, saving] { onFinished(saving); });
    saving->start();
}

QString TrackMenu::positionText(const GpsData &sample)
{
    return QStringLiteral("%1, %2").arg(QString::number(sample.latitude, 'f', PositionDecimals),
                                        QString::number(sample.longitude, 'f', PositionDecimals));
}

/** Samples are sent of the row that is played. */
void TrackMenu::onSample(int rowId, const GpsData &sample)
{
    mRowId = rowId;
    mSample = sample;
}

void TrackMenu::ask(const QString &recording)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString name = QFileInfo(recording).completeBaseName() + QLatin1String(".gpx");
    const QString file =
        askForTrackFile(mWindow, tr("Save Track As…"), QDir(folder).filePath(name));
    if (!file.isEmpty())
        save(recording, file);
}

void TrackMenu::onFinished(TrackSaving *saving)
{
    saving->deleteLater();
    switch (saving->outcome()) {
    case TrackOutcome::Saved:
        emit saved(tr("Track saved: %1").arg(QDir::toNativeSeparators(saving->fileName())));
        break;
    case TrackOutcome::GivenUp:
        break;
    case TrackOutcome::Unreadable:
        tell(tr("The recording cannot be read."));
        break;
    case TrackOutcome::NoTelemetry:
        tell(tr("The recording has no telemetry."));
        break;
    case TrackOutcome::Unwritable:
        tellFailure(saving->fileName(), saving->reason());
        break;
    }
}

void TrackMenu::tellFailure(const QString &fileName, const QString &reason)
{
    tell(tr("The track cannot be written to %1: %2")
             .arg(QDir::toNativeSeparators(fileName), reason));
}

/** Playback goes on meanwhile. */
void TrackMenu::tell(const QString &text)
{
    auto *box = new QMessageBox(QMessageBox::Warning, mWindow->windowTitle(), text, QMessageBox::Ok,
                                mWindow);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}
