#ifndef SQLITEBACKEND_FILESYSTEM_H
#define SQLITEBACKEND_FILESYSTEM_H

#include <filesystem>
#include <string>
#include <system_error>

namespace SqliteBackend {

// What the standard library does not offer of the file system. One source file for each platform.

/// Creates the file unless one is there already (std::errc::file_exists).
std::error_code CreateNewFile(const std::filesystem::path& file);

/// Returns when the file's content is on the disk.
std::error_code FlushFile(const std::filesystem::path& file);

/// Gives `from` the name `to` in one step, replacing what has it; returns when the new name is on the disk.
std::error_code ReplaceFileBy(const std::filesystem::path& to, const std::filesystem::path& from);

/// Different in all processes that run at one time.
std::string ProcessNumber();

} // namespace SqliteBackend

#endif
