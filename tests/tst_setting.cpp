// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "configuration.h"
#include "setting.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include <initializer_list>

namespace {

/** Labels of 30 characters with a word that cannot be broken, and buttons of 13. */
class LongTexts : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        const bool isButton = QStringList({"choose", "Save", "Cancel"}).contains(text);
        if (qstrcmp(context, "Setting") != 0)
            return QString();
        return isButton ? "Durchsuchen ..." : "Geschwindigkeitseinheit waehlen";
    }
};

/** What is stored, in the order in which it is saved. */
QVariantList settings()
{
    Configuration *configuration = Configuration::GetInstance();
    return {int(configuration->language()), configuration->screenshotSavePath(),
            int(configuration->maps()), configuration->speedUnit()};
}

} // namespace

/** Saves only the languages that need no translation, which may not be there. */
class TestSetting : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void buildsWithoutWarnings();
    void opensWithStoredValues_data();
    void opensWithStoredValues();
    void savesUntouched_data();
    void savesUntouched();
    void savesInOrder();
    void leavingStoresNothing_data();
    void leavingStoresNothing();
    void choosesFolder_data();
    void choosesFolder();
    void tabOrder();
    void enter_data();
    void enter();
    void standsOverItsParent_data();
    void standsOverItsParent();
    void canBeDragged();
    void longTextsFit();

private:
    void store(const QByteArray &lines);
    QByteArray fileText() const;
    void open();
    void choose(int language, int maps, int speedUnit, const QString &folder) const;
    void click(const char *button) const
    {
        QTest::mouseClick(child<QPushButton>(button), Qt::LeftButton);
    }
    template <typename Widget>
    Widget *child(const char *name) const
    {
        return mDialog->findChild<Widget *>(name);
    }
    QVariantList shown() const;

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
    QVERIFY(QTest::qWaitForWindowActive(mParent.get()));
}

void TestSetting::cleanup()
{
    mDialog.reset();
    mParent.reset();
    Configuration::ReleaseInstance();
}

void TestSetting::store(const QByteArray &lines)
{
    Configuration::ReleaseInstance();
    QVERIFY(QDir().mkpath(QFileInfo(mPath).path()));
    QFile file(mPath);
    QVERIFY(file.open(QFile::WriteOnly) && file.write("[General]\n" + lines) > 0);
}

QByteArray TestSetting::fileText() const
{
    QFile file(mPath);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("no file");
}

void TestSetting::open()
{
    mDialog = std::make_unique<Setting>(mParent.get());
    mFinished = std::make_unique<QSignalSpy>(mDialog.get(), &QDialog::finished);
    mDialog->open();
    QVERIFY(QTest::qWaitForWindowActive(mDialog.get()));
    QTRY_VERIFY(QApplication::focusWidget());
}

void TestSetting::choose(int language, int maps, int speedUnit, const QString &folder) const
{
    child<QComboBox>("cBox_Language")->setCurrentIndex(language);
    child<QComboBox>("cBox_Maps")->setCurrentIndex(maps);
    child<QComboBox>("cBox_SpeedUnit")->setCurrentIndex(speedUnit);
    child<QLineEdit>("lEdit_SavePath")->setText(folder);
}

QVariantList TestSetting::shown() const
{
    return {child<QComboBox>("cBox_Language")->currentText(),
            child<QLineEdit>("lEdit_SavePath")->text(),
            child<QComboBox>("cBox_Maps")->currentText(),
            child<QComboBox>("cBox_SpeedUnit")->currentText()};
}

/** Qt only warns about slots named for no object and about pictures, and not about all of these. */
void TestSetting::buildsWithoutWarnings()
{
    Configuration::GetInstance();
    static QStringList warnings;
    const QtMessageHandler before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &text) { warnings.append(text); });
    Setting(nullptr).grab();
    qInstallMessageHandler(before);
    QCOMPARE(warnings, QStringList());
    open();
    for (const QWidget *widget : mDialog->findChildren<QWidget *>()) {
        for (const QString &part : widget->styleSheet().split("url(").mid(1))
            QVERIFY2(QFileInfo::exists(part.section(')', 0, 0)), qPrintable(part));
    }
}

void TestSetting::opensWithStoredValues_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QVariantList>("expected");
    QTest::newRow("first") << QByteArray("language=0\nmaps=0\nspeedUnit=0\nScreenshotSavePath=/a")
                           << QVariantList{QString::fromUtf8("(zh-CN)简体中文"), "/a", "Baidu Maps",
                                           "Km/h"};
    QTest::newRow("between") << QByteArray("language=8\nmaps=1\nspeedUnit=1\nScreenshotSavePath=")
                             << QVariantList{QString::fromUtf8("(ru)Pусский"), "", "Google Maps",
                                             "MP/h"};
    QTest::newRow("last") << QByteArray("language=12\nmaps=2\nScreenshotSavePath=/two words")
                          << QVariantList{QString::fromUtf8("(ko)한국어"), "/two words",
                                          "OpenStreetMap", "Km/h"};
    QTest::newRow("unknown") << QByteArray("language=20\nmaps=7\nspeedUnit=-4\n"
                                           "ScreenshotSavePath=/no/such/folder")
                             << QVariantList{"", "/no/such/folder", "", ""};
}

void TestSetting::opensWithStoredValues()
{
    QFETCH(QByteArray, stored);
    QFETCH(QVariantList, expected);
    store(stored);
    open();
    QCOMPARE(shown(), expected);
}

void TestSetting::savesUntouched_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QByteArray>("expected");
    const QByteArray all = "ScreenshotSavePath=/a\nlanguage=3\nmaps=1\nspeedUnit=1\n";
    QTest::newRow("as stored") << all << all;
    const QByteArray unknown = "ScreenshotSavePath=\nlanguage=20\nmaps=7\nspeedUnit=5\n";
    QTest::newRow("unknown values stay") << unknown << unknown;
    // The map provider that is the default counts as stored.
    QTest::newRow("defaults") << QByteArray("language=2\n")
                              << QByteArray("ScreenshotSavePath=HOME/Pictures/"
                                            "Talvor Player V1.6 20200828\n"
                                            "language=2\nspeedUnit=0\n");
}

void TestSetting::savesUntouched()
{
    QFETCH(QByteArray, stored);
    QFETCH(QByteArray, expected);
    store(stored);
    open();
    QSignalSpy languages(Configuration::GetInstance(), &Configuration::updateLanguage);
    QSignalSpy maps(Configuration::GetInstance(), &Configuration::mapsChanged);
    click("pBtn_OK");
    QCOMPARE(languages.size(), 1);
    QVERIFY(maps.isEmpty());
    QCOMPARE(*mFinished, QList<QVariantList>{{QDialog::Accepted}});
    QCOMPARE(fileText(),
             "[General]\n" + expected.replace("HOME", QFile::encodeName(mHome->path())));
}

/** With windows that process events when the language changes, and an impatient user. */
void TestSetting::savesInOrder()
{
    store("ScreenshotSavePath=/old\nlanguage=2\nmaps=2\nspeedUnit=0\n");
    open();
    choose(EnglishUK, MapGoogle, 1, "/new");
    QVector<QVariantList> stored;
    QString title;
    int maps = -1;
    LongTexts texts;
    const Configuration *configuration = Configuration::GetInstance();
    connect(configuration, &Configuration::updateLanguage, mDialog.get(), [&] {
        stored.append(settings());
        QCoreApplication::installTranslator(&texts);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape})
            QTest::keyClick(mDialog->windowHandle(), key);
        QCoreApplication::processEvents();
        title = child<QLabel>("lbl_Title")->text();
        maps = child<QComboBox>("cBox_Maps")->currentIndex();
    });
    connect(configuration, &Configuration::mapsChanged, mDialog.get(),
            [&] { stored.append(settings()); });
    click("pBtn_OK");
    QCoreApplication::removeTranslator(&texts);
    stored.append(settings());
    const QVector<QVariantList> expected{{3, "/old", 2, 0}, {3, "/new", 1, 0}, {3, "/new", 1, 1}};
    QCOMPARE(stored, expected);
    QVERIFY2(title.startsWith("Geschwindigkeit"), qPrintable(title)); // retranslated meanwhile
    QCOMPARE(maps, int(MapGoogle));
    QCOMPARE(*mFinished, QList<QVariantList>{{QDialog::Accepted}});
    QVERIFY(!mDialog->isVisible());
    QCOMPARE(fileText(), QByteArray("[General]\nScreenshotSavePath=/new\nlanguage=3\nmaps=1\n"
                                    "speedUnit=1\n"));
}

void TestSetting::leavingStoresNothing_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("cancelled") << QByteArray("pBtn_Cancel");
    QTest::newRow("closed") << QByteArray("pBtn_Close");
    QTest::newRow("escaped") << QByteArray();
}

void TestSetting::leavingStoresNothing()
{
    QFETCH(QByteArray, button);
    store("language=2\n");
    open();
    QSignalSpy languages(Configuration::GetInstance(), &Configuration::updateLanguage);
    choose(EnglishUK, MapGoogle, 1, "/new");
    if (button.isEmpty())
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    else
        click(button);
    QCOMPARE(*mFinished, QList<QVariantList>{{QDialog::Rejected}});
    QVERIFY(languages.isEmpty());
    QCOMPARE(fileText(), QByteArray("[General]\nlanguage=2\n"));
}

void TestSetting::choosesFolder_data()
{
    QTest::addColumn<QString>("chosen"); // below the home directory; none to cancel
    QTest::newRow("chosen") << QString("Pictures/shots");
    QTest::newRow("cancelled") << QString();
}

void TestSetting::choosesFolder()
{
    QFETCH(QString, chosen);
    store("ScreenshotSavePath=/old\n");
    open();
    QString start;
    QString title;
    QTimer::singleShot(0, mDialog.get(), [&] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        start = dialog->directory().path();
        title = dialog->windowTitle();
        dialog->findChild<QLineEdit *>()->setText(mHome->filePath(chosen));
        QMetaObject::invokeMethod(dialog, chosen.isEmpty() ? "reject" : "accept");
    });
    click("pBtn_Choose");
    QCOMPARE(start, mHome->filePath("Pictures"));
    QCOMPARE(title, QString("Open Directory"));
    QCOMPARE(child<QLineEdit>("lEdit_SavePath")->text(),
             chosen.isEmpty() ? "/old" : mHome->filePath(chosen));
    QVERIFY(mDialog->isVisible());
    QCOMPARE(fileText(), QByteArray("[General]\nScreenshotSavePath=/old\n"));
}

void TestSetting::tabOrder()
{
    open();
    QStringList order;
    for (int i = 0; i < 8; ++i) {
        order.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(order, QStringList({"cBox_Language", "cBox_Maps", "cBox_SpeedUnit", "lEdit_SavePath",
                                 "pBtn_Choose", "pBtn_OK", "pBtn_Cancel", "cBox_Language"}));
}

void TestSetting::enter_data()
{
    QTest::addColumn<QByteArray>("focus");
    QTest::addColumn<int>("result");
    for (const char *name :
         {"cBox_Language", "cBox_Maps", "cBox_SpeedUnit", "lEdit_SavePath", "pBtn_OK"})
        QTest::newRow(name) << QByteArray(name) << int(QDialog::Accepted);
    QTest::newRow("pBtn_Cancel") << QByteArray("pBtn_Cancel") << int(QDialog::Rejected);
}

void TestSetting::enter()
{
    QFETCH(QByteArray, focus);
    QFETCH(int, result);
    store("language=2\n");
    open();
    child<QPushButton>("pBtn_Cancel")->setFocus(); // as one who came back from there
    child<QWidget>(focus)->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(*mFinished, QList<QVariantList>{{result}});
}

void TestSetting::standsOverItsParent_data()
{
    QTest::addColumn<QPoint>("parent");
    QTest::addColumn<QPoint>("expected");
    // The parent has 800 x 600 pixels, the dialog 450 x 340, the screen 1600 x 1000.
    QTest::newRow("centred") << QPoint(400, 200) << QPoint(400 + 175, 200 + 130);
    QTest::newRow("at the lower right") << QPoint(1190, 690) << QPoint(1600 - 450, 1000 - 340);
    QTest::newRow("at the upper left") << QPoint(-390, -290) << QPoint(0, 0);
}

void TestSetting::standsOverItsParent()
{
    QFETCH(QPoint, parent);
    QFETCH(QPoint, expected);
    mParent->move(parent);
    for (int i = 0; i < 2; ++i) {
        open();
        QTRY_COMPARE(mDialog->geometry(), QRect(expected, QSize(450, 340)));
        // Only dialogs stay above their parent, and out of the list of windows.
        QCOMPARE(mDialog->windowType(), Qt::Dialog);
        QVERIFY(mDialog->windowFlags().testFlag(Qt::FramelessWindowHint));
        QCOMPARE(mDialog->windowHandle()->transientParent(), mParent->windowHandle());
    }
}

void TestSetting::canBeDragged()
{
    open();
    QTRY_COMPARE(mDialog->pos(), QPoint(575, 330));
    QWidget *title = child<QWidget>("lbl_Title");
    const QPoint held = title->mapToGlobal({3, 3});
    QCursor::setPos(held);
    QTest::mousePress(title, Qt::LeftButton, {}, {3, 3});
    QCursor::setPos(held + QPoint(-200, 50));
    QMouseEvent move(QEvent::MouseMove, {3, 3}, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(title, &move);
    QTest::mouseRelease(title, Qt::LeftButton, {}, {3, 3});
    QTRY_COMPARE(mDialog->pos(), QPoint(375, 380));
}

void TestSetting::longTextsFit()
{
    LongTexts texts;
    QCoreApplication::installTranslator(&texts);
    open();
    QCoreApplication::removeTranslator(&texts); // is not processed yet
    QCOMPARE(mDialog->size(), QSize(450, 340));
    QVERIFY(mDialog->layout()->totalMinimumSize().width() <= mDialog->width());
    for (const QLabel *label : mDialog->findChildren<QLabel *>()) {
        const int height = qMax(label->heightForWidth(label->width()), label->minimumHeight());
        QVERIFY2(label->height() >= height, qPrintable(label->objectName()));
        QVERIFY2(label->width() >= label->minimumSizeHint().width(),
                 qPrintable(label->objectName()));
    }
    for (const QPushButton *button : mDialog->findChildren<QPushButton *>()) {
        if (button->objectName() != "pBtn_Close")
            QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->text()));
    }
}

QTEST_MAIN(TestSetting)
#include "tst_setting.moc"
