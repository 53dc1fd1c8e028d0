/// @file
/// A number as text with six decimals.
#pragma once

#include <span>
#include <string_view>

namespace ImportDame::detail {

/// The number with six decimals and a point whatever the locale, correctly rounded (a tie to the even digit); a word
/// where it is none or infinite. The characters lie in the buffer; the longest number takes 317 of it.
std::wstring_view PrintFixed(double number, std::span<wchar_t, 512> buffer) noexcept;

} // namespace ImportDame::detail
