/// @file
/// The log group of the library.
#pragma once

namespace ImportDame::detail {

/// The identifier of the group "GroupDimex", a bit of the global log group mask.
unsigned long LogGroup() noexcept;

} // namespace ImportDame::detail
