/// @file
/// The log group of the library.
#pragma once

namespace ImportDame::detail {

/// The identifier of the group "GroupDimex", a bit of the global log group mask.
unsigned long LogGroup() noexcept;

/// Logs an error, when logging is enabled, the group is not masked out and the level is not below 0.
void LogError(const wchar_t* text);

} // namespace ImportDame::detail
