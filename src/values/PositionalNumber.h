/// @file
/// The first conversion of a text to a number: digit by digit.
#pragma once

#include <optional>
#include <string_view>

namespace ImportDame::detail {

/// The place of the only point in a text, or `npos` when it has none. Nothing when it has several.
std::optional<std::wstring_view::size_type> FindOnlyPoint(std::wstring_view text) noexcept;

/// The number that the digits of a base from 2 to 36 stand for, with at most one point anywhere and, in base 10, one
/// sign in front. Nothing for any other text. The empty text is 0.
///
/// Adds up from the last digit to the first, so that the result carries the rounding of every step; where the scale or
/// the sum leaves the range of a double, it goes on with infinities and not-a-numbers.
std::optional<double> ParsePositionalNumber(std::wstring_view text, unsigned int base) noexcept;

} // namespace ImportDame::detail
