#include "mapping/CodedConstants.h"

#include "mapping/CodedTypes.h"
#include "mapping/Numbers.h"
#include "report/Silence.h"

#include <algorithm>
#include <charconv>

namespace OdxImport {

namespace {

/// What hexadecimal digits say; of an odd number of them the first has a byte for itself.
std::string BytesOfHex(std::string_view digits) {
    if (digits.starts_with("0x") || digits.starts_with("0X"))
        digits.remove_prefix(2);
    if (!IsHexadecimal(digits))
        return {};
    std::string bytes;
    while (!digits.empty()) {
        const std::string_view pair = digits.substr(0, digits.size() % 2 != 0 ? 1 : 2);
        unsigned char byte = 0;
        std::from_chars(pair.data(), pair.data() + pair.size(), byte, 16);
        bytes += static_cast<char>(byte);
        digits.remove_prefix(pair.size());
    }
    return bytes;
}

std::string BytesOfNumber(std::uint32_t number, const CodedType& coded) {
    std::string bytes;
    for (std::uint32_t bit = coded.bitLength; bit != 0; bit -= 8)
        bytes += static_cast<char>(bit > 32 ? 0 : number >> (bit - 8));
    if (coded.byteOrder == ImportDame::VProperties::lowHigh)
        std::reverse(bytes.begin(), bytes.end());
    return bytes;
}

void ReadValue(CodedConstant& constant, Element value, const CodedType& coded) {
    if (coded.isField) {
        const bool isHex = coded.encoding == ImportDame::VProperties::byteField;
        constant.bytes = isHex ? BytesOfHex(value.Text()) : std::string(value.Text());
        if (constant.bytes.empty() || constant.bytes.size() > sizeof(std::uint32_t))
            return;
        std::uint32_t number = 0;
        for (const char byte : constant.bytes)
            number = number << 8 | static_cast<unsigned char>(byte);
        constant.value = number;
        return;
    }
    constant.value = Numbers(Silence()).Whole(value);
    if (constant.value && coded.bitLength % 8 == 0)
        constant.bytes = BytesOfNumber(*constant.value, coded);
}

/// What begins in the byte is constant, and fills it to the last bit.
bool IsFilled(const std::vector<CodedConstant>& constants, std::uint64_t byte) {
    std::uint64_t filled = 0;
    for (const CodedConstant& constant : constants)
        filled += constant.byte == byte ? constant.bits : 0;
    return filled == 8 && ValueAt(constants, byte) <= 0xFF;
}

} // namespace

std::vector<CodedConstant> CodedConstantsOf(const std::vector<Element>& params,
                                            const std::vector<Placement>& placements, const Workspace& workspace) {
    const std::vector<std::optional<std::uint64_t>> starts = StartsOf(placements);
    std::vector<CodedConstant> constants;
    for (std::size_t i = 0; i < params.size(); ++i) {
        if (params[i].Attribute("type") != "CODED-CONST")
            continue;
        CodedConstant constant;
        if (const auto& start = starts[i])
            constant.byte = *start / 8;
        constant.bit = placements[i].bit;
        constant.bits = placements[i].bits.value_or(0);
        constant.semantic = params[i].Attribute("SEMANTIC");
        ReadValue(constant, params[i].Child("CODED-VALUE"), LookAtCodedType(params[i], workspace));
        if (constant.value || !constant.bytes.empty())
            constants.push_back(std::move(constant));
    }
    return constants;
}

std::optional<std::uint32_t> ValueAt(const std::vector<CodedConstant>& constants, std::uint64_t byte) {
    std::optional<std::uint32_t> value; // constants may share the byte: a flag and what it is about
    for (const CodedConstant& constant : constants)
        if (constant.byte == byte && constant.value)
            value = value.value_or(0) | *constant.value << constant.bit;
    return value;
}

std::optional<std::uint32_t> ValueOfTwoBytesAt(const std::vector<CodedConstant>& constants, std::uint64_t byte) {
    const auto first = ValueAt(constants, byte);
    const auto second = ValueAt(constants, byte + 1);
    const bool areFilled = IsFilled(constants, byte) && IsFilled(constants, byte + 1);
    return first && second && areFilled ? *first << 8 | *second : first;
}

} // namespace OdxImport
