#pragma once

#include <filesystem>
#include <string>

namespace HostTest {

/// Makes the place ready to which this platform writes a dump that is requested under the given path, and says where it
/// is.
std::filesystem::path PlaceOfDump(const std::wstring& requestedPath);

/// Whether the file is what this platform calls a crash dump.
bool IsDump(const std::filesystem::path& file);

} // namespace HostTest
