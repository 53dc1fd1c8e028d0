#ifndef ODXIMPORT_MAPPING_NUMBERS_H
#define ODXIMPORT_MAPPING_NUMBERS_H

#include "report/Reporter.h"
#include "xml/Element.h"

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace OdxImport {

/// What a value that the description writes down is.
enum class ValueKind { Whole, Real, Bytes, Text };

/// Reads the numbers and words of elements. What cannot be read is reported at the element and taken as absent; an
/// absent element is absent without a report.
class Numbers {
public:
    explicit Numbers(const Reporter& reporter) : m_reporter(reporter) {}

    /// A whole number from 0 to `most`. "8.0" is 8, "0x08" is 8 with a report, "0.05" is none.
    std::optional<std::uint32_t> Whole(Element element,
                                       std::uint32_t most = std::numeric_limits<std::uint32_t>::max()) const;

    /// Any number as XML Schema writes doubles.
    std::optional<double> Number(Element element) const;

    /// The text of a constant: of a whole number its digits, however many, otherwise what is written, without 0x. "8.0"
    /// is 8. Nothing for what is not of the kind.
    std::optional<std::string> Constant(Element element, ValueKind kind) const;

    /// A bit mask or bytes of up to 32 bits, written in hexadecimal digits without 0x.
    std::optional<std::uint32_t> Hex(Element element) const;

    /// "true", "false", "1", "0" of an attribute; `otherwise` when it is absent or none of these. Capitals are read and
    /// reported.
    bool Flag(Element element, const char* attribute, bool otherwise) const;

private:
    std::optional<std::string> WholeConstant(Element element) const;
    std::optional<std::string> Bytes(Element element) const;
    /// The text behind 0x, which is reported, or all of it.
    std::string_view WithoutPrefix(Element element) const;
    void ReportNone(Element element, std::string_view text) const;
    void Report(Element element, Rule rule, std::string_view text, const char* what) const;

    const Reporter& m_reporter;
};

/// A number as XML Schema writes doubles, with an optional plus; independent of the locale.
std::optional<double> ParseNumber(std::string_view text);

/// A whole number that fits 64 bits with sign. No white space.
std::optional<std::int64_t> ParseWhole(std::string_view text);

/// A whole number without sign that fits 64 bits. No white space.
std::optional<std::uint64_t> ParseNatural(std::string_view text);

/// Hexadecimal digits only; so is an empty text.
bool IsHexadecimal(std::string_view text);

/// The shortest decimal text that reads back as the same number.
std::wstring ShortestText(double number);

} // namespace OdxImport

#endif
