// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shortcuts.h"

#include "controlpanel.h"
#include "mainwindows.h"
#include "playareamanager.h"
#include "playlistmenu.h"
#include "resumeoffer.h"

#include <QApplication>
#include <QHash>
#include <QKeyEvent>
#include <QKeySequence>
#include <QTableView>
#include <QTimer>

namespace {

constexpr int VolumeStepPercent = 5;

/** Whether keyboards differ in whether the key is reached with Shift. */
bool isPunctuation(int key)
{
    return key > Qt::Key_Space && key <= Qt::Key_AsciiTilde &&
           !(key >= Qt::Key_A && key <= Qt::Key_Z);
}

/** The Latin sign that a Russian keyboard bears on the same key; other keys are what they are. */
int latinKey(int key)
{
    static const QHash<int, int> Latin = {
        {0x0410, Qt::Key_F},      {0x041A, Qt::Key_R},           {0x0429, Qt::Key_O},
        {0x042C, Qt::Key_M},      {0x042B, Qt::Key_S},           {0x0411, Qt::Key_Comma},
        {0x042E, Qt::Key_Period}, {0x0425, Qt::Key_BracketLeft}, {0x042A, Qt::Key_BracketRight}};
    return Latin.value(key, key);
}

/** The key with the modifiers that matter, as in a key sequence. */
int keyWithModifiers(const QKeyEvent &event)
{
    Qt::KeyboardModifiers modifiers = event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier |
                                                           Qt::AltModifier | Qt::MetaModifier);
    if (isPunctuation(event.key()))
        modifiers &= ~Qt::ShiftModifier;
    return latinKey(event.key()) | int(modifiers);
}

bool isDialogOpen()
{
    return QApplication::activeModalWidget() || QApplication::activePopupWidget();
}

} // namespace

struct Shortcuts::Binding
{
    int key; // with its modifiers
    bool repeats;
    void (Shortcuts::*action)(); // null: one of those that have their own handling
    const char *description;
};

Shortcuts::Shortcuts(MainWindows *window, const Widgets &widgets)
    : QObject(window), mWindow(window), mWidgets(widgets)
{
    connect(widgets.area, &PlayAreaManager::otherKeyPressed, this, &Shortcuts::onOtherKeyPressed);
}

bool Shortcuts::controlPlayback(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Space:
        if (!event.isAutoRepeat())
            mWidgets.panel->playClicked();
        return true;
    case Qt::Key_Left:
        mWidgets.panel->setSliderMove(-1);
        return true;
    case Qt::Key_Right:
        mWidgets.panel->setSliderMove(1);
        return true;
    default:
        return false;
    }
}

bool Shortcuts::press(const QKeyEvent &event)
{
    if (controlPlayback(event))
        return true;
    if (isDialogOpen())
        return false;
    const int pressed = keyWithModifiers(event);
    for (const Binding &binding : bindings()) {
        if (binding.key != pressed || !binding.action)
            continue;
        if (binding.repeats || !event.isAutoRepeat())
            (this->*binding.action)();
        return true;
    }
    return false;
}

QVector<KeyList::Line> Shortcuts::lines()
{
    QVector<KeyList::Line> lines;
    for (const Binding &binding : bindings()) {
        const QString description = tr(binding.description);
        if (lines.isEmpty() || lines.last().description != description)
            lines.append({{}, description});
        QStringList &keys = lines.last().keys;
        if (!keys.contains(keyName(binding.key)))
            keys.append(keyName(binding.key));
    }
    return lines;
}

const QVector<Shortcuts::Binding> &Shortcuts::bindings()
{
    // clang-format off
    static const QVector<Binding> Table = {
        {Qt::Key_Space, false, nullptr, QT_TR_NOOP("Play or pause")},
        {Qt::Key_Left, true, nullptr, QT_TR_NOOP("Back or forward by a second")},
        {Qt::Key_Right, true, nullptr, QT_TR_NOOP("Back or forward by a second")},
        {Qt::Key_Comma, true, &Shortcuts::frameBack, QT_TR_NOOP("Back or forward by a picture, paused")},
        {Qt::Key_Period, true, &Shortcuts::frameOn, QT_TR_NOOP("Back or forward by a picture, paused")},
        {Qt::Key_Home, false, &Shortcuts::toStart, QT_TR_NOOP("Beginning or end of the recording")},
        {Qt::Key_End, false, &Shortcuts::toEnd, QT_TR_NOOP("Beginning or end of the recording")},
        {Qt::Key_PageUp, false, &Shortcuts::previous, QT_TR_NOOP("Previous or next recording")},
        {Qt::Key_PageDown, false, &Shortcuts::next, QT_TR_NOOP("Previous or next recording")},
        {Qt::CTRL | Qt::Key_Up, true, &Shortcuts::chooseAbove, QT_TR_NOOP("Choose a recording in the list")},
        {Qt::CTRL | Qt::Key_Down, true, &Shortcuts::chooseBelow, QT_TR_NOOP("Choose a recording in the list")},
        {Qt::Key_Return, false, &Shortcuts::playChosen, QT_TR_NOOP("Play the chosen recording")},
        {Qt::Key_Enter, false, &Shortcuts::playChosen, QT_TR_NOOP("Play the chosen recording")},
        {Qt::Key_Minus, false, &Shortcuts::slower, QT_TR_NOOP("Slower or faster")},
        {Qt::Key_Plus, false, &Shortcuts::faster, QT_TR_NOOP("Slower or faster")},
        {Qt::Key_BracketLeft, false, &Shortcuts::slower, QT_TR_NOOP("Slower or faster")},
        {Qt::Key_BracketRight, false, &Shortcuts::faster, QT_TR_NOOP("Slower or faster")},
        {Qt::Key_Up, true, &Shortcuts::louder, QT_TR_NOOP("Louder or quieter")},
        {Qt::Key_Down, true, &Shortcuts::quieter, QT_TR_NOOP("Louder or quieter")},
        {Qt::Key_M, false, &Shortcuts::toggleMute, QT_TR_NOOP("Sound off or on")},
        {Qt::Key_F, false, &Shortcuts::toggleFullScreen, QT_TR_NOOP("Full screen on or off")},
        {Qt::Key_F11, false, &Shortcuts::toggleFullScreen, QT_TR_NOOP("Full screen on or off")},
        {Qt::Key_Escape, false, nullptr, QT_TR_NOOP("Leave the full screen")},
        {Qt::Key_S, false, &Shortcuts::screenshot, QT_TR_NOOP("Take a screenshot")},
        {Qt::CTRL | Qt::Key_O, false, &Shortcuts::openFiles, QT_TR_NOOP("Open recordings")},
        {Qt::CTRL | Qt::SHIFT | Qt::Key_O, false, &Shortcuts::openFolder, QT_TR_NOOP("Open all recordings in a folder")},
        {Qt::Key_R, false, &Shortcuts::resume, QT_TR_NOOP("Continue the recording that is offered")},
        {Qt::Key_Menu, false, &Shortcuts::showListMenu, QT_TR_NOOP("Menu of the list")},
        {Qt::SHIFT | Qt::Key_F10, false, &Shortcuts::showListMenu, QT_TR_NOOP("Menu of the list")},
        {Qt::CTRL | Qt::Key_Comma, false, &Shortcuts::openSettings, QT_TR_NOOP("Settings")},
        {Qt::Key_F1, false, &Shortcuts::listKeys, QT_TR_NOOP("This list")},
        {Qt::Key_Question, false, &Shortcuts::listKeys, QT_TR_NOOP("This list")},
    };
    // clang-format on
    return Table;
}

QString Shortcuts::keyName(int key)
{
    if (key & Qt::CTRL)
        return tr("Ctrl") + QLatin1Char('+') + keyName(key & ~Qt::CTRL);
    if (key & Qt::SHIFT)
        return tr("Shift") + QLatin1Char('+') + keyName(key & ~Qt::SHIFT);
    switch (key) {
    case Qt::Key_Space:
        return tr("Space");
    case Qt::Key_Return:
    case Qt::Key_Enter: // which has the same name, on most keyboards
        return tr("Enter");
    case Qt::Key_Escape:
        return tr("Esc");
    case Qt::Key_Home:
        return tr("Home");
    case Qt::Key_End:
        return tr("End");
    case Qt::Key_PageUp:
        return tr("Page Up");
    case Qt::Key_PageDown:
        return tr("Page Down");
    case Qt::Key_Menu:
        return tr("Menu");
    case Qt::Key_Left:
        return QStringLiteral("\u2190");
    case Qt::Key_Up:
        return QStringLiteral("\u2191");
    case Qt::Key_Right:
        return QStringLiteral("\u2192");
    case Qt::Key_Down:
        return QStringLiteral("\u2193");
    default:
        return QKeySequence(key).toString();
    }
}

void Shortcuts::onOtherKeyPressed(QKeyEvent *event)
{
    if (press(*event))
        event->accept();
}

/** Not amid the key's event: the picture that has it may be taken away while the dialog is open.
 *  Of several that wait, only the first is shown. */
void Shortcuts::later(void (Shortcuts::*showDialog)())
{
    QTimer::singleShot(0, this, [this, showDialog] {
        if (!isDialogOpen())
            (this->*showDialog)();
    });
}

void Shortcuts::openFiles()
{
    later(&Shortcuts::showOpenDialog);
}

void Shortcuts::openFolder()
{
    later(&Shortcuts::showFolderDialog);
}

void Shortcuts::openSettings()
{
    later(&Shortcuts::showSettings);
}

void Shortcuts::listKeys()
{
    later(&Shortcuts::showKeys);
}

// The picture would hide the dialog of the window below it.
void Shortcuts::showOpenDialog()
{
    mWidgets.area->leaveFullScreen();
    mWindow->openFile();
}

void Shortcuts::showFolderDialog()
{
    mWidgets.area->leaveFullScreen();
    mWindow->openFolder();
}

void Shortcuts::showListMenu()
{
    if (!mWidgets.area->isPictureFullScreen())
        mWidgets.playlist->findChild<PlaylistMenu *>()->show();
}

void Shortcuts::resume()
{
    if (auto *offer = mWindow->findChild<ResumeOffer *>())
        offer->accept();
}

void Shortcuts::showSettings()
{
    mWidgets.area->leaveFullScreen();
    mWindow->on_pBtn_Step_clicked();
}

void Shortcuts::showKeys()
{
    QWidget *active = QApplication::activeWindow();
    auto *list = new KeyList(lines(), active ? active : mWindow);
    list->setAttribute(Qt::WA_DeleteOnClose);
    list->open();
}

void Shortcuts::toggleFullScreen()
{
    mWidgets.area->toggleFullScreen();
}

void Shortcuts::toggleMute()
{
    mWidgets.panel->toggleMute();
}

void Shortcuts::louder()
{
    mWidgets.panel->stepVolume(VolumeStepPercent);
}

void Shortcuts::quieter()
{
    mWidgets.panel->stepVolume(-VolumeStepPercent);
}

void Shortcuts::faster()
{
    mWidgets.panel->stepRate(1);
}

void Shortcuts::slower()
{
    mWidgets.panel->stepRate(-1);
}

void Shortcuts::previous()
{
    mWindow->previousClicked();
}

void Shortcuts::next()
{
    mWindow->nextClicked();
}

void Shortcuts::screenshot()
{
    emit mWidgets.panel->screenshot(); // as its button does
}

void Shortcuts::frameBack()
{
    mWidgets.area->stepFrames(-1);
}

void Shortcuts::frameOn()
{
    mWidgets.area->stepFrames(1);
}

void Shortcuts::toStart()
{
    mWidgets.area->seekToStart();
}

void Shortcuts::toEnd()
{
    mWidgets.area->seekToEnd();
}

void Shortcuts::chooseAbove()
{
    choose(-1);
}

void Shortcuts::chooseBelow()
{
    choose(1);
}

void Shortcuts::playChosen()
{
    const QModelIndexList chosen = mWidgets.playlist->selectionModel()->selectedRows();
    if (!chosen.isEmpty())
        mWindow->onTableDoubleClicked(chosen.first());
}

/** The list has no focus, so that Space and the arrows stay with playback. */
void Shortcuts::choose(int rows)
{
    const QModelIndexList chosen = mWidgets.playlist->selectionModel()->selectedRows();
    // Which does nothing beyond the ends of the list.
    mWidgets.playlist->selectRow(chosen.isEmpty() ? 0 : chosen.first().row() + rows);
}
