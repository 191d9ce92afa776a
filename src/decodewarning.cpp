// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "decodewarning.h"

#include "computeinfo.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QSize>

namespace {

constexpr int H264 = 1;
constexpr int H265 = 2;
constexpr int LargestSoftwarePicture = 4000000; // pixels

QString messageFor(int coding)
{
    return coding == H265 ? QCoreApplication::translate(
                                "MainWindows",
                                "This computer cannot play this video because it does not have the "
                                "video playback support function required to play H.265 (HEVC).")
                          : QCoreApplication::translate(
                                "MainWindows",
                                "This computer cannot play this video because it does not have the "
                                "video playback support function required to play H.264 (AVC).");
}

} // namespace

bool warnUnlessDecodable(int coding, const QSize &size)
{
    const ComputeInfo *computer = ComputeInfo::GetInstance();
    const bool hasHardware = computer->mCpuLevelH &&
                             (coding == H265 ? computer->isHDDecodeH265 : computer->isHDDecodeH264);
    if ((coding != H264 && coding != H265) || hasHardware ||
        qint64(size.width()) * size.height() <= LargestSoftwarePicture)
        return true;
    const QString title = QCoreApplication::translate("MainWindows", "Error");
    QMessageBox::warning(nullptr, title + QLatin1Char(' ') + computer->hardwareInfo,
                         messageFor(coding));
    return false;
}
