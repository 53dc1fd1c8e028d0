/// @file
/// The quick way to an ordinary number in exponent form.
#pragma once

#include <optional>

namespace ImportDame::detail {

/// The number of a text such as "-12.5e+3", in one pass, where one rounding makes it: at most 15 digits, the first of
/// them in front of the point, times or divided by an exact power of ten. Nothing for any other text, which may still
/// be a number. Requires: text is not null.
std::optional<double> ParseShortNumber(const wchar_t* text) noexcept;

} // namespace ImportDame::detail
