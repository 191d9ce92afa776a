// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractVideoSurface>
#include <QString>

class QImage;

/**
 * A sink for video frames that writes one of them to an image file. Decoders may deliver blank
 * frames at first: one whose file is implausibly small is removed, and the next frame is tried,
 * three in all. After that, or after an image is written, all frames are ignored; another image
 * needs another surface.
 *
 * No player is attached to it: the players draw for themselves, and their screenshots are made by
 * CaptureThread. May be used on any one thread.
 */
class FVideoSurface : public QAbstractVideoSurface
{
    Q_OBJECT

public:
    explicit FVideoSurface(QObject *parent = nullptr);
    ~FVideoSurface() override;

    /** The image to write; its suffix tells the format. Empty at first: nothing can be written. */
    void setFilePath(const QString &path) { mFilePath = path; }

    QList<QVideoFrame::PixelFormat>
    supportedPixelFormats(QAbstractVideoBuffer::HandleType type) const override;
    /** Always true, also for a frame that cannot be mapped, which is ignored, or written. */
    bool present(const QVideoFrame &frame) override;

private:
    void write(const QImage &image, int mappedBytes);
    void noteFailure();

    bool mWritten = false; // or given up
    QString mFilePath;
    qint32 mFailedAttempts = 0;
};
