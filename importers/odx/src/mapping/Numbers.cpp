#include "mapping/Numbers.h"

#include "report/Silence.h"
#include "text/Utf8.h"

#include <array>
#include <charconv>
#include <cmath>

namespace OdxImport {

namespace {

std::string_view WithoutPlus(std::string_view text) {
    return text.size() > 1 && text[0] == '+' && text[1] != '-' ? text.substr(1) : text;
}

template <class Number, class... Format>
std::optional<Number> ParseAll(std::string_view text, Format... format) {
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, format...);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

/// Digits, however many, and a sign in front of them.
bool IsWholeText(std::string_view text) {
    if (text.starts_with('+') || text.starts_with('-'))
        text.remove_prefix(1);
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// Up to here every whole number is a double.
constexpr double mostExact = 9007199254740992.0;

/// Digits of a number that no double holds, such as 1e400.
bool IsOutOfRange(std::string_view text) {
    double number = 0;
    text = WithoutPlus(text);
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc::result_out_of_range && end == text.data() + text.size();
}

bool HasHexPrefix(std::string_view text) {
    return text.starts_with("0x") || text.starts_with("0X");
}

} // namespace

std::optional<double> ParseNumber(std::string_view text) {
    text = WithoutPlus(text);
    if (text == "INF")
        return std::numeric_limits<double>::infinity();
    if (text == "-INF")
        return -std::numeric_limits<double>::infinity();
    // from_chars knows words such as "infinity" that are no numbers here.
    if (text.find_first_not_of("0123456789+-.eE") != std::string_view::npos)
        return std::nullopt;
    return ParseAll<double>(text, std::chars_format::general);
}

bool IsHexadecimal(std::string_view text) {
    return text.find_first_not_of("0123456789abcdefABCDEF") == std::string_view::npos;
}

std::optional<std::int64_t> ParseWhole(std::string_view text) {
    return ParseAll<std::int64_t>(WithoutPlus(text), 10);
}

std::optional<std::uint64_t> ParseNatural(std::string_view text) {
    return ParseAll<std::uint64_t>(WithoutPlus(text), 10);
}

std::wstring ShortestText(double number) {
    std::array<char, 400> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed);
    return {buffer.data(), result.ptr};
}

std::optional<std::uint32_t> Numbers::Whole(Element element, std::uint32_t most) const {
    if (!element)
        return std::nullopt;
    const std::string_view text = element.Text();
    std::optional<std::int64_t> number = ParseWhole(text);
    if (!number && HasHexPrefix(text)) {
        number = ParseAll<std::int64_t>(text.substr(2), 16);
        if (number)
            Report(element, Rule::NumberHexPrefix, text, "is written with 0x");
    }
    if (!number) {
        const std::optional<double> real = ParseNumber(text);
        if (real && (*real < 0 || *real > most))
            Report(element, Rule::NumberOutOfRange, text, "is outside of what can be held");
        else if (real && *real != std::floor(*real))
            Report(element, Rule::NumberNotWhole, text, "is no whole number");
        else if (!real)
            ReportNone(element, text);
        return real && *real >= 0 && *real <= most && *real == std::floor(*real)
                   ? std::optional(static_cast<std::uint32_t>(*real))
                   : std::nullopt;
    }
    if (*number < 0 || *number > most) {
        Report(element, Rule::NumberOutOfRange, text, "is outside of what can be held");
        return std::nullopt;
    }
    return static_cast<std::uint32_t>(*number);
}

std::optional<std::string> Numbers::Constant(Element element, ValueKind kind) const {
    const std::string_view text = element.Text();
    switch (kind) {
    case ValueKind::Whole:
        return WholeConstant(element);
    case ValueKind::Real: {
        const std::optional<double> number = Number(element);
        if (!number)
            return std::nullopt;
        return HasHexPrefix(text) ? Narrow(ShortestText(*number)) : std::string(text);
    }
    case ValueKind::Bytes:
        return Bytes(element);
    default:
        return std::string(text);
    }
}

std::optional<std::string> Numbers::WholeConstant(Element element) const {
    const std::string_view text = element.Text();
    if (IsWholeText(text))
        return std::string(text);
    if (const auto real = ParseNumber(text); real && *real == std::floor(*real) && std::abs(*real) <= mostExact)
        return std::to_string(static_cast<std::int64_t>(*real));
    if (const auto number = HasHexPrefix(text) ? ParseAll<std::uint64_t>(text.substr(2), 16) : std::nullopt) {
        Report(element, Rule::NumberHexPrefix, text, "is written with 0x");
        return std::to_string(*number);
    }
    Report(element, ParseNumber(text) ? Rule::NumberNotWhole : Rule::NumberNone, text, "is no whole number");
    return std::nullopt;
}

std::optional<double> Numbers::Number(Element element) const {
    if (!element)
        return std::nullopt;
    const std::string_view text = element.Text();
    std::optional<double> number = ParseNumber(text);
    if (!number && HasHexPrefix(text)) {
        if (const auto whole = ParseAll<std::int64_t>(text.substr(2), 16)) {
            Report(element, Rule::NumberHexPrefix, text, "is written with 0x");
            return static_cast<double>(*whole);
        }
    }
    if (!number)
        ReportNone(element, text);
    return number;
}

std::optional<std::uint32_t> Numbers::Hex(Element element) const {
    if (!element)
        return std::nullopt;
    std::string_view text = WithoutPrefix(element);
    if (text.empty() || !IsHexadecimal(text)) {
        Report(element, Rule::HexNone, text, "is no hexadecimal value");
        return std::nullopt;
    }
    if (text.size() % 2 != 0)
        Report(element, Rule::HexOddDigits, text, "has an odd number of digits");
    const std::size_t digits = text.find_first_not_of('0');
    text.remove_prefix(digits == std::string_view::npos ? text.size() - 1 : digits);
    const auto value = ParseAll<std::uint32_t>(text, 16);
    if (!value)
        Report(element, Rule::NumberOutOfRange, text, "has more than 32 bits");
    return value;
}

std::optional<std::string> Numbers::Bytes(Element element) const {
    const std::string_view text = WithoutPrefix(element);
    if (!IsHexadecimal(text)) {
        Report(element, Rule::HexNone, text, "is no hexadecimal value");
        return std::nullopt;
    }
    const bool isOdd = text.size() % 2 != 0;
    if (isOdd)
        Report(element, Rule::HexOddDigits, text, "has an odd number of digits");
    return (isOdd ? "0" : "") + std::string(text);
}

std::string_view Numbers::WithoutPrefix(Element element) const {
    const std::string_view text = element.Text();
    if (!HasHexPrefix(text))
        return text;
    Report(element, Rule::NumberHexPrefix, text, "is written with 0x");
    return text.substr(2);
}

bool Numbers::Flag(Element element, const char* attribute, bool otherwise) const {
    const std::string_view text = element.Attribute(attribute);
    if (text == "true" || text == "1")
        return true;
    if (text == "false" || text == "0")
        return false;
    const bool isTrue = text == "TRUE" || text == "True", isFalse = text == "FALSE" || text == "False";
    otherwise = isTrue || (otherwise && !isFalse);
    if (!text.empty())
        m_reporter.Report(Rule::FlagNone, element.Where(),
                          std::string(attribute) + " is \"" + std::string(text) + "\"; taken as " +
                              (otherwise ? "true" : "false"));
    return otherwise;
}

void Numbers::ReportNone(Element element, std::string_view text) const {
    if (IsOutOfRange(text))
        Report(element, Rule::NumberOutOfRange, text, "is outside of what can be held");
    else
        Report(element, Rule::NumberNone, text, "is no number");
}

void Numbers::Report(Element element, Rule rule, std::string_view text, const char* what) const {
    const bool isRead = rule == Rule::NumberHexPrefix || rule == Rule::HexOddDigits;
    if (!isRead && &m_reporter != &Silence()) // whoever only looks settles nothing
        element.Refuse("the value cannot be read");
    m_reporter.Report(rule, element.Where(), std::string(element.Tag()) + " \"" + std::string(text) + "\" " + what);
}

} // namespace OdxImport
