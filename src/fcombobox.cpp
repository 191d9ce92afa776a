// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fcombobox.h"

#include "ui_fcombobox.h"

#include "configuration.h"

#include <QDebug>

FComboBox::FComboBox(QWidget *parent) : QWidget(parent), mUi(std::make_unique<Ui::FComboBox>())
{
    mUi->setupUi(this);
    mUi->pBtn_Up->setEnabled(false);
    mUi->pBtn_Down->setEnabled(false);
    connect(Configuration::GetInstance(), &Configuration::updateLanguage, this,
            &FComboBox::onUpdateLanguage);
}

FComboBox::~FComboBox() = default;

void FComboBox::addItem(const QString &text, const QVariant &value)
{
    mItems.append({text, value});
    if (mItems.size() - 1 > mCurrentIndex) {
        mUi->pBtn_Up->setEnabled(true);
        mUi->pBtn_Down->setEnabled(true);
    }
}

void FComboBox::setCurrentIndex(int index)
{
    if (index < 0 || index >= mItems.size())
        return;
    mCurrentIndex = index;
    showCurrentItem();
    emit activated(index);
}

QVariant FComboBox::itemData(int index, int) const
{
    return index >= 0 && index < mItems.size() ? mItems.at(index).value : QVariant();
}

void FComboBox::on_pBtn_Up_clicked()
{
    if (mCurrentIndex < 1)
        return;
    --mCurrentIndex;
    showCurrentItem();
    mUi->pBtn_Up->setEnabled(mCurrentIndex > 0);
    mUi->pBtn_Down->setEnabled(true);
    emit activated(mCurrentIndex);
}

void FComboBox::on_pBtn_Down_clicked()
{
    if (mCurrentIndex >= mItems.size() - 1)
        return;
    ++mCurrentIndex;
    qDebug() << mCurrentIndex << mItems.size();
    showCurrentItem();
    mUi->pBtn_Down->setEnabled(mCurrentIndex < mItems.size() - 1);
    mUi->pBtn_Up->setEnabled(true);
    emit activated(mCurrentIndex);
}

void FComboBox::onUpdateLanguage()
{
    mUi->retranslateUi(this);
    showCurrentItem();
    emit activated(mCurrentIndex);
}

void FComboBox::showCurrentItem()
{
    if (mCurrentIndex < mItems.size())
        mUi->lbl_Text->setText(mItems.at(mCurrentIndex).text);
}
