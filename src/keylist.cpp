// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "keylist.h"

#include "configuration.h"
#include "languagefont.h"
#include "movefilter.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int TitleHeight = 40;
constexpr int CloseButtonSize = 24;
constexpr int KeyMinWidth = 26;
constexpr int KeySpacing = 6;
constexpr int ColumnSpacing = 24;
constexpr int LineSpacing = 4;

const char CloseStyle[] = "QPushButton{border-image: url(:/image/close_normal.png);}"
                          "QPushButton:hover{border-image: url(:/image/close_hover.png);}"
                          "QPushButton:pressed{border-image: url(:/image/close_pressed.png);}";

const char KeyStyle[] =
    "color: rgb(240, 240, 240); background-color: rgb(44, 44, 52);"
    " border: 1px solid rgb(110, 110, 120); border-radius: 4px; padding: 1px 6px;";

QLabel *createKey(const QString &name)
{
    auto *key = new QLabel(name);
    key->setTextFormat(Qt::PlainText);
    key->setAlignment(Qt::AlignCenter);
    key->setMinimumWidth(KeyMinWidth);
    key->setStyleSheet(QLatin1String(KeyStyle));
    return key;
}

QLayout *createKeys(const QStringList &names)
{
    auto *layout = new QHBoxLayout;
    layout->setSpacing(KeySpacing);
    for (const QString &name : names)
        layout->addWidget(createKey(name));
    layout->addStretch();
    return layout;
}

} // namespace

KeyList::KeyList(const QVector<Line> &lines, QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("KeyList"));
    setStyleSheet(QStringLiteral("QDialog#KeyList{background-color: rgb(20, 20, 20);}"));
    setWindowTitle(tr("Keys"));
    setAccessibleName(windowTitle());
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    layout->addWidget(createTitle());
    layout->addWidget(createTable(lines));
    layout->setSizeConstraint(QLayout::SetFixedSize);
    MoveFilter::installMoveFilter(this, this);
    setWindowFlag(Qt::Dialog); // above its parent, and out of the list of windows
}

QWidget *KeyList::createTitle()
{
    auto *title = new QWidget;
    title->setFixedHeight(TitleHeight);
    auto *text = new QLabel(windowTitle());
    text->setStyleSheet(QStringLiteral("color: rgb(240, 240, 240);"));
    text->setFont(
        languageFont(QFont(QStringLiteral("Arial"), 12), Configuration::GetInstance()->language()));
    auto *close = new QPushButton;
    close->setFixedSize(CloseButtonSize, CloseButtonSize);
    close->setFocusPolicy(Qt::NoFocus);
    close->setStyleSheet(QLatin1String(CloseStyle));
    close->setToolTip(tr("Close"));
    close->setAccessibleName(tr("Close"));
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    auto *layout = new QHBoxLayout(title);
    layout->setContentsMargins(16, 0, 11, 0);
    layout->addWidget(text, 1);
    layout->addWidget(close);
    return title;
}

QWidget *KeyList::createTable(const QVector<Line> &lines)
{
    auto *table = new QWidget;
    table->setObjectName(QStringLiteral("keyTable"));
    table->setStyleSheet(QStringLiteral("QWidget#keyTable{background-color: rgb(64, 64, 72);}"
                                        "QLabel{color: rgb(230, 230, 230);}"));
    auto *layout = new QGridLayout(table);
    layout->setContentsMargins(16, 12, 16, 14);
    layout->setHorizontalSpacing(ColumnSpacing);
    layout->setVerticalSpacing(LineSpacing);
    for (int row = 0; row < lines.size(); ++row) {
        auto *description = new QLabel(lines.at(row).description);
        layout->addLayout(createKeys(lines.at(row).keys), row, 0);
        layout->addWidget(description, row, 1);
    }
    return table;
}
