/// @file
/// The conversion of the start of a text to an integer.
#pragma once

#include <cstdint>
#include <string_view>

namespace ImportDame::detail {

/// The integer at the start of a text: white space, an optional sign, decimal digits; 0 when there are none. Cut to 32
/// bits; white space and digits are those of ASCII in every locale.
std::int32_t LeadingInteger(std::wstring_view text) noexcept;

} // namespace ImportDame::detail
