#pragma once

#include "support/Arithmetic.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <sstream>
#include <string>

namespace forcelab::test {

/// True for a term that holds numbers and functions but no names.
inline bool IsNumeric(std::string term)
{
    for (const std::string word : {"sin", "cos", "atan", "E-", "E+"})
        for (std::size_t at = 0; (at = term.find(word)) != std::string::npos;)
            term.erase(at, word.size());
    return std::none_of(term.begin(), term.end(),
                        [](unsigned char c) { return c < 128 && std::isalpha(c) != 0; });
}

/// Recomputes every expression of one line of a narration from its print, to the last digit's
/// rounding of its printed result; returns how many it proved.
inline int ProveLine(const std::string& line)
{
    const auto terms = Terms(line);
    const auto result = ReadResult(terms.back());
    int proved = 0;
    for (std::size_t i = 1; i + 1 < terms.size(); ++i) {
        const auto value = PrintedArithmetic::Compute(terms[i]);
        EXPECT_TRUE(value || !IsNumeric(terms[i])) << "cannot be read: " << terms[i];
        EXPECT_TRUE(result || !value) << "no result: " << line;
        if (!value || !result) continue;
        // What doubles cannot tell apart counts as the same.
        const double allowed = result->HalfUnit * (1 + 1e-6) + 1e-14 * std::abs(*value);
        EXPECT_LE(std::abs(*value - result->Value), allowed) << line;
        ++proved;
    }
    return proved;
}

/// Proves a whole narration, line by line.
inline int ProveText(const std::string& text)
{
    std::istringstream lines(text);
    int proved = 0;
    for (std::string line; std::getline(lines, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        proved += ProveLine(line);
    }
    return proved;
}

} // namespace forcelab::test
