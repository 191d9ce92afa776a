// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "configuration.h"
#include "controlpanel.h"
#include "directiontray.h"
#include "mainwindows.h"
#include "patience.h"
#include "setting.h"
#include "speedtray.h"

#include <QAccessible>
#include <QLabel>
#include <QtTest>

namespace {

/** What a screen reader says of something that the user can act on or read. */
struct Spoken
{
    QString name;
    QAccessible::Role role;
    bool isLabelled; ///< by another object, which is how boxes with a list get their names
};

/** Roles that are passed over, or that only hold others. Labels speak for themselves. */
constexpr QAccessible::Role Silent[] = {QAccessible::Client,     QAccessible::Dialog,
                                        QAccessible::StaticText, QAccessible::Grip,
                                        QAccessible::List,       QAccessible::Pane};

void collect(QAccessibleInterface *object, QMap<QString, Spoken> &spoken, const QString &path = {})
{
    if (object->state().invisible)
        return;
    const bool isSilent =
        std::find(std::begin(Silent), std::end(Silent), object->role()) != std::end(Silent);
    if (!isSilent || object->state().focusable)
        spoken[path] = {object->text(QAccessible::Name), object->role(),
                        !object->relations(QAccessible::Label).isEmpty()};
    for (int i = 0; i < object->childCount(); ++i)
        collect(object->child(i), spoken, path + QString("/%1").arg(i));
}

QMap<QString, Spoken> spokenBy(QWidget &window)
{
    QMap<QString, Spoken> spoken;
    collect(QAccessible::queryAccessibleInterface(&window), spoken);
    return spoken;
}

QSet<QString> translationsOf(const QString &english)
{
    QSet<QString> translations;
    for (const char *context :
         {"MainWindows", "ControlPanel", "FComboBox", "PlaylistModel", "Setting"})
        translations.insert(QCoreApplication::translate(context, english.toUtf8()));
    translations.remove(english);
    return translations;
}

void setLanguage(int language)
{
    Configuration::GetInstance()->setLanguage(Language_e(language));
    QCoreApplication::processEvents(); // the dialog and the gauge are told by an event
}

} // namespace

/** What screen readers are told of the main window and of the settings dialog. */
class TestAccessibility : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everythingHasAName();
    void namesFollowTheLanguage_data();
    void namesFollowTheLanguage();
    void readOuts();
    void stateOnRequest();

private:
    template <typename Widget = QWidget>
    Widget *child(const char *name) const
    {
        return mWindow->findChild<Widget *>(name);
    }
    QAccessibleInterface *spoken(const char *name) const
    {
        return QAccessible::queryAccessibleInterface(child(name));
    }

    std::unique_ptr<MainWindows> mWindow;
    std::unique_ptr<Setting> mDialog;
};

void TestAccessibility::initTestCase()
{
    QLoggingCategory::setFilterRules("*.debug=false");
    QCoreApplication::setOrganizationName("Quellfern");
    QCoreApplication::setApplicationName("Talvor Player V1.6 20200828");
    Configuration::GetInstance()->setMaps(MapBaidu); // which is not waited for
    Configuration::GetInstance()->setLanguage(EnglishUS);
    mWindow = std::make_unique<MainWindows>();
    mDialog = std::make_unique<Setting>(mWindow.get());
    mWindow->show();
    mDialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(mDialog.get(), PatienceMs));
}

void TestAccessibility::everythingHasAName()
{
    QCOMPARE(QAccessible::queryAccessibleInterface(mDialog.get())->text(QAccessible::Name),
             QStringLiteral("Settings"));
    int count = 0;
    for (QWidget *window :
         {static_cast<QWidget *>(mWindow.get()), static_cast<QWidget *>(mDialog.get())}) {
        const QMap<QString, Spoken> all = spokenBy(*window);
        for (auto it = all.cbegin(); it != all.cend(); ++it) {
            QVERIFY2(!it->name.isEmpty(), qPrintable(it.key()));
            QVERIFY2(it->role != QAccessible::ComboBox || it->isLabelled, qPrintable(it->name));
        }
        count += all.size();
    }
    // 13 buttons, 2 sliders, stepper, bar, video, table with 5 columns, map, 2 gauges and chart; in
    // the dialog 4 buttons, 3 boxes with 18 items, and a line.
    QCOMPARE(count, 28 + 26);
}

void TestAccessibility::namesFollowTheLanguage_data()
{
    QTest::addColumn<int>("language");
    for (int language = Chinese; language <= Korean; ++language)
        QTest::addRow("%d", language) << language;
}

void TestAccessibility::namesFollowTheLanguage()
{
    QFETCH(int, language);
    for (QWidget *window :
         {static_cast<QWidget *>(mWindow.get()), static_cast<QWidget *>(mDialog.get())}) {
        setLanguage(EnglishUS);
        const QMap<QString, Spoken> english = spokenBy(*window);
        setLanguage(language);
        const QMap<QString, Spoken> translated = spokenBy(*window);
        QCOMPARE(translated.size(), english.size());
        for (auto it = english.cbegin(); it != english.cend(); ++it) {
            const QSet<QString> expected = translationsOf(it->name);
            const QString name = translated[it.key()].name;
            QVERIFY2(expected.isEmpty() ? name == it->name : expected.contains(name),
                     qPrintable(it->name + ": " + name));
        }
    }
}

void TestAccessibility::readOuts()
{
    setLanguage(Russian);
    child<SpeedTray>("wgt_Speed")->setSpeed(100);
    static_cast<DirectionTray *>(child("wgt_Direction"))->setDirection(90);
    QCOMPARE(spoken("wgt_Speed")->text(QAccessible::Description), QStringLiteral("100 км/ч"));
    setLanguage(EnglishUS);
    QCOMPARE(spoken("wgt_Speed")->text(QAccessible::Description), QStringLiteral("100 km/h"));
    QCOMPARE(spoken("wgt_Direction")->text(QAccessible::Description), QStringLiteral("90°"));
    for (const auto &[label, meaning] : QMap<const char *, QString>{
             {"lbl_GpsDateTime", "Date and time"},
             {"pBtn_SP", "Speed"},
             {"lbl_LongitudeAndLatitude", "Coordinates"},
             {"lbl_PlayTime",
              "Elapsed and total time"}}.toStdMap()) {
        QCOMPARE(spoken(label)->role(), QAccessible::StaticText);
        QCOMPARE(spoken(label)->text(QAccessible::Name), child<QLabel>(label)->text());
        QCOMPARE(spoken(label)->text(QAccessible::Description), meaning);
    }
}

void TestAccessibility::stateOnRequest()
{
    auto *panel = static_cast<ControlPanel *>(child("wgt_ControlPanel"));
    const auto said = [&] { return spoken("wgt_ControlPanel")->text(QAccessible::Description); };
    QCOMPARE(said(), QStringLiteral("Stopped"));
    panel->setMaxDuration(83);
    panel->setState(QMediaPlayer::PlayingState);
    panel->setCurrentPosition(7);
    QCOMPARE(said(), QStringLiteral("Playing, 00:07 of 01:23"));
    panel->setMaxDuration(3700);
    panel->setState(QMediaPlayer::PausedState);
    QCOMPARE(said(), QStringLiteral("Paused, 00:00:07 of 01:01:40"));
    setLanguage(German);
    QCOMPARE(said(), QStringLiteral("Pause, 00:00:07 von 01:01:40"));
    setLanguage(EnglishUS);
    panel->setState(QMediaPlayer::StoppedState);
}

QTEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
