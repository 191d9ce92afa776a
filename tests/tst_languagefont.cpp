// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "languagefont.h"

#include <QFontMetrics>
#include <QPainter>
#include <QtTest>

namespace {

/** The text in a font, 30 pixels high; as narrow as it is. */
QImage drawn(QFont font, const QString &text)
{
    font.setPixelSize(30);
    QImage image(QFontMetrics(font).horizontalAdvance(text), 60, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(font);
    painter.drawText(0, 45, text);
    return image;
}

} // namespace

class TestLanguageFont : public QObject
{
    Q_OBJECT

private slots:
    void hanCharacters();
};

/** Against the fonts of the languages themselves; there and back, as a user may change them. */
void TestLanguageFont::hanCharacters()
{
    const QMap<Language_e, QString> fonts{{Chinese, "Noto Sans CJK SC"},
                                          {ChineseTraditional, "Noto Sans CJK TC"},
                                          {Japanese, "Noto Sans CJK JP"},
                                          {Korean, "Noto Sans CJK KR"}};
    const QString latin = QStringLiteral("km/h");
    const QString han = QStringLiteral("骨今令"); // which no two of the three draw alike
    QVERIFY(drawn(fonts[Chinese], han) != drawn(fonts[ChineseTraditional], han));
    QVERIFY(drawn(fonts[Chinese], han) != drawn(fonts[Japanese], han));
    QVERIFY(drawn(fonts[ChineseTraditional], han) != drawn(fonts[Japanese], han));
    QFont font(QStringLiteral("Calibri"), 11, QFont::Bold);
    for (const Language_e language :
         {Chinese, Japanese, EnglishUS, ChineseTraditional, Korean, Chinese, German, Japanese}) {
        font = languageFont(font, language);
        QCOMPARE(font.family(), QStringLiteral("Calibri"));
        QCOMPARE(font.pointSize(), 11);
        QCOMPARE(drawn(font, latin), drawn(QFont("Calibri", 11, QFont::Bold), latin));
        if (fonts.contains(language))
            QCOMPARE(drawn(font, han), drawn(QFont(fonts[language], 11, QFont::Bold), han));
    }
}

QTEST_MAIN(TestLanguageFont)
#include "tst_languagefont.moc"
