// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class ElidedLabel;
class QPushButton;

/**
 * A line below the playlist that offers to go on with a recording where it was left. It takes no
 * focus, waits for nobody, and goes when it is accepted or declined.
 *
 * GUI thread only.
 */
class ResumeOffer : public QWidget
{
    Q_OBJECT

public:
    ResumeOffer(const QString &fileName, qint64 positionMs, QWidget *parent = nullptr);

public slots:
    void accept();
    void decline();

signals:
    void accepted();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    QString mFileName;
    qint64 mPositionMs;
    ElidedLabel *mQuestion = nullptr; // children
    QPushButton *mContinue = nullptr;
    QPushButton *mDecline = nullptr;
};
