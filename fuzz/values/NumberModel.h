/// @file
/// How texts become numbers, step by step and slowly.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace Fuzz {

/// Digit by digit from the last one; nothing when the text is no number in this base.
std::optional<double> PositionalNumber(std::wstring text, unsigned int base);

/// As `NValueUtil::StrToDbl`.
std::optional<double> ExponentNumber(const std::wstring& text, unsigned int base);

/// As `VValue::GetAsDouble`.
double NumberOf(const std::wstring& text);

/// The decimal number at the start of the text, of 32 bits, the largest or the smallest one where it does not fit.
std::int32_t IntegerOf(const std::wstring& text);

/// What the C runtime makes of a plain decimal number, with an optional sign and an optional point; nothing for every
/// other text.
std::optional<double> PlainDecimal(const std::wstring& text);

} // namespace Fuzz
