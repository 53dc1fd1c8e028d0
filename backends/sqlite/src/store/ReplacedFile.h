#ifndef SQLITEBACKEND_REPLACEDFILE_H
#define SQLITEBACKEND_REPLACEDFILE_H

#include <cstdint>
#include <filesystem>

namespace SqliteBackend {

/// A file that grows under another name beside its target and takes the target's place at the end. Until then the
/// target is not touched. Failures throw WriteError; so does what an older database left beside the target and would be
/// played into the new one.
class ReplacedFile {
public:
    /// Creates the empty temporary file.
    explicit ReplacedFile(const std::filesystem::path& target);
    ReplacedFile(const ReplacedFile&) = delete;
    ReplacedFile& operator=(const ReplacedFile&) = delete;
    /// Removes the temporary file unless it was put in place.
    ~ReplacedFile();

    const std::filesystem::path& Temporary() const { return m_temporary; }

    /// Flushes the file to the disk and renames it. Answers its size.
    std::uint64_t PutInPlace();

private:
    std::filesystem::path m_named; ///< as the target was given, perhaps a link
    std::filesystem::path m_target;
    std::filesystem::path m_temporary;
    bool m_isInPlace = false;
};

} // namespace SqliteBackend

#endif
