#include "mapping/CodedTypes.h"

#include "report/Silence.h"
#include "text/Utf8.h"

#include <ImportDame/CodedAtomProperties.h>
#include <ImportDame/CodedProperties.h>
#include <ImportDame/PhysicalAtomProperties.h>
#include <ImportDame/PhysicalProperties.h>

#include <algorithm>
#include <array>
#include <limits>

namespace OdxImport {

using ImportDame::VFieldProperties;
using ImportDame::VPhysicalDisplayProperties;
using ImportDame::VProperties;

namespace {

constexpr std::uint32_t noLimit = std::numeric_limits<std::uint32_t>::max();

constexpr std::uint32_t allBits = 0xFFFFFFFFu;

struct BaseType {
    std::string_view name;
    VProperties::VEncoding encoding;
    std::uint32_t bits; ///< of the number, or of one element
    bool isField;
    bool isSigned;
    std::string_view usualEncoding; ///< as BASE-TYPE-ENCODING
};

constexpr std::array<BaseType, 8> baseTypes{{{"A_UINT32", VProperties::unsignedInteger, 32, false, false, "NONE"},
                                             {"A_INT32", VProperties::twosComplement, 32, false, true, "2C"},
                                             {"A_FLOAT32", VProperties::floatingPoint, 32, false, true, "IEEE754"},
                                             {"A_FLOAT64", VProperties::floatingPoint, 64, false, true, "IEEE754"},
                                             {"A_ASCIISTRING", VProperties::asciiText, 8, true, false, "ISO-8859-1"},
                                             {"A_UTF8STRING", VProperties::unicodeText, 8, true, false, "UTF-8"},
                                             {"A_UNICODE2STRING", VProperties::unicodeText, 16, true, false, "UCS-2"},
                                             {"A_BYTEFIELD", VProperties::byteField, 8, true, false, "NONE"}}};

template <class Value>
struct Word {
    std::string_view text;
    Value value;
};

constexpr std::array<Word<VProperties::VEncoding>, 5> encodings{{{"BCD-P", VProperties::packedBcd},
                                                                 {"BCD-UP", VProperties::unpackedBcd},
                                                                 {"2C", VProperties::twosComplement},
                                                                 {"1C", VProperties::onesComplement},
                                                                 {"SM", VProperties::signMagnitude}}};

/// These say nothing that the base type does not.
constexpr std::array<std::string_view, 8> plainEncodings{"NONE",         "IEEE754", "ISO-8859-1", "ISO-8859-2",
                                                         "WINDOWS-1252", "UTF-8",   "UCS-2",      "UTF-16"};

constexpr std::array<Word<VFieldProperties::VSizeInfo>, 3> terminations{
    {{"END-OF-PDU", VFieldProperties::minMaxLengthEndOfPdu},
     {"ZERO", VFieldProperties::minMaxLengthZero},
     {"HEX-FF", VFieldProperties::minMaxLengthHexFF}}};

constexpr std::array<Word<VPhysicalDisplayProperties::VDisplayFormat>, 4> radixes{
    {{"DEC", VPhysicalDisplayProperties::decimal},
     {"HEX", VPhysicalDisplayProperties::hexadecimal},
     {"BIN", VPhysicalDisplayProperties::binary},
     {"OCT", VPhysicalDisplayProperties::octal}}};

template <class Value, std::size_t Count>
std::optional<Value> Lookup(const std::array<Word<Value>, Count>& words, std::string_view text) {
    for (const Word<Value>& word : words)
        if (word.text == text)
            return word.value;
    return std::nullopt;
}

class CodedTypeReader {
public:
    CodedTypeReader(Element owner, const Reporter& reporter)
        : m_owner(owner), m_element(owner.Child("DIAG-CODED-TYPE")), m_reporter(reporter), m_numbers(reporter) {}

    CodedType Read() {
        if (!m_element) {
            Report(m_owner, Rule::CodedTypeMissing, std::string(m_owner.Tag()) + " has no DIAG-CODED-TYPE");
            return m_type;
        }
        const BaseType& base = ReadBaseType();
        m_type.encoding = base.encoding;
        m_type.bitLength = base.bits;
        m_type.isField = base.isField;
        ReadEncoding(base.usualEncoding);
        m_type.isCondensed = m_numbers.Flag(m_element, "CONDENSED", false);
        m_type.byteOrder =
            m_numbers.Flag(m_element, "IS-HIGHLOW-BYTE-ORDER", true) ? VProperties::highLow : VProperties::lowHigh;
        ReadLength();
        return m_type;
    }

private:
    const BaseType& ReadBaseType() {
        const std::string_view name = m_element.Attribute("BASE-DATA-TYPE");
        for (const BaseType& base : baseTypes)
            if (base.name == name)
                return base;
        Report(m_element, Rule::WordUnknown, "BASE-DATA-TYPE is \"" + std::string(name) + "\"; taken as A_UINT32");
        return baseTypes[0];
    }

    void ReadEncoding(std::string_view usual) {
        const std::string_view text = m_element.Attribute("BASE-TYPE-ENCODING");
        const auto encoding = Lookup(encodings, text);
        const bool isPlain = std::find(plainEncodings.begin(), plainEncodings.end(), text) != plainEncodings.end();
        const bool isDigits = encoding == VProperties::packedBcd || encoding == VProperties::unpackedBcd;
        if (encoding && !m_type.isField)
            m_type.encoding = *encoding;
        else if (!text.empty() && !isPlain && !(isDigits && m_type.encoding == VProperties::byteField))
            Report(m_element, Rule::WordUnknown, "BASE-TYPE-ENCODING is \"" + std::string(text) + "\"; passed over");
        else if (m_type.isField && text != usual && text != "NONE")
            m_type.fieldEncoding = text;
    }

    void ReadLength() {
        const std::string_view kind = m_element.Attribute("type");
        if (kind == "LEADING-LENGTH-INFO-TYPE")
            ReadLeadingLength();
        else if (kind == "MIN-MAX-LENGTH-TYPE")
            ReadMinMaxLength();
        else if (kind == "PARAM-LENGTH-INFO-TYPE")
            ReadParamLength();
        else
            ReadStandardLength(kind);
    }

    void ReadStandardLength(std::string_view kind) {
        if (kind != "STANDARD-LENGTH-TYPE")
            Report(m_element, Rule::CodedTypeUnknown,
                   "xsi:type is \"" + std::string(kind) + "\"; taken as STANDARD-LENGTH-TYPE");
        const Element length = m_element.Child("BIT-LENGTH");
        if (!length)
            Report(m_element, Rule::ValueMissing,
                   "DIAG-CODED-TYPE has no BIT-LENGTH; " + std::to_string(m_type.bitLength) + " assumed");
        if (const auto bits = m_numbers.Whole(length.Taken())) {
            if (!Fits(*bits))
                Report(length, Rule::BitLengthImpossible,
                       std::to_string(*bits) + " bits do not fit " +
                           std::string(m_element.Attribute("BASE-DATA-TYPE")));
            else if (m_type.isField)
                m_type.minLength = m_type.maxLength = *bits / m_type.bitLength;
            else
                m_type.bitLength = *bits;
        }
        ReadMask();
    }

    void ReadMask() {
        const Element mask = m_element.Take("BIT-MASK");
        const std::string_view digits = mask.Text();
        const bool isWide =
            m_type.isField || digits.size() - std::min(digits.find_first_not_of('0'), digits.size()) > 8;
        if (isWide && IsHexadecimal(digits)) {
            m_type.wideMask = digits;
        } else if (const auto bits = m_numbers.Hex(mask)) {
            m_type.bitMask = *bits;
            if (*bits == allBits && m_type.bitLength > 32) // which says as a bit mask that there is none
                m_type.wideMask = IsHexadecimal(digits) ? digits : "FFFFFFFF";
        }
    }

    bool Fits(std::uint32_t bits) const {
        if (bits == 0)
            return false;
        if (m_type.isField)
            return bits % m_type.bitLength == 0;
        if (m_type.encoding == VProperties::floatingPoint)
            return bits == m_type.bitLength;
        return bits <= 64;
    }

    void ReadLeadingLength() {
        m_type.sizeInfo = VFieldProperties::leadingLength;
        m_type.isField = true;
        m_type.maxLength = noLimit;
        const Element length = m_element.Take("BIT-LENGTH");
        if (!length)
            Report(m_element, Rule::ValueMissing, "DIAG-CODED-TYPE has no BIT-LENGTH of the length in front");
        const auto bits = m_numbers.Whole(length);
        if (!bits)
            return;
        if (*bits == 0 || *bits > 32) {
            Report(length, Rule::BitLengthImpossible,
                   std::to_string(*bits) + " bits are no length in front of a value");
            return;
        }
        m_type.leadingBits = *bits;
        m_type.maxLength = *bits == 32 ? noLimit : ElementsOf((1u << *bits) - 1);
    }

    void ReadMinMaxLength() {
        m_type.isField = true;
        const std::string_view text = m_element.Attribute("TERMINATION");
        const auto termination = Lookup(terminations, text);
        if (!termination)
            Report(m_element, Rule::WordUnknown, "TERMINATION is \"" + std::string(text) + "\"; taken as END-OF-PDU");
        m_type.sizeInfo = termination.value_or(VFieldProperties::minMaxLengthEndOfPdu);
        m_type.minLength = ElementsOf(m_numbers.Whole(m_element.Take("MIN-LENGTH")).value_or(0));
        m_type.maxLength = ElementsOf(m_numbers.Whole(m_element.Take("MAX-LENGTH")).value_or(noLimit));
        if (m_type.minLength > m_type.maxLength)
            Report(m_element, Rule::LimitsReversed, "MIN-LENGTH is above MAX-LENGTH");
    }

    void ReadParamLength() {
        m_type.sizeInfo = VFieldProperties::paramLength;
        m_type.maxLength = noLimit;
        m_type.lengthKey = m_element.Child("LENGTH-KEY-REF");
        if (!m_element.Take("LENGTH-KEY-SNREF") && !m_type.lengthKey)
            Report(m_element, Rule::ValueMissing, "DIAG-CODED-TYPE has no LENGTH-KEY-REF");
    }

    std::uint32_t ElementsOf(std::uint32_t bytes) const {
        return bytes == noLimit || m_type.bitLength != 16 ? bytes : bytes / 2;
    }

    void Report(Element where, Rule rule, std::string message) const {
        m_reporter.Report(rule, where.Where(), std::move(message));
    }

    Element m_owner;
    Element m_element;
    const Reporter& m_reporter;
    Numbers m_numbers;
    CodedType m_type;
};

} // namespace

std::optional<std::uint64_t> CodedType::FixedBits() const {
    if (!isField)
        return IsNumberOfVaryingLength() ? std::nullopt : std::optional<std::uint64_t>(bitLength);
    if (sizeInfo != VFieldProperties::standardLength || minLength != maxLength)
        return std::nullopt;
    return std::uint64_t{bitLength} * minLength;
}

ValueKind CodedType::Kind() const {
    if (isField)
        return encoding == VProperties::byteField ? ValueKind::Bytes : ValueKind::Text;
    return encoding == VProperties::floatingPoint ? ValueKind::Real : ValueKind::Whole;
}

bool CodedType::CanHold(std::string_view whole) const {
    if (encoding == VProperties::unsignedInteger) {
        const auto number = ParseNatural(whole);
        return number && (bitLength >= 64 || *number >> bitLength == 0);
    }
    if (encoding == VProperties::twosComplement) {
        const auto number = ParseWhole(whole);
        const std::int64_t end = std::int64_t{1} << (std::min(bitLength, 63u) - 1);
        return number && (bitLength >= 64 || (*number >= -end && *number < end));
    }
    return true;
}

bool CodedType::IsNumberOfVaryingLength() const {
    return !isField && sizeInfo == VFieldProperties::paramLength;
}

CodedType ReadCodedType(Element owner, const Workspace& workspace) {
    owner.Take("DIAG-CODED-TYPE");
    return CodedTypeReader(owner, workspace.Report()).Read();
}

CodedType LookAtCodedType(Element owner, const Workspace&) {
    return CodedTypeReader(owner, Silence()).Read();
}

std::wstring NameOf(const CodedType& type, std::string_view baseType) {
    std::wstring name = Widen(baseType) + L"_" + std::to_wstring(type.bitLength);
    if (type.isField) {
        name += L"_x" + std::to_wstring(type.minLength);
        if (type.maxLength != type.minLength)
            name += L"-" + std::to_wstring(type.maxLength);
        if (type.sizeInfo != VFieldProperties::standardLength)
            name += L"_S" + std::to_wstring(static_cast<int>(type.sizeInfo)) + L"_" + std::to_wstring(type.leadingBits);
    } else if (type.IsNumberOfVaryingLength()) {
        name += L"_varying";
    }
    const auto base =
        std::find_if(baseTypes.begin(), baseTypes.end(), [&](const BaseType& b) { return b.name == baseType; });
    if (base == baseTypes.end() || base->encoding != type.encoding)
        name += L"_E" + std::to_wstring(static_cast<int>(type.encoding));
    if (type.bitMask != allBits)
        name += L"_M" + std::to_wstring(type.bitMask);
    if (!type.wideMask.empty())
        name += L"_M" + Widen(type.wideMask);
    if (type.isCondensed)
        name += L"_condensed";
    if (!type.fieldEncoding.empty())
        name += L"_" + Widen(type.fieldEncoding);
    if (type.byteOrder == VProperties::lowHigh)
        name += L"_LE";
    return name;
}

ValueKind PhysicalKindOf(Element dataObject) {
    const Element physical = dataObject.Child("PHYSICAL-TYPE");
    const std::string_view name =
        (physical ? physical : dataObject.Child("DIAG-CODED-TYPE")).Attribute("BASE-DATA-TYPE");
    if (name == "A_UINT32" || name == "A_INT32")
        return ValueKind::Whole;
    return name == "A_FLOAT32" || name == "A_FLOAT64" ? ValueKind::Real : ValueKind::Text;
}

PhysicalType ReadPhysicalType(Element owner, const Workspace& workspace) {
    PhysicalType type;
    const Element element = owner.Take("PHYSICAL-TYPE");
    if (!element)
        return type;
    const std::string_view name = element.Attribute("BASE-DATA-TYPE");
    const auto base =
        std::find_if(baseTypes.begin(), baseTypes.end(), [&](const BaseType& b) { return b.name == name; });
    if (base == baseTypes.end()) {
        workspace.ReportAt(element, Rule::WordUnknown,
                           "BASE-DATA-TYPE is \"" + std::string(name) + "\"; taken as A_UINT32");
    } else {
        type.encoding = base->encoding;
        type.bitLength = base->bits;
        type.isField = base->isField;
        type.isSigned = base->isSigned;
    }
    type.precision = Numbers(workspace.Report()).Whole(element.Take("PRECISION")).value_or(0);
    const std::string_view radix = element.Attribute("DISPLAY-RADIX");
    const auto format = Lookup(radixes, radix);
    if (!format && !radix.empty())
        workspace.ReportAt(element, Rule::WordUnknown, "DISPLAY-RADIX is \"" + std::string(radix) + "\"; taken as DEC");
    type.format = format.value_or(VPhysicalDisplayProperties::decimal);
    return type;
}

void Apply(const CodedType& type, ImportDame::VCodedAtomProperties& properties) {
    properties.SetEncoding(type.encoding);
    properties.SetByteOrder(type.byteOrder);
    properties.SetBitLength(type.bitLength);
    properties.SetBitMask(type.bitMask);
}

void Apply(const CodedType& type, ImportDame::VCodedProperties& properties) {
    Apply(type, properties.CodedAtomProperties());
    if (!type.isField)
        return;
    properties.SetSizeInfo(type.sizeInfo);
    properties.SetMinLength(type.minLength);
    properties.SetMaxLength(type.maxLength);
}

void Apply(const PhysicalType& type, VPhysicalDisplayProperties& properties) {
    properties.SetDisplayFormat(type.format);
    properties.SetPrecision(type.precision);
    properties.SetUnit(type.unit.c_str());
    properties.SetSigned(type.isSigned);
}

void Apply(const PhysicalType& type, ImportDame::VPhysicalAtomProperties& properties) {
    properties.SetEncoding(type.encoding);
    properties.SetBitLength(type.bitLength);
    Apply(type, properties.PhysicalDisplayProperties());
}

void Apply(const PhysicalType& type, ImportDame::VPhysicalProperties& properties) {
    Apply(type, properties.PhysicalAtomProperties());
    if (type.isField)
        properties.SetQuantity(VProperties::field);
}

} // namespace OdxImport
