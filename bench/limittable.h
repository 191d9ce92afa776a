// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <limits>
#include <string>
#include <vector>

/** A figure in a row's text. */
std::string number(double value, int decimals);

/** In place of what could not be measured; exceeds every limit. */
constexpr double Unmeasured = std::numeric_limits<double>::quiet_NaN();

/** The measured figures beside their limits. */
class LimitTable
{
public:
    /** A figure without limit, as text. */
    void addFigure(const std::string &text);
    /** A figure that is at most @p limit; one that is not a number counts as exceeding it. */
    void add(const std::string &text, double measured, double limit);

    /** Prints all rows. Returns whether every limit is kept. */
    bool print() const;

private:
    std::vector<std::string> mRows;
    int mExceeded = 0;
};
