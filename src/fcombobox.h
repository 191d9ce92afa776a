// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariant>
#include <QVector>
#include <QWidget>

#include <memory>

namespace Ui {
class FComboBox;
}

/**
 * A small stepper in place of a combo box: the current item's text, and two buttons that step
 * towards the first and the last item. Item texts are shown as given, not translated.
 */
class FComboBox : public QWidget
{
    Q_OBJECT

public:
    explicit FComboBox(QWidget *parent = nullptr);
    ~FComboBox() override;

    void addItem(const QString &text, const QVariant &value);
    /** Selects an item and emits activated(), even for the current one; an index outside the list
     *  is ignored. */
    void setCurrentIndex(int index);
    int currentIndex() const { return mCurrentIndex; }
    int count() const { return mItems.size(); }
    /** The item's data, whatever the role; invalid outside the list. */
    QVariant itemData(int index, int role = Qt::UserRole) const;

signals:
    void activated(int index);

public slots:
    void on_pBtn_Up_clicked();
    void on_pBtn_Down_clicked();
    void onUpdateLanguage();

private:
    struct Item
    {
        QString text;
        QVariant value;
    };

    void showCurrentItem();

    std::unique_ptr<Ui::FComboBox> mUi;
    QVector<Item> mItems;
    int mCurrentIndex = 0;
};
