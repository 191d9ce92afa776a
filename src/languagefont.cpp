// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "languagefont.h"

#include <QFontInfo>
#include <QStringList>

namespace {

// Qt keeps each font with the first list of families that it was asked for with. What it keeps
// apart are fonts of different strategies: those listed here make no difference to fonts that are
// drawn from outlines, as all of today's are.
struct HanFont
{
    Language_e language;
    const char *family;
    int strategy;
};

constexpr HanFont HanFonts[] = {
    {Chinese, "Noto Sans CJK SC", QFont::PreferOutline},
    {ChineseTraditional, "Noto Sans CJK TC", QFont::PreferDevice},
    {Japanese, "Noto Sans CJK JP", QFont::PreferOutline | QFont::PreferDevice},
    {Korean, "Noto Sans CJK KR", QFont::PreferDefault | QFont::PreferOutline},
};

} // namespace

QFont languageFont(QFont font, Language_e language)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 13, 0)
    font.setFamilies({font.family()});
    font.setStyleStrategy(QFont::PreferDefault);
    for (const HanFont &han : HanFonts) {
        if (han.language != language)
            continue;
        // In the middle the font that stands for one that is missing: else Latin letters would be
        // taken from the next in the list as well.
        font.setFamilies(
            {font.family(), QFontInfo(QFont(font.family())).family(), QLatin1String(han.family)});
        font.setStyleStrategy(QFont::StyleStrategy(han.strategy));
    }
#else
    Q_UNUSED(language)
#endif
    return font;
}
