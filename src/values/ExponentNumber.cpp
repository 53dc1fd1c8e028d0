#include "values/ExponentNumber.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <string>
#include <system_error>

namespace ImportDame::detail {

namespace {

using Size = std::wstring_view::size_type;

template <class Character>
bool IsDigit(Character character) noexcept {
    return character >= Character{'0'} && character <= Character{'9'};
}

/// Walks over a text and leaves one character out.
class Scanner {
public:
    Scanner(std::wstring_view text, Size leftOut) noexcept : m_text(text), m_leftOut(leftOut) { SkipLeftOut(); }

    /// Steps over one character if it is one of the two.
    bool Accept(wchar_t one, wchar_t other) noexcept {
        if (IsAtEnd() || (m_text[m_index] != one && m_text[m_index] != other))
            return false;
        Advance();
        return true;
    }

    /// Steps over all digits that follow; false when there is none.
    bool AcceptDigits() noexcept {
        bool found = false;
        for (; !IsAtEnd() && IsDigit(m_text[m_index]); Advance())
            found = true;
        return found;
    }

    [[nodiscard]] bool IsAtEnd() const noexcept { return m_index >= m_text.size(); }

private:
    void Advance() noexcept {
        ++m_index;
        SkipLeftOut();
    }

    void SkipLeftOut() noexcept {
        if (m_index == m_leftOut)
            ++m_index;
    }

    std::wstring_view m_text;
    Size m_leftOut;
    Size m_index = 0;
};

/// A number of any length, cut far beyond what the exponent of any double needs.
long long ReadDigits(std::string_view digits) noexcept {
    constexpr long long limit = std::numeric_limits<long long>::max() / 100;
    long long number = 0;
    for (const char digit : digits)
        number = std::min(limit, number * 10 + (digit - '0'));
    return number;
}

/// Whether a number that has no finite double other than 0 is too large rather than too small. Requires: one of its
/// digits is not 0, and its exponent, if any, has a plus sign.
bool IsTooLarge(std::string_view number) noexcept {
    const Size exponentMark = std::min(number.find_first_of("eE"), number.size());
    const std::string_view mantissa = number.substr(0, exponentMark);
    const Size point = std::min(mantissa.find('.'), mantissa.size());
    const Size firstDigit = mantissa.find_first_of("123456789");
    const long long exponent = exponentMark < number.size() ? ReadDigits(number.substr(exponentMark + 2)) : 0;
    return static_cast<long long>(point) - static_cast<long long>(firstDigit) + exponent > 0;
}

double ConvertLeadingNumber(std::string_view text) noexcept {
    double value = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::result_out_of_range) {
        const auto number = text.substr(0, static_cast<Size>(end - text.data()));
        value = IsTooLarge(number) ? std::numeric_limits<double>::infinity() : 0.0;
        return text.starts_with('-') ? -value : value;
    }
    return value;
}

void Narrow(std::wstring_view text, char* characters) noexcept {
    std::transform(text.begin(), text.end(), characters,
                   [](wchar_t character) { return static_cast<char>(character); });
}

} // namespace

bool IsExponentForm(std::wstring_view text, Size point) noexcept {
    Scanner scanner(text, point);
    scanner.Accept(L'-', L'-');
    return scanner.AcceptDigits() && scanner.Accept(L'e', L'E') && scanner.Accept(L'+', L'+') &&
           scanner.AcceptDigits() && scanner.IsAtEnd();
}

double ConvertLeadingNumber(std::wstring_view text) {
    std::array<char, 128> buffer;
    if (text.size() <= buffer.size()) {
        Narrow(text, buffer.data());
        return ConvertLeadingNumber(std::string_view(buffer.data(), text.size()));
    }
    std::string characters(text.size(), '\0');
    Narrow(text, characters.data());
    return ConvertLeadingNumber(std::string_view(characters));
}

} // namespace ImportDame::detail
