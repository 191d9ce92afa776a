// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "setting.h"

#include "ui_setting.h"

#include "configuration.h"
#include "filedialogs.h"
#include "languagefont.h"
#include "movefilter.h"

#include <QDir>
#include <QGuiApplication>
#include <QScreen>
#include <QShowEvent>
#include <QStandardPaths>
#include <QStyledItemDelegate>

namespace {

const char FieldStyle[] =
    "QComboBox, QLineEdit{color: rgb(230, 230, 230); background-color: rgb(44, 44, 52);"
    " border: 1px solid rgb(90, 90, 100); border-radius: 4px; padding: 0px 8px;"
    " selection-background-color: rgb(38, 153, 238); selection-color: rgb(20, 20, 20);"
    " combobox-popup: 0;}"
    "QComboBox:hover, QLineEdit:hover{border-color: rgb(130, 130, 140);}"
    "QComboBox:focus, QComboBox:on, QLineEdit:focus{border-color: rgb(38, 153, 238);}"
    "QComboBox:disabled, QLineEdit:disabled{color: rgb(130, 130, 140);}"
    "QComboBox::drop-down{subcontrol-origin: border; subcontrol-position: center right;"
    " width: 28px; border: none;}"
    "QComboBox::down-arrow{image: url(:/image/speeddown_normal.png); width: 16px; height: 16px;}"
    "QComboBox::down-arrow:on{image: url(:/image/speeddown_hover.png);}"
    "QComboBox QAbstractItemView{color: rgb(200, 200, 200); background-color: rgb(44, 44, 52);"
    " border: 1px solid rgb(90, 90, 100); outline: none;}"
    "QComboBox QAbstractItemView::item{min-height: 26px; padding: 0px 7px; border: none;}"
    "QComboBox QAbstractItemView::item:selected{color: rgb(250, 250, 250);"
    " background-color: rgb(73, 85, 114);}";

// The filled button is the one that Enter presses; the light frame is the keyboard's focus.
const char ButtonStyle[] =
    "QPushButton{color: rgb(230, 230, 230); background-color: rgb(78, 78, 88);"
    " border: 2px solid rgb(78, 78, 88); border-radius: 4px; padding: 0px 10px;"
    " outline: none;}"
    "QPushButton:hover{background-color: rgb(94, 94, 104); border-color: rgb(94, 94, 104);}"
    "QPushButton:pressed{background-color: rgb(36, 36, 42); border-color: rgb(36, 36, 42);}"
    "QPushButton:default{color: rgb(20, 20, 20); background-color: rgb(38, 153, 238);"
    " border-color: rgb(38, 153, 238);}"
    "QPushButton:default:hover{background-color: rgb(84, 178, 245);"
    " border-color: rgb(84, 178, 245);}"
    "QPushButton:default:pressed{background-color: rgb(28, 116, 181);"
    " border-color: rgb(28, 116, 181);}"
    "QPushButton:focus{border-color: rgb(240, 240, 240);}"
    "QPushButton:disabled{color: rgb(130, 130, 140); background-color: rgb(64, 64, 72);"
    " border-color: rgb(64, 64, 72);}";

/** What the user chose. A stored value that is not in the list shows as an empty selection, and is
 *  kept unless the user chooses another. */
int chosenIndex(const QComboBox &box, int stored)
{
    return box.currentIndex() < 0 ? stored : box.currentIndex();
}

} // namespace

Setting::Setting(QWidget *parent) : QDialog(parent), mUi(std::make_unique<Ui::Setting>())
{
    mUi->setupUi(this);
    styleControls();
    installMoving();
    showStoredValues();
    showFonts();
}

Setting::~Setting() = default;

void Setting::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    else if (event->type() == QEvent::ActivationChange && isActiveWindow())
        confirmPlace();
}

// Qt would leave room for a frame, which this window does not have.
void Setting::showEvent(QShowEvent *event)
{
    if (!event->spontaneous()) {
        placeOverParent();
        mPlaceConfirmed = false;
    }
    QDialog::showEvent(event);
}

void Setting::on_pBtn_Choose_clicked()
{
    const QString start = QStandardPaths::standardLocations(QStandardPaths::PicturesLocation)
                              .value(0, QDir::homePath());
    const QString folder = askForFolder(this, tr("Open Directory"), start);
    if (!folder.isEmpty())
        mUi->lEdit_SavePath->setText(folder);
}

void Setting::on_pBtn_OK_clicked()
{
    // Windows that follow a setting may process events before the setter returns: nothing that
    // happens here meanwhile must change what is stored, or save a second time.
    Configuration *configuration = Configuration::GetInstance();
    const int language = chosenIndex(*mUi->cBox_Language, configuration->language());
    const QString folder = mUi->lEdit_SavePath->text();
    const int maps = chosenIndex(*mUi->cBox_Maps, configuration->maps());
    const int speedUnit = chosenIndex(*mUi->cBox_SpeedUnit, configuration->speedUnit());
    setEnabled(false);
    QGuiApplication::setOverrideCursor(Qt::WaitCursor); // another map is waited for
    configuration->setLanguage(Language_e(language));
    configuration->setScreenshotSavePath(folder);
    configuration->setMaps(MapTypes(maps));
    configuration->setSpeedUnit(speedUnit);
    QGuiApplication::restoreOverrideCursor();
    accept();
    setEnabled(true);
}

// The form has connected the button to reject() already.
void Setting::on_pBtn_Cancel_clicked() {}

// Each control has its own style: one on the dialog would reach the folder chooser as well.
void Setting::styleControls()
{
    for (QComboBox *box : {mUi->cBox_Language, mUi->cBox_Maps, mUi->cBox_SpeedUnit}) {
        box->setStyleSheet(QLatin1String(FieldStyle));
        // Boxes use a delegate that ignores the style's rows.
        box->setItemDelegate(new QStyledItemDelegate(box));
    }
    mUi->lEdit_SavePath->setStyleSheet(QLatin1String(FieldStyle));
    for (QPushButton *button : {mUi->pBtn_Choose, mUi->pBtn_OK, mUi->pBtn_Cancel})
        button->setStyleSheet(QLatin1String(ButtonStyle));
    // The image says it; the text is for screen readers.
    QPalette invisibleText = mUi->pBtn_Close->palette();
    invisibleText.setColor(QPalette::ButtonText, Qt::transparent);
    mUi->pBtn_Close->setPalette(invisibleText);
}

// A dialog again, once it can be moved: the window manager keeps only dialogs above their parent,
// and out of the list of windows.
void Setting::installMoving()
{
    MoveFilter::installMoveFilter(this, this);
    setWindowFlag(Qt::Dialog);
}

void Setting::showStoredValues()
{
    // Most paths are longer than the field.
    connect(mUi->lEdit_SavePath, &QLineEdit::textChanged, mUi->lEdit_SavePath,
            &QWidget::setToolTip);
    Configuration *configuration = Configuration::GetInstance();
    mUi->lEdit_SavePath->setText(configuration->screenshotSavePath());
    mUi->cBox_Language->setCurrentIndex(configuration->language());
    mUi->cBox_Maps->setCurrentIndex(configuration->maps());
    mUi->cBox_SpeedUnit->setCurrentIndex(configuration->speedUnit());
}

// The form's texts select the first map provider.
void Setting::retranslate()
{
    const int maps = mUi->cBox_Maps->currentIndex();
    mUi->retranslateUi(this);
    mUi->cBox_Maps->setCurrentIndex(maps);
    showFonts();
}

/** The title in the interface's language, and in the list each language in its own. */
void Setting::showFonts()
{
    mUi->lbl_Title->setFont(
        languageFont(mUi->lbl_Title->font(), Configuration::GetInstance()->language()));
    for (int i = 0; i < mUi->cBox_Language->count(); ++i)
        mUi->cBox_Language->setItemData(i, languageFont(font(), Language_e(i)), Qt::FontRole);
}

void Setting::placeOverParent()
{
    if (!parentWidget())
        return;
    const QRect below = parentWidget()->window()->geometry();
    const QScreen *screen = QGuiApplication::screenAt(below.center());
    const QRect area = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    const QPoint corner = below.center() - rect().center();
    move(qMax(area.left(), qMin(corner.x(), area.right() + 1 - width())),
         qMax(area.top(), qMin(corner.y(), area.bottom() + 1 - height())));
}

// Under X11 the position that Qt notes while the window manager takes the window over may be that
// inside the manager's own frame, and the lists of the boxes would open elsewhere. Moving the
// window to its place once more makes it ask again.
void Setting::confirmPlace()
{
    if (mPlaceConfirmed)
        return;
    mPlaceConfirmed = true;
    placeOverParent();
}
