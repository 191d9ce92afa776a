// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fvideosurface.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QImage>

namespace {

// No picture of a road compresses that well.
constexpr double LeastPlausibleRatio = 0.005;
constexpr qint32 MaxAttempts = 3;

/** The picture in the mapped memory, which it does not own; null where its lines, which are taken
 *  to follow each other without gaps, would end behind that memory. */
QImage imageOver(const QVideoFrame &mapped)
{
    const QImage image(mapped.bits(), mapped.width(), mapped.height(),
                       QVideoFrame::imageFormatFromPixelFormat(mapped.pixelFormat()));
    return image.sizeInBytes() <= mapped.mappedBytes() ? image : QImage();
}

} // namespace

FVideoSurface::FVideoSurface(QObject *parent) : QAbstractVideoSurface(parent) {}

FVideoSurface::~FVideoSurface()
{
    qDebug() << "~FVideoSurface()";
}

QList<QVideoFrame::PixelFormat>
FVideoSurface::supportedPixelFormats(QAbstractVideoBuffer::HandleType type) const
{
    Q_UNUSED(type)
    return {QVideoFrame::Format_RGB32};
}

bool FVideoSurface::present(const QVideoFrame &frame)
{
    qDebug() << "FVideoSurface num:" << frame.width() << frame.height();
    QVideoFrame mapped(frame); // shares the memory
    if (mWritten || !mapped.map(QAbstractVideoBuffer::ReadOnly))
        return true;
    write(imageOver(mapped), mapped.mappedBytes());
    mapped.unmap();
    return true;
}

void FVideoSurface::write(const QImage &image, int mappedBytes)
{
    if (!image.save(mFilePath))
        qDebug() << "image save faild";
    const qint64 fileSize = QFileInfo(mFilePath).size();
    qDebug() << "present:" << image.sizeInBytes() << mappedBytes << fileSize;
    if (mappedBytes * LeastPlausibleRatio > fileSize)
        noteFailure();
    else
        mWritten = true;
}

void FVideoSurface::noteFailure()
{
    qDebug() << "Capture failed, ready try again" << mFailedAttempts;
    QFile::remove(mFilePath);
    ++mFailedAttempts;
    if (mFailedAttempts < MaxAttempts)
        return;
    qDebug() << "Capture file error, fileName:" << mFilePath;
    mWritten = true;
}
