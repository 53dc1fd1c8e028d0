#include "values/FixedNumber.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>

namespace ImportDame::detail {

namespace {

constexpr std::uint64_t g_million = 1'000'000;

/// A number that is not whole times a million, rounded to the nearest integer, a tie to the even one. Requires: the
/// number lies between 0 and 2 to the power of 20.
std::uint64_t RoundMillionths(double number) noexcept {
    const auto bits = std::bit_cast<std::uint64_t>(number);
    const std::uint64_t mantissa = (bits & 0xF'FFFF'FFFF'FFFF) | 0x10'0000'0000'0000;
    const auto shift = static_cast<unsigned int>(1075 - (bits >> 52)); // at least 33: number = mantissa / 2^shift
    if (shift > 74)
        return 0; // the product has 73 bits: this is less than a half
    // The product of mantissa and million is upper * 2^32 + lower.
    const std::uint64_t low = (mantissa & 0xFFFF'FFFF) * g_million;
    const std::uint64_t upper = (mantissa >> 32) * g_million + (low >> 32);
    const std::uint64_t lower = low & 0xFFFF'FFFF;
    const std::uint64_t half = std::uint64_t{1} << (shift - 33);
    const std::uint64_t rest = upper & (2 * half - 1);
    const std::uint64_t quotient = upper >> (shift - 32);
    const bool isTie = rest == half && lower == 0;
    const bool isUp = isTie ? quotient % 2 != 0 : rest >= half;
    return quotient + (isUp ? 1 : 0);
}

/// The number in millionths, where that is quick.
std::optional<std::uint64_t> ToMillionths(double number) noexcept {
    if (!(number < 0x1p42)) // where its millionths would no longer fit
        return std::nullopt;
    const auto whole = static_cast<std::uint64_t>(number);
    if (static_cast<double>(whole) == number)
        return whole * g_million;
    if (number >= 0x1p20)
        return std::nullopt;
    return RoundMillionths(number);
}

/// Writes the lowest digits of the number in front of the position; answers where they begin.
template <class Number>
wchar_t* PutDigits(wchar_t* end, Number number, int count) noexcept {
    for (; count > 0 || number != 0; --count, number /= 10)
        *--end = static_cast<wchar_t>(L'0' + number % 10);
    return end;
}

} // namespace

std::wstring_view PrintFixed(double number, std::span<wchar_t, 512> buffer) noexcept {
    if (const auto millionths = ToMillionths(std::abs(number))) {
        wchar_t* const end = buffer.data() + buffer.size();
        wchar_t* begin = PutDigits(end, static_cast<std::uint32_t>(*millionths % g_million), 6);
        *--begin = L'.';
        begin = PutDigits(begin, *millionths / g_million, 1);
        if (std::signbit(number))
            *--begin = L'-';
        return {begin, end};
    }
    std::array<char, 512> digits;
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed, 6).ptr;
    return {buffer.data(), std::copy(digits.data(), end, buffer.data())};
}

} // namespace ImportDame::detail
