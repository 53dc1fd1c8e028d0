#include "values/PositionalNumber.h"

#include <cstddef>

namespace ImportDame::detail {

namespace {

using Size = std::wstring_view::size_type;

constexpr unsigned int g_noDigit = 0xFFFFFFFF;
constexpr char32_t g_letterCaseBit = 0x20;

unsigned int DigitValue(wchar_t character) noexcept {
    if (character >= L'0' && character <= L'9')
        return static_cast<unsigned int>(character - L'0');
    const char32_t letter = static_cast<char32_t>(character) & ~g_letterCaseBit;
    return letter >= U'A' && letter <= U'Z' ? letter - U'A' + 10 : g_noDigit;
}

/// base to the minus exponent, squared up from the lowest bit of the exponent.
double NegativePower(double base, Size exponent) noexcept {
    double power = 1.0;
    for (; exponent != 0; exponent >>= 1, base *= base)
        if (exponent & 1)
            power *= base;
    return 1.0 / power;
}

bool IsSign(wchar_t character) noexcept {
    return character == L'+' || character == L'-';
}

} // namespace

std::optional<Size> FindOnlyPoint(std::wstring_view text) noexcept {
    const Size point = text.find(L'.');
    if (point != text.npos && text.find(L'.', point + 1) != text.npos)
        return std::nullopt;
    return point;
}

std::optional<double> ParsePositionalNumber(std::wstring_view text, unsigned int base) noexcept {
    const std::optional<Size> point = FindOnlyPoint(text);
    if (base <= 1 || !point)
        return std::nullopt;
    const bool hasPoint = *point != text.npos;
    double scale = hasPoint ? NegativePower(base, text.size() - *point - 1) : 1.0;
    Size first = *point == 0 ? 1 : 0;
    const bool hasSign = base == 10 && first < text.size() && IsSign(text[first]);
    const bool isNegative = hasSign && text[first] == L'-';
    if (hasSign)
        ++first;
    double value = 0.0;
    for (Size index = text.size(); index-- > first;) {
        if (index == *point)
            continue;
        const unsigned int digit = DigitValue(text[index]);
        if (digit >= base)
            return std::nullopt;
        value += digit * scale;
        scale *= base;
    }
    return isNegative ? value * -1.0 : value;
}

} // namespace ImportDame::detail
