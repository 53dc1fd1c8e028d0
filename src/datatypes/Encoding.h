/// @file
/// What the kinds of encoding have in common on the coded and on the physical side.
#pragma once

#include <ImportDame/Properties.h>

namespace ImportDame::detail {

constexpr bool IsNumber(VProperties::VEncoding encoding) noexcept {
    return encoding >= VProperties::unsignedInteger && encoding <= VProperties::unpackedBcd;
}

constexpr bool IsText(VProperties::VEncoding encoding) noexcept {
    return encoding == VProperties::asciiText || encoding == VProperties::unicodeText;
}

} // namespace ImportDame::detail
