#pragma once

#include "core/NumericText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>

namespace forcelab::test {

/// True where `actual` agrees with `expected` to the given share of its size; where 0 is expected,
/// to that much in itself.
inline testing::AssertionResult Near(double actual, double expected, double relative = 1e-9)
{
    const double allowed = relative * (expected == 0 ? 1 : std::abs(expected));
    if (std::abs(actual - expected) <= allowed) return testing::AssertionSuccess();
    return testing::AssertionFailure()
           << actual << " is not " << expected << " to " << relative << " of its size";
}

/// A number or a text with numbers, written with point and comma, in the separators of the
/// setting that the tests run in: "1,234.50" is "1.234,50" in the comma setting.
inline std::string Local(std::string text)
{
    if (Regional::Current.DecimalPoint == '.') return text;
    for (char& c : text) {
        if (c == '.')
            c = ',';
        else if (c == ',')
            c = '.';
    }
    return text;
}

} // namespace forcelab::test
