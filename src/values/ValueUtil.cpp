#include <ImportDame/ValueUtil.h>

#include "values/ExponentNumber.h"
#include "values/PositionalNumber.h"
#include "values/ShortNumber.h"

#include <optional>
#include <string_view>

namespace {

/// Only the exponent form is a number here, and nothing at all, with or without a point, is 0.
std::optional<double> ParseNumber(std::wstring_view text, unsigned int base) {
    using namespace ImportDame::detail;
    auto point = text.npos;
    if (base > 1) {
        point = FindOnlyPoint(text).value_or(text.npos);
        if (text.empty() || text == L".")
            return 0.0;
    }
    if (!IsExponentForm(text, point))
        return std::nullopt;
    return ConvertLeadingNumber(text);
}

} // namespace

double NValueUtil::StrToDbl(const wchar_t* text, unsigned int base, bool* ok) {
    std::optional<double> number;
    if (base > 1)
        number = ImportDame::detail::ParseShortNumber(text);
    if (!number)
        number = ParseNumber(text, base);
    if (ok)
        *ok = number.has_value();
    return number.value_or(0.0);
}
