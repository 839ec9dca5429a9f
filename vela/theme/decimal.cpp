// Exact in plain arithmetic. The C library's conversion and std::from_chars are faster and add 18 and 33 KB
// to a static program; skins have few numbers, and short ones.
#include "vela/theme/decimal.h"

#include "vela/text.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

namespace vela {
namespace {

using Limits = std::numeric_limits<double>;

// No double and no middle between two of them has as many digits; of those behind only whether all are 0
// counts.
constexpr int kMostDigits = 800;
// With the point in front of the first digit: beyond these a number is infinite or 0 for certain.
constexpr int kLargestExponent = Limits::max_exponent10 + 1;
constexpr int kSmallestExponent = Limits::min_exponent10 - Limits::digits10 - 1;

// A whole number from 0; there is room for what the constants above allow.
class Natural {
public:
    explicit Natural(std::uint32_t value) noexcept { multiplyAdd(0, value); }

    bool isZero() const noexcept { return size_ == 0; }
    int bits() const noexcept { return isZero() ? 0 : 32 * size_ - std::countl_zero(parts_[size_ - 1]); }

    void multiplyAdd(std::uint32_t factor, std::uint32_t summand) noexcept
    {
        std::uint64_t carry = summand;
        for (int i = 0; i < size_; ++i, carry >>= 32) {
            carry += std::uint64_t{parts_[i]} * factor;
            parts_[i] = static_cast<std::uint32_t>(carry);
        }
        if (carry != 0)
            parts_[size_++] = static_cast<std::uint32_t>(carry);
    }

    void shiftLeft(int count) noexcept
    {
        for (; count > 0; count -= 31)
            multiplyAdd(std::uint32_t{1} << std::min(count, 31), 0);
    }

    // Leaves the number as it is, and says false, when the other one is larger.
    bool subtract(const Natural& other) noexcept
    {
        Natural rest = *this;
        std::int64_t carry = 0;
        for (int i = 0; i < size_; ++i, carry >>= 32) {
            carry += std::int64_t{parts_[i]} - (i < other.size_ ? other.parts_[i] : 0);
            rest.parts_[i] = static_cast<std::uint32_t>(carry);
        }
        if (carry < 0 || other.size_ > size_)
            return false;
        while (rest.size_ > 0 && rest.parts_[rest.size_ - 1] == 0)
            --rest.size_;
        *this = rest;
        return true;
    }

private:
    std::uint32_t parts_[128]; // to the base 2^32, the lowest first
    int size_ = 0;             // without zeros at the high end
};

// Both are above 0.
double nearestQuotient(Natural& top, Natural& bottom) noexcept
{
    int exponent = top.bits() - bottom.bits();
    top.shiftLeft(-exponent);
    bottom.shiftLeft(exponent);
    const auto nextBit = [&top, &bottom] {
        const bool bit = top.subtract(bottom);
        top.shiftLeft(1);
        return std::uint64_t{bit};
    };
    std::uint64_t mantissa = nextBit();
    if (mantissa == 0) {
        mantissa = nextBit();
        --exponent;
    }
    // The smallest doubles have fewer digits; one more decides about rounding.
    const int digits = std::min(Limits::digits, exponent - Limits::min_exponent + 1 + Limits::digits);
    if (digits < 0)
        return 0;
    for (int i = 0; i < digits; ++i)
        mantissa = mantissa * 2 + nextBit();
    const bool up = (mantissa & 1) != 0 && ((mantissa & 2) != 0 || !top.isZero());
    const std::uint64_t rounded = (mantissa >> 1) + (up ? 1 : 0);
    return std::ldexp(static_cast<double>(rounded), exponent + 1 - digits);
}

} // namespace

double nearestDouble(std::wstring_view number) noexcept
{
    if (number.starts_with(L'-'))
        return -nearestDouble(number.substr(1));
    if (number.size() <= 9 && std::all_of(number.begin(), number.end(), isDigit))
        return leadingInteger(number).value_or(0);
    Natural top(0);
    int count = 0;
    std::int64_t exponent = 0;
    bool behindPoint = false;
    bool more = false;
    std::size_t at = 0;
    for (; at < number.size() && (isDigit(number[at]) || number[at] == L'.'); ++at) {
        if (number[at] == L'.') {
            behindPoint = true;
            continue;
        }
        const auto digit = static_cast<std::uint32_t>(number[at] - L'0');
        const bool kept = count < kMostDigits;
        exponent += (kept ? 0 : 1) - (behindPoint ? 1 : 0);
        if (!kept) {
            more |= digit != 0;
        } else if (count > 0 || digit != 0) {
            top.multiplyAdd(10, digit);
            ++count;
        }
    }
    if (at < number.size())
        exponent += leadingInteger(number.substr(at + 1)).value_or(0);
    if (top.isZero() || count + exponent < kSmallestExponent)
        return 0;
    if (count + exponent > kLargestExponent)
        return Limits::infinity();
    if (more) {
        top.multiplyAdd(10, 1);
        --exponent;
    }
    Natural bottom(1);
    for (; exponent > 0; --exponent)
        top.multiplyAdd(10, 0);
    for (; exponent < 0; ++exponent)
        bottom.multiplyAdd(10, 0);
    return nearestQuotient(top, bottom);
}

} // namespace vela
