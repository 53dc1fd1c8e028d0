#include "values/ShortNumber.h"

#include <cstddef>
#include <cstdint>

namespace ImportDame::detail {

namespace {

constexpr double g_powers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                               1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr std::ptrdiff_t g_largestPower = 22; ///< Of those that a double holds exactly.
constexpr std::ptrdiff_t g_mostDigits = 15;   ///< A double holds every number of so many digits exactly.

/// Appends the digits at the front of the text to the number and steps over them; answers how many there were. Stops
/// behind one digit too many.
std::ptrdiff_t TakeDigits(const wchar_t*& text, std::uint64_t& number) noexcept {
    const wchar_t* const begin = text;
    while (*text >= L'0' && *text <= L'9' && text - begin <= g_mostDigits)
        number = number * 10 + static_cast<std::uint64_t>(*text++ - L'0');
    return text - begin;
}

} // namespace

std::optional<double> ParseShortNumber(const wchar_t* text) noexcept {
    const bool isNegative = *text == L'-';
    if (isNegative)
        ++text;
    std::uint64_t mantissa = 0;
    const auto digits = TakeDigits(text, mantissa);
    if (digits == 0 || digits > g_mostDigits)
        return std::nullopt;
    std::ptrdiff_t decimals = 0;
    if (*text == L'.')
        decimals = TakeDigits(++text, mantissa);
    if (digits + decimals > g_mostDigits || (*text != L'e' && *text != L'E'))
        return std::nullopt;
    ++text;
    if (*text != L'+')
        return std::nullopt;
    std::uint64_t exponent = 0;
    const auto exponentDigits = TakeDigits(++text, exponent);
    const auto power = static_cast<std::ptrdiff_t>(exponent) - decimals;
    if (exponentDigits == 0 || *text != L'\0' || power > g_largestPower) // it is no less than -g_mostDigits
        return std::nullopt;
    const auto whole = static_cast<double>(static_cast<std::int64_t>(mantissa));
    const double number = power < 0 ? whole / g_powers[-power] : whole * g_powers[power];
    return isNegative ? -number : number;
}

} // namespace ImportDame::detail
