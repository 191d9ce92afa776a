// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "screenshotresult.h"

#include <QObject>
#include <QVector>

class ElidedLabel;

/**
 * Tells the user for three seconds where a screenshot lies, or why there is none. The images that
 * both cameras give for one request are told together; a failure comes before a success.
 *
 * GUI thread only. A child of the label in which it tells.
 */
class ScreenshotNotice : public QObject
{
    Q_OBJECT

public:
    explicit ScreenshotNotice(ElidedLabel *label);

public slots:
    /** A request begins: what comes from here on is told by itself. */
    void begin();
    void tell(const ScreenshotResult &result);

private:
    QString summary() const;

    ElidedLabel *mLabel = nullptr; // the parent
    QVector<ScreenshotResult> mResults;
};
