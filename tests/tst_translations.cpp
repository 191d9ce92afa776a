// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "configuration.h"

#include <QtTest>

#include <algorithm>

namespace {

/** A text of the program, by its context and its English source. */
using Text = QPair<QString, QString>;

struct Translation
{
    QString text;
    QString type; ///< empty when finished
};

using Translations = QMap<Text, Translation>;

Translations translationsOf(const QString &path)
{
    Translations translations;
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        return translations;
    QXmlStreamReader xml(&file);
    QString context;
    QString source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("source"))
            source = xml.readElementText();
        else if (xml.name() == QLatin1String("translation")) {
            const QString type = xml.attributes().value(QStringLiteral("type")).toString();
            translations.insert({context, source}, {xml.readElementText(), type});
        }
    }
    return xml.hasError() ? Translations() : translations;
}

QStringList placeMarks(const QString &text)
{
    static const QRegularExpression Mark(QStringLiteral("%(?:L?\\d+|n)"));
    QStringList marks;
    QRegularExpressionMatchIterator match = Mark.globalMatch(text);
    while (match.hasNext())
        marks += match.next().captured();
    std::sort(marks.begin(), marks.end());
    return marks;
}

/** The blanks at both ends. */
QPair<QString, QString> margins(const QString &text)
{
    static const QRegularExpression Margins(QStringLiteral("^(\\s*).*?(\\s*)$"),
                                            QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = Margins.match(text);
    return {match.captured(1), match.captured(2)};
}

/** Whether it is the same in all languages: the makers' name, and what languages call themselves,
 *  as "(de)Deutsch ". */
bool isUntranslatable(const QString &source)
{
    static const QRegularExpression LanguageName(QStringLiteral("^\\([a-z]{2}(-[A-Z]{2})?\\)"));
    return source == QLatin1String("Quellfern") || source.contains(LanguageName);
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void complete_data();
    void complete();
    void buttonsOfQt();

private:
    QList<Text> mTexts; ///< of the program, as its code has them now
};

void TestTranslations::initTestCase()
{
    QCoreApplication::setApplicationName(QStringLiteral("Translations"));
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("all.ts"));
    const int status = QProcess::execute(QStringLiteral(LUPDATE),
                                         {QStringLiteral("-silent"), QStringLiteral("-locations"),
                                          QStringLiteral("none"), QStringLiteral(PROGRAM_SOURCES),
                                          QStringLiteral("-ts"), path});
    QCOMPARE(status, 0);
    mTexts = translationsOf(path).keys();
    QVERIFY(mTexts.contains({QStringLiteral("ControlPanel"), QStringLiteral("Play")}));
}

void TestTranslations::complete_data()
{
    QTest::addColumn<QString>("path");
    const QDir folder(QStringLiteral(TRANSLATIONS));
    const QStringList names = folder.entryList({QStringLiteral("*.ts")});
    QCOMPARE(names.size(), 11);
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << folder.filePath(name);
}

void TestTranslations::complete()
{
    QFETCH(QString, path);
    const Translations translations = translationsOf(path);
    for (const Text &text : mTexts)
        QVERIFY2(translations.contains(text), qPrintable(text.first + ": " + text.second));
    QCOMPARE(translations.size(), mTexts.size());
    for (auto it = translations.cbegin(); it != translations.cend(); ++it) {
        const QString source = it.key().second;
        const QString text = it->text;
        QVERIFY2(it->type.isEmpty() && !text.trimmed().isEmpty(), qPrintable(source));
        QVERIFY2(placeMarks(text) == placeMarks(source), qPrintable(text));
        QVERIFY2(margins(text) == margins(source), qPrintable(text));
        QVERIFY2(text == source || !isUntranslatable(source), qPrintable(text));
    }
}

/** The program's one translator carries the texts of Qt's dialogs as well. */
void TestTranslations::buttonsOfQt()
{
    for (int language = Chinese; language <= Korean; ++language) {
        Configuration::GetInstance()->setLanguage(Language_e(language));
        const bool isEnglish = language == EnglishUS || language == EnglishUK;
        const QString cancel = QCoreApplication::translate("QPlatformTheme", "Cancel");
        QVERIFY2((cancel == QLatin1String("Cancel")) == isEnglish, qPrintable(cancel));
    }
}

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
