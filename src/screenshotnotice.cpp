// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "screenshotnotice.h"

#include "elidedlabel.h"

#include <QDir>

namespace {

constexpr int NoticeMs = 3000;

QString notice(const ScreenshotResult &result)
{
    const QString path = QDir::toNativeSeparators(result.path);
    switch (result.outcome) {
    case ScreenshotResult::Saved:
        break;
    case ScreenshotResult::NoFolder:
        return ScreenshotNotice::tr("No screenshot: the folder %1 cannot be created").arg(path);
    case ScreenshotResult::NoTool:
        return ScreenshotNotice::tr("No screenshot: the program %1 is missing").arg(path);
    case ScreenshotResult::NoImage:
        return ScreenshotNotice::tr("No screenshot: %1 could not be written").arg(path);
    }
    return ScreenshotNotice::tr("Screenshot saved: %1").arg(path);
}

} // namespace

ScreenshotNotice::ScreenshotNotice(ElidedLabel *label) : QObject(label), mLabel(label) {}

void ScreenshotNotice::begin()
{
    mResults.clear();
}

void ScreenshotNotice::tell(const ScreenshotResult &result)
{
    mResults.append(result);
    QStringList details;
    for (const ScreenshotResult &each : qAsConst(mResults))
        details.append(notice(each));
    details.removeDuplicates();
    mLabel->showNotice(summary(), details.join(QLatin1Char('\n')), NoticeMs);
}

QString ScreenshotNotice::summary() const
{
    for (const ScreenshotResult &result : mResults) {
        if (result.outcome != ScreenshotResult::Saved)
            return notice(result);
    }
    if (mResults.size() == 1)
        return notice(mResults.first());
    const QString folder = QFileInfo(mResults.last().path).path();
    return tr("Screenshots saved in %1").arg(QDir::toNativeSeparators(folder));
}
