/// @file
/// The second conversion of a text to a number: the exponent form.
#pragma once

#include <string_view>

namespace ImportDame::detail {

/// Whether the text is an optional minus sign, digits, "e" or "E", a plus sign and digits, when the character at the
/// index `point` (or none) is left out.
bool IsExponentForm(std::wstring_view text, std::wstring_view::size_type point) noexcept;

/// The longest number at the start of a text, in decimal notation with an optional exponent, correctly rounded whatever
/// the locale; 0 when it starts with none. Too large a number is infinite, too small a one 0.
/// Requires: the text consists of digits, points, signs and the letters "e" and "E"; no minus sign follows a letter.
double ConvertLeadingNumber(std::wstring_view text);

} // namespace ImportDame::detail
