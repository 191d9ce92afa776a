// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "limittable.h"

#include <QByteArray>

#include <cmath>
#include <cstdio>

namespace {

std::string verdict(double measured, double limit)
{
    if (std::isnan(measured))
        return "NOT MEASURED";
    return measured <= limit ? "ok" : "EXCEEDED";
}

} // namespace

std::string number(double value, int decimals)
{
    return QByteArray::number(value, 'f', decimals).toStdString();
}

void LimitTable::addFigure(const std::string &text)
{
    mRows.push_back(text);
}

void LimitTable::add(const std::string &text, double measured, double limit)
{
    char row[160];
    std::snprintf(row, sizeof row, "%-72s %7.2f  at most %6.2f  %s", text.c_str(), measured, limit,
                  verdict(measured, limit).c_str());
    mRows.push_back(row);
    mExceeded += measured <= limit ? 0 : 1;
}

bool LimitTable::print() const
{
    std::puts("");
    for (const std::string &row : mRows)
        std::puts(row.c_str());
    if (mExceeded > 0)
        std::printf("\nLimits not kept: %d\n", mExceeded);
    return mExceeded == 0;
}
