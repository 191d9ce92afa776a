// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "resumeoffer.h"

#include "elidedlabel.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTime>

namespace {

constexpr int Height = 28;
constexpr int CloseSize = 16;
constexpr int MsPerHour = 60 * 60 * 1000;

const char OfferStyle[] =
    "QWidget#resumeOffer{background-color: rgb(54, 54, 62);}"
    "QLabel{color: rgb(230, 230, 230);}"
    "QPushButton#btn_Continue{color: rgb(250, 250, 250); background-color: rgb(73, 85, 114);"
    " border: none; border-radius: 3px; padding: 2px 12px;}"
    "QPushButton#btn_Continue:hover{background-color: rgb(38, 153, 238);}"
    "QPushButton#btn_Decline{border-image: url(:/image/close_normal.png);}"
    "QPushButton#btn_Decline:hover{border-image: url(:/image/close_hover.png);}"
    "QPushButton#btn_Decline:pressed{border-image: url(:/image/close_pressed.png);}";

QString clockText(qint64 ms)
{
    const QString format = ms < MsPerHour ? QStringLiteral("mm:ss") : QStringLiteral("hh:mm:ss");
    return QTime(0, 0).addMSecs(int(ms % (24 * MsPerHour))).toString(format);
}

QPushButton *createButton(const char *name)
{
    auto *button = new QPushButton;
    button->setObjectName(QLatin1String(name));
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoDefault(false);
    return button;
}

} // namespace

ResumeOffer::ResumeOffer(const QString &fileName, qint64 positionMs, QWidget *parent)
    : QWidget(parent)
    , mFileName(fileName)
    , mPositionMs(positionMs)
    , mQuestion(new ElidedLabel)
    , mContinue(createButton("btn_Continue"))
    , mDecline(createButton("btn_Decline"))
{
    setObjectName(QStringLiteral("resumeOffer"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QLatin1String(OfferStyle));
    setFixedHeight(Height);
    mDecline->setFixedSize(CloseSize, CloseSize);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 2, 8, 2);
    layout->addWidget(mQuestion, 1);
    layout->addWidget(mContinue);
    layout->addWidget(mDecline);
    connect(mContinue, &QPushButton::clicked, this, &ResumeOffer::accept);
    connect(mDecline, &QPushButton::clicked, this, &ResumeOffer::decline);
    retranslate();
}

void ResumeOffer::accept()
{
    decline();
    emit accepted();
}

void ResumeOffer::decline()
{
    hide();
    deleteLater();
}

void ResumeOffer::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void ResumeOffer::retranslate()
{
    mQuestion->setFullText(tr("Continue %1 at %2?").arg(mFileName, clockText(mPositionMs)), font());
    mContinue->setText(tr("Continue"));
    mContinue->setToolTip(tr("Continue (R)"));
    mDecline->setToolTip(tr("Dismiss"));
    mDecline->setAccessibleName(mDecline->toolTip());
}
