#include "values/NumberModel.h"

#include <algorithm>
#include <cstdlib>
#include <regex>
#include <vector>

namespace Fuzz {

namespace {

std::size_t PointsIn(const std::wstring& text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), L'.'));
}

void RemovePoint(std::wstring& text) {
    text.erase(std::remove(text.begin(), text.end(), L'.'), text.end());
}

/// base to the power of the exponent, from the squares of base.
double Power(double base, std::size_t exponent) {
    std::vector<double> squares{base};
    while (squares.size() < 64)
        squares.push_back(squares.back() * squares.back());
    double power = 1.0;
    for (std::size_t bit = 0; bit < squares.size(); ++bit)
        if ((exponent >> bit) % 2 != 0)
            power *= squares[bit];
    return power;
}

std::optional<unsigned int> DigitOf(wchar_t character) {
    static const std::wstring digits = L"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    static const std::wstring lowerCase = L"0123456789abcdefghijklmnopqrstuvwxyz";
    const std::size_t digit = std::min(digits.find(character), lowerCase.find(character));
    return digit == std::wstring::npos ? std::nullopt : std::optional(static_cast<unsigned int>(digit));
}

/// Requires: ASCII.
double FromRuntime(const std::wstring& text) {
    std::string narrow;
    for (const wchar_t character : text)
        narrow.push_back(static_cast<char>(character));
    return std::strtod(narrow.c_str(), nullptr);
}

} // namespace

std::optional<double> PositionalNumber(std::wstring text, unsigned int base) {
    if (base < 2 || PointsIn(text) > 1)
        return std::nullopt;
    double scale = 1.0;
    if (PointsIn(text) == 1) {
        scale = 1.0 / Power(base, text.size() - 1 - text.find(L'.'));
        RemovePoint(text);
    }
    double value = 0.0;
    for (std::size_t position = text.size(); position > 0; --position) {
        const wchar_t character = text[position - 1];
        if (position == 1 && base == 10 && (character == L'+' || character == L'-')) {
            value *= character == L'-' ? -1.0 : 1.0;
            continue;
        }
        const auto digit = DigitOf(character);
        if (!digit || *digit >= base)
            return std::nullopt;
        value += *digit * scale;
        scale *= base;
    }
    return value;
}

std::optional<double> ExponentNumber(const std::wstring& text, unsigned int base) {
    static const std::wregex form(LR"(\-?\d+[eE]\+\d+)");
    std::wstring withoutPoint = text;
    if (base > 1 && PointsIn(text) < 2) {
        RemovePoint(withoutPoint);
        if (withoutPoint.empty())
            return 0.0;
    }
    if (!std::regex_match(withoutPoint, form))
        return std::nullopt;
    return FromRuntime(text);
}

double NumberOf(const std::wstring& text) {
    if (const auto number = PositionalNumber(text, 10))
        return *number;
    return ExponentNumber(text, 10).value_or(0.0);
}

std::int32_t IntegerOf(const std::wstring& text) {
    static const std::wregex form(LR"([ \t\n\v\f\r]*([+-]?)0*(\d*))");
    std::wsmatch parts;
    std::regex_search(text, parts, form, std::regex_constants::match_continuous);
    const bool isNegative = parts[1] == L"-";
    const std::wstring digits = parts[2];
    const long long magnitude = digits.empty() ? 0 : digits.size() > 10 ? 9999999999 : std::stoll(digits);
    return static_cast<std::int32_t>(isNegative ? std::max(-magnitude, -2147483648LL)
                                                : std::min(magnitude, 2147483647LL));
}

std::optional<double> PlainDecimal(const std::wstring& text) {
    static const std::wregex form(LR"([+-]?(\d+\.?\d*|\.\d+))");
    return std::regex_match(text, form) ? std::optional(FromRuntime(text)) : std::nullopt;
}

} // namespace Fuzz
