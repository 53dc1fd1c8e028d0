/// @file
/// What the library asks of the operating system, one source file per platform.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace ImportDame::detail {

/// Writes the full path of the process's executable, zero-terminated and cut where the buffer ends.
void ReadExecutablePath(std::span<wchar_t> buffer) noexcept;

/// The part of a path behind its last separator.
const wchar_t* FileNamePart(const wchar_t* path) noexcept;

/// Milliseconds since the system started; wraps after some 49 days.
std::uint32_t TickCount() noexcept;

} // namespace ImportDame::detail
