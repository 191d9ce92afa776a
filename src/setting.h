// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class Setting;
}

/**
 * The settings dialog: interface language, map provider, speed unit and screenshot folder. It
 * shows what is stored when it is made, and stores all four when the user saves; until then
 * nothing changes. To be run modally over the window given as parent. GUI thread only.
 */
class Setting : public QDialog
{
    Q_OBJECT

public:
    explicit Setting(QWidget *parent);
    ~Setting() override;

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private slots:
    void on_pBtn_Choose_clicked();
    void on_pBtn_OK_clicked();
    void on_pBtn_Cancel_clicked();

private:
    void styleControls();
    void installMoving();
    void showStoredValues();
    void retranslate();
    void showFonts();
    void placeOverParent();
    void confirmPlace();

    std::unique_ptr<Ui::Setting> mUi;
    bool mPlaceConfirmed = false; ///< since the dialog was shown last
};
