#include "core/DecimalNumber.h"

#include "core/ArithmeticFault.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace forcelab {

DecimalNumber::DecimalNumber(double value) : negative_(Finite(value) < 0)
{
    if (value == 0) return;
    // "d.dddddddddddddde+xx"
    std::array<char, 32> text;
    const char* const end = std::to_chars(text.data(), text.data() + text.size(), std::abs(value),
                                          std::chars_format::scientific, kSignificant - 1)
                                .ptr;
    digits_[0] = text[0];
    std::copy_n(text.data() + 2, kSignificant - 1, digits_.data() + 1);
    const char* exponent = text.data() + kSignificant + 2;
    if (*exponent == '+') ++exponent;
    std::from_chars(exponent, end, point_);
    ++point_;
    count_ = kSignificant;
    Tidy();
}

void DecimalNumber::Tidy()
{
    while (count_ > 0 && digits_[count_ - 1] == '0') --count_;
    if (count_ == 0) *this = DecimalNumber();
}

void DecimalNumber::RoundTo(int places)
{
    const int keep = point_ + places;
    if (keep >= count_) return;
    const bool up = keep >= 0 && digits_[keep] >= '5';
    count_ = std::max(keep, 0);
    if (up)
        RoundUpTo(keep);
    else
        Tidy();
}

void DecimalNumber::RoundUpTo(int keep)
{
    while (keep > 0 && digits_[keep - 1] == '9') --keep;
    if (keep == 0) {
        digits_[0] = '1';
        ++point_;
    } else {
        ++digits_[keep - 1];
    }
    count_ = std::max(keep, 1);
}

} // namespace forcelab
