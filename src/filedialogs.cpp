// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "filedialogs.h"

#include <QDir>
#include <QFileDialog>

namespace {

// Cameras write their suffixes in capitals, and the dialogs of some desktops tell case apart. The
// part in parentheses is what files are compared with; only the part before it is shown.
const char RecordingsFilter[] = "*.mov *.mp4 *.avi (*.[mM][oO][vV] *.[mM][pP]4 *.[aA][vV][iI])";

const char TrackFilters[] = "GPX (*.gpx);;CSV (*.csv);;GeoJSON (*.geojson);;JSON (*.json)";

QString nearestExisting(QString folder)
{
    folder = QDir::cleanPath(folder);
    while (!folder.isEmpty() && !QFileInfo(folder).isDir()) {
        const QString above = QFileInfo(folder).path();
        if (above == folder)
            break;
        folder = above;
    }
    return folder;
}

} // namespace

QList<QUrl> askForRecordings(QWidget *parent, const QString &title, const QString &startFolder)
{
    QFileDialog dialog(parent, title, nearestExisting(startFolder));
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilter(QLatin1String(RecordingsFilter));
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFiles);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedUrls() : QList<QUrl>();
}

QString askForFolder(QWidget *parent, const QString &title, const QString &startFolder)
{
    return QFileDialog::getExistingDirectory(parent, title, nearestExisting(startFolder),
                                             QFileDialog::ShowDirsOnly |
                                                 QFileDialog::DontResolveSymlinks);
}

QString askForTrackFile(QWidget *parent, const QString &title, const QString &file)
{
    QFileDialog dialog(parent, title, nearestExisting(QFileInfo(file).path()),
                       QLatin1String(TrackFilters));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.selectFile(QFileInfo(file).fileName());
    const auto useSuffix = [&dialog](const QString &filter) {
        dialog.setDefaultSuffix(filter.section(QLatin1String("*."), 1).chopped(1));
    };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, useSuffix);
    useSuffix(dialog.selectedNameFilter());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
