#include "store/ReplacedFile.h"

#include "SqliteBackend/Utf8.h"
#include "SqliteBackend/WriteError.h"
#include "store/FileSystem.h"

#include <fstream>
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

/// Whoever opens the database next plays the file into it. One that is empty or begins with a zero, as a journal that
/// is kept between transactions does, is passed over.
bool IsPlayedBack(const std::filesystem::path& file) {
    std::error_code error;
    const auto status = std::filesystem::status(file, error);
    if (!std::filesystem::exists(status) || (is_regular_file(status) && std::filesystem::file_size(file, error) == 0))
        return false;
    return std::ifstream(file, std::ios::binary).get() != 0;
}

void ThrowIfPlayedInto(const std::filesystem::path& target) {
    for (const char* ending : {"-journal", "-wal"}) {
        std::filesystem::path left = target;
        left += ending;
        if (IsPlayedBack(left))
            throw WriteError("beside it lies " + PathText(left.filename().u8string()) +
                                 ", with changes to an older database that the new one would be damaged by",
                             "Open the older database once with the program that changes it, and close it, so that it "
                             "is completed; or remove that file.");
    }
}

/// SQLite looks beside the file behind a link, or, where it does not follow links, beside the link.
void ThrowIfPlayedIntoEither(const std::filesystem::path& named, const std::filesystem::path& target) {
    ThrowIfPlayedInto(target);
    if (named != target)
        ThrowIfPlayedInto(named);
}

} // namespace

ReplacedFile::ReplacedFile(const std::filesystem::path& target) : m_named(target), m_target(RealTarget(target)) {
    ThrowIfPlayedIntoEither(m_named, m_target);
    m_temporary = CreateTemporary(m_target);
}

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
    ThrowIfPlayedIntoEither(m_named, m_target); // it may have come up meanwhile
    ThrowIf(ReplaceFileBy(m_target, m_temporary), "the new file cannot take its place: ");
    m_isInPlace = true;
    return size;
}

} // namespace SqliteBackend
