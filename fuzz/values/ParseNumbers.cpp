#include "Bytes.h"
#include "values/NumberModel.h"

#include <ImportDame/Value.h>
#include <ImportDame/ValueUtil.h>

#include <array>
#include <bit>
#include <cmath>

namespace Fuzz {

namespace {

/// Bit by bit; only one not-a-number is as good as another.
bool IsSame(double one, double other) {
    return (std::isnan(one) && std::isnan(other)) ||
           std::bit_cast<std::uint64_t>(one) == std::bit_cast<std::uint64_t>(other);
}

/// Whether the digit-by-digit sum is near what one rounding gives. Numbers with more digits may leave the range on the
/// way.
bool IsNear(const std::wstring& text, double number) {
    if (text.size() > 100)
        return true;
    const auto exact = PlainDecimal(text);
    return !exact || std::abs(number - *exact) <= std::abs(*exact) * 1e-13;
}

} // namespace

void ParseNumbers(Input input) {
    constexpr std::array bases{10U, 0U, 1U, 2U, 8U, 16U, 36U, 4294967295U};
    Bytes bytes(input);
    const unsigned int base = bases[bytes.Below(bases.size())];
    const std::wstring text = bytes.Text();
    const auto expected = ExponentNumber(text, base);

    bool ok = !expected;
    const double number = NValueUtil::StrToDbl(text.c_str(), base, &ok);
    Expect(ok == expected.has_value(), "StrToDbl accepts what it should not, or the other way round");
    Expect(IsSame(number, expected.value_or(0.0)), "StrToDbl gives another number");
    Expect(IsSame(number, NValueUtil::StrToDbl(text.c_str(), base, nullptr)), "StrToDbl depends on ok");

    const double asDouble = ImportDame::VValue(text.c_str()).GetAsDouble();
    Expect(IsSame(asDouble, NumberOf(text)), "GetAsDouble gives another number");
    Expect(IsNear(text, asDouble), "GetAsDouble is far from the number");
}

} // namespace Fuzz
