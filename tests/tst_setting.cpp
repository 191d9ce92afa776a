// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "configuration.h"
#include "languagefont.h"
#include "patience.h"
#include "setting.h"

#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

namespace {

/** Labels of 30 characters with a word that cannot be broken, and buttons of 13. */
class LongTexts : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        if (qstrcmp(context, "Setting") != 0)
            return QString();
        const bool isButton = QStringList({"choose", "Save", "Cancel"}).contains(text);
        return isButton ? "Durchsuchen ..." : "Geschwindigkeitseinheit waehlen";
    }
};

} // namespace

/** Saves only the languages that need no translation, which may not be there. */
class TestSetting : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void showsAndKeepsStoredValues_data();
    void showsAndKeepsStoredValues();
    void listsLanguagesInTheirFonts();
    void savesWhatWasChosenAtFirst();
    void savesInOrder();
    void tabOrder();
    void leaves_data();
    void leaves();
    void choosesFolder();
    void standsOverItsParentUntilDragged();

private:
    void open(const QByteArray &stored = "language=2\n");
    void choose(int language, int maps, int speedUnit, const QString &folder) const;
    QByteArray stored() const;
    template <typename Widget>
    Widget *child(const char *name) const
    {
        return mDialog->findChild<Widget *>(name);
    }
    void click(const char *button) const
    {
        QTest::mouseClick(child<QPushButton>(button), Qt::LeftButton);
    }

    std::unique_ptr<QTemporaryDir> mHome;
    QString mPath; ///< of the settings file
    std::unique_ptr<QWidget> mParent;
    std::unique_ptr<Setting> mDialog;
    std::unique_ptr<QSignalSpy> mFinished;
};

void TestSetting::initTestCase()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QCoreApplication::setApplicationName("Talvor Player V1.6 20200828");
    QCoreApplication::setOrganizationName("Quellfern");
    QLoggingCategory::setFilterRules("*.debug=false");
    QApplication::setFont(QFont("Calibri", 11));
    qRegisterMetaType<MapTypes>("MapTypes");
}

void TestSetting::init()
{
    mHome = std::make_unique<QTemporaryDir>();
    qputenv("HOME", QFile::encodeName(mHome->path()));
    qputenv("XDG_DATA_HOME", QFile::encodeName(mHome->filePath("data")));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(mHome->filePath("config")));
    QVERIFY(QDir(mHome->path()).mkpath("Pictures/shots"));
    mPath = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) +
            "/configuration.ini";
    mParent = std::make_unique<QWidget>(nullptr, Qt::Window | Qt::FramelessWindowHint);
    mParent->setGeometry(400, 200, 800, 600);
    mParent->show();
    QVERIFY(QTest::qWaitForWindowActive(mParent.get(), PatienceMs));
}

void TestSetting::cleanup()
{
    mDialog.reset();
    mParent.reset();
    Configuration::ReleaseInstance();
}

void TestSetting::open(const QByteArray &stored)
{
    Configuration::ReleaseInstance();
    QFile file(mPath);
    QVERIFY(QDir().mkpath(QFileInfo(mPath).path()));
    QVERIFY(file.open(QFile::WriteOnly) && file.write("[General]\n" + stored) > 0);
    file.close();
    mDialog = std::make_unique<Setting>(mParent.get());
    mFinished = std::make_unique<QSignalSpy>(mDialog.get(), &QDialog::finished);
    mDialog->open();
    QVERIFY(QTest::qWaitForWindowActive(mDialog.get(), PatienceMs));
    QTRY_VERIFY(QApplication::focusWidget());
}

void TestSetting::choose(int language, int maps, int speedUnit, const QString &folder) const
{
    child<QComboBox>("cBox_Language")->setCurrentIndex(language);
    child<QComboBox>("cBox_Maps")->setCurrentIndex(maps);
    child<QComboBox>("cBox_SpeedUnit")->setCurrentIndex(speedUnit);
    child<QLineEdit>("lEdit_SavePath")->setText(folder);
}

QByteArray TestSetting::stored() const
{
    QFile file(mPath);
    return file.open(QFile::ReadOnly) ? file.readAll().mid(int(qstrlen("[General]\n"))) : "no file";
}

void TestSetting::showsAndKeepsStoredValues_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QStringList>("shown");
    QTest::addColumn<QByteArray>("after");
    const QByteArray first = "ScreenshotSavePath=/a b\nlanguage=3\nmaps=0\nspeedUnit=1\n";
    QTest::newRow("first map") << first
                               << QStringList{"(en-GB)English", "/a b", "Baidu Maps", "MP/h"}
                               << first;
    const QByteArray unknown = "ScreenshotSavePath=\nlanguage=20\nmaps=7\nspeedUnit=-4\n";
    QTest::newRow("unknown") << unknown << QStringList{"", "", "", ""} << unknown;
    // The map provider that is the default counts as stored.
    const QByteArray folder = "HOME/Pictures/Talvor Player V1.6 20200828";
    QTest::newRow("defaults") << QByteArray("language=2\n")
                              << QStringList{"(en-US)English", folder, "OpenStreetMap", "Km/h"}
                              << "ScreenshotSavePath=" + folder + "\nlanguage=2\nspeedUnit=0\n";
}

void TestSetting::showsAndKeepsStoredValues()
{
    QFETCH(QByteArray, before);
    QFETCH(QStringList, shown);
    QFETCH(QByteArray, after);
    open(before);
    QCOMPARE(child<QComboBox>("cBox_Language")->currentText(), shown[0]);
    QCOMPARE(child<QLineEdit>("lEdit_SavePath")->text(), shown[1].replace("HOME", mHome->path()));
    QCOMPARE(child<QComboBox>("cBox_Maps")->currentText(), shown[2]);
    QCOMPARE(child<QComboBox>("cBox_SpeedUnit")->currentText(), shown[3]);
    click("pBtn_OK");
    QCOMPARE(stored(), after.replace("HOME", QFile::encodeName(mHome->path())));
}

/** The list has each language in its own Han characters. */
void TestSetting::listsLanguagesInTheirFonts()
{
    open();
    const auto *box = child<QComboBox>("cBox_Language");
    for (const Language_e language : {Chinese, Japanese, German})
        QCOMPARE(box->itemData(language, Qt::FontRole).value<QFont>(),
                 languageFont(mDialog->font(), language));
}

/** With windows that process events when the language changes, and an impatient user. */
void TestSetting::savesWhatWasChosenAtFirst()
{
    open("ScreenshotSavePath=/old\nlanguage=2\nmaps=2\nspeedUnit=0\n");
    choose(EnglishUK, MapGoogle, 1, "/new");
    LongTexts texts;
    QString title;
    connect(Configuration::GetInstance(), &Configuration::updateLanguage, mDialog.get(), [&] {
        QCoreApplication::installTranslator(&texts);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape})
            QTest::keyClick(mDialog->windowHandle(), key);
        QCoreApplication::processEvents();
        title = child<QLabel>("lbl_Title")->text();
        QVERIFY(QGuiApplication::overrideCursor());
        QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    });
    click("pBtn_OK");
    QCoreApplication::removeTranslator(&texts);
    QVERIFY2(title.startsWith("Geschwindigkeit"), qPrintable(title)); // retranslated meanwhile
    QVERIFY(!QGuiApplication::overrideCursor());
    QCOMPARE(child<QComboBox>("cBox_Maps")->currentIndex(), int(MapGoogle));
    QCOMPARE(*mFinished, QList<QVariantList>{{QDialog::Accepted}});
    QCOMPARE(stored(), QByteArray("ScreenshotSavePath=/new\nlanguage=3\nmaps=1\nspeedUnit=1\n"));
}

/** Each setting is in the file, and none behind it, when its change is announced. */
void TestSetting::savesInOrder()
{
    open("ScreenshotSavePath=/old\nlanguage=2\nmaps=2\nspeedUnit=0\n");
    choose(EnglishUK, MapGoogle, 1, "/new");
    QByteArrayList files;
    const auto note = [&] { files.append(stored()); };
    connect(Configuration::GetInstance(), &Configuration::updateLanguage, mDialog.get(), note);
    connect(Configuration::GetInstance(), &Configuration::mapsChanged, mDialog.get(), note);
    connect(mDialog.get(), &QDialog::accepted, mDialog.get(), note);
    click("pBtn_OK");
    QCOMPARE(files, QByteArrayList({"ScreenshotSavePath=/old\nlanguage=3\nmaps=2\nspeedUnit=0\n",
                                    "ScreenshotSavePath=/new\nlanguage=3\nmaps=1\nspeedUnit=0\n",
                                    "ScreenshotSavePath=/new\nlanguage=3\nmaps=1\nspeedUnit=1\n"}));
}

void TestSetting::tabOrder()
{
    open();
    child<QWidget>("cBox_Language")->setFocus();
    for (const char *next : {"cBox_Maps", "cBox_SpeedUnit", "lEdit_SavePath", "pBtn_Choose",
                             "pBtn_OK", "pBtn_Cancel", "cBox_Language"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->objectName(), QLatin1String(next));
    }
}

void TestSetting::leaves_data()
{
    QTest::addColumn<QByteArray>("focus");
    QTest::addColumn<Qt::Key>("key"); // none to click instead
    QTest::addColumn<bool>("isSaved");
    for (const char *name :
         {"cBox_Language", "cBox_Maps", "cBox_SpeedUnit", "lEdit_SavePath", "pBtn_OK"})
        QTest::newRow(name) << QByteArray(name) << Qt::Key_Return << true;
    QTest::newRow("Enter cancels") << QByteArray("pBtn_Cancel") << Qt::Key_Return << false;
    QTest::newRow("Escape") << QByteArray("lEdit_SavePath") << Qt::Key_Escape << false;
    QTest::newRow("cancelled") << QByteArray("pBtn_Cancel") << Qt::Key(0) << false;
    QTest::newRow("closed") << QByteArray("pBtn_Close") << Qt::Key(0) << false;
}

void TestSetting::leaves()
{
    QFETCH(QByteArray, focus);
    QFETCH(Qt::Key, key);
    QFETCH(bool, isSaved);
    open("language=2\n");
    choose(EnglishUK, MapGoogle, 1, "/new");
    child<QPushButton>("pBtn_Cancel")->setFocus(); // as one who came back from there
    child<QWidget>(focus)->setFocus();
    if (key)
        QTest::keyClick(QApplication::focusWidget(), key);
    else
        click(focus);
    const int result = isSaved ? QDialog::Accepted : QDialog::Rejected;
    QCOMPARE(*mFinished, QList<QVariantList>{{result}});
    const QByteArray saved = "ScreenshotSavePath=/new\nlanguage=3\nmaps=1\nspeedUnit=1\n";
    QCOMPARE(stored(), isSaved ? saved : "language=2\n");
}

void TestSetting::choosesFolder()
{
    open("ScreenshotSavePath=/old\n");
    QString start;
    for (const QString chosen : {"", "Pictures/shots"}) {
        QTimer::singleShot(0, mDialog.get(), [&] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            start = dialog->directory().path();
            dialog->findChild<QLineEdit *>()->setText(mHome->filePath(chosen));
            QMetaObject::invokeMethod(dialog, chosen.isEmpty() ? "reject" : "accept");
        });
        click("pBtn_Choose");
        QCOMPARE(start, mHome->filePath("Pictures"));
        QCOMPARE(child<QLineEdit>("lEdit_SavePath")->text(),
                 chosen.isEmpty() ? "/old" : mHome->filePath(chosen));
        QCOMPARE(child<QLineEdit>("lEdit_SavePath")->toolTip(),
                 child<QLineEdit>("lEdit_SavePath")->text());
    }
    QCOMPARE(stored(), QByteArray("ScreenshotSavePath=/old\n"));
}

/** And on the screen, which has 1600 x 1000 pixels; the parent has 800 x 600. */
void TestSetting::standsOverItsParentUntilDragged()
{
    open();
    QTRY_COMPARE(mDialog->geometry(), QRect(400 + 175, 200 + 130, 450, 340));
    // Only dialogs stay above their parent, and out of the list of windows.
    QCOMPARE(mDialog->windowType(), Qt::Dialog);
    QCOMPARE(mDialog->windowHandle()->transientParent(), mParent->windowHandle());
    mParent->move(1190, 690);
    open();
    QTRY_COMPARE(mDialog->pos(), QPoint(1600 - 450, 1000 - 340));

    QWidget *title = child<QWidget>("lbl_Title");
    QCursor::setPos(title->mapToGlobal({3, 3}));
    QTest::mousePress(title, Qt::LeftButton, {}, {3, 3});
    QCursor::setPos(title->mapToGlobal({3 - 200, 3 - 50}));
    QMouseEvent move(QEvent::MouseMove, {3, 3}, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(title, &move);
    QTRY_COMPARE(mDialog->pos(), QPoint(1600 - 450 - 200, 1000 - 340 - 50));
}

QTEST_MAIN(TestSetting)
#include "tst_setting.moc"
