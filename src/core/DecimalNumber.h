#pragma once

#include <array>

namespace forcelab {

/// A number as it prints: at most 15 significant decimal digits and the place of the point.
///
/// Its size is 0.ddd... times 10 to the power Point; zero has no digits. There are no zeros at the
/// end of the digits, and the first is not 0.
class DecimalNumber {
  public:
    static constexpr int kSignificant = 15;

    /// Zero.
    DecimalNumber() = default;
    /// The value to 15 significant digits; throws ArithmeticFault where it is not finite.
    explicit DecimalNumber(double value);

    [[nodiscard]] bool IsZero() const { return count_ == 0; }
    [[nodiscard]] bool IsNegative() const { return negative_; } ///< never of zero
    [[nodiscard]] int Count() const { return count_; }
    [[nodiscard]] int Point() const { return point_; }
    /// The digit so many places behind the first, '0' before the first and behind the last.
    [[nodiscard]] char Digit(int place) const
    {
        return place >= 0 && place < count_ ? digits_[place] : '0';
    }

    /// Rounds half away from zero to so many digits behind the decimal point.
    void RoundTo(int places);
    /// Multiplies by 10 to the power `by`.
    void Shift(int by) { point_ += IsZero() ? 0 : by; }
    void DropSign() { negative_ = false; }

  private:
    void RoundUpTo(int keep);
    void Tidy();

    bool negative_ = false;
    int count_ = 0;
    int point_ = 0;
    std::array<char, kSignificant> digits_{};
};

} // namespace forcelab
