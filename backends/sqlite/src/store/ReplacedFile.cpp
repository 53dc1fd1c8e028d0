#include "store/ReplacedFile.h"

#include "SqliteBackend/WriteError.h"
#include "store/FileSystem.h"

#include <string>
#include <system_error>

namespace SqliteBackend {

namespace {

constexpr int attempts = 1000;

void ThrowIf(const std::error_code& error, const char* what) {
    if (error)
        throw WriteError(what + error.message());
}

/// Follows a link, so that the file behind it is replaced and not the link.
std::filesystem::path RealTarget(const std::filesystem::path& target) {
    std::error_code error;
    const auto status = std::filesystem::status(target, error);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status))
        throw WriteError("it is there already and is no file");
    if (!std::filesystem::is_symlink(target, error))
        return target;
    const std::filesystem::path real = std::filesystem::canonical(target, error);
    ThrowIf(error, "the link cannot be followed: ");
    return real;
}

std::filesystem::path CreateTemporary(const std::filesystem::path& target) {
    std::error_code error;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        std::filesystem::path temporary = target;
        temporary += ".partial-" + ProcessNumber() + "-" + std::to_string(attempt);
        error = CreateNewFile(temporary);
        if (!error)
            return temporary;
        if (error != std::errc::file_exists)
            break;
    }
    throw WriteError("no file can be created in its folder: " + error.message());
}

} // namespace

ReplacedFile::ReplacedFile(const std::filesystem::path& target)
    : m_target(RealTarget(target)), m_temporary(CreateTemporary(m_target)) {}

ReplacedFile::~ReplacedFile() {
    std::error_code ignored;
    if (!m_isInPlace)
        std::filesystem::remove(m_temporary, ignored);
}

std::uint64_t ReplacedFile::PutInPlace() {
    std::error_code error;
    const std::uint64_t size = std::filesystem::file_size(m_temporary, error);
    ThrowIf(error, "its size cannot be read: ");
    ThrowIf(FlushFile(m_temporary), "its content cannot be flushed to the disk: ");
    ThrowIf(ReplaceFileBy(m_target, m_temporary), "the new file cannot take its place: ");
    m_isInPlace = true;
    return size;
}

} // namespace SqliteBackend
