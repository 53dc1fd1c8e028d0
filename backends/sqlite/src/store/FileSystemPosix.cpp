#include "store/FileSystem.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace SqliteBackend {

namespace {

std::error_code LastError() {
    return {errno, std::system_category()};
}

std::error_code Flush(const std::filesystem::path& path, int flags) {
    const int descriptor = open(path.c_str(), flags | O_CLOEXEC);
    if (descriptor < 0)
        return LastError();
    const std::error_code error = fsync(descriptor) == 0 ? std::error_code() : LastError();
    close(descriptor);
    return error;
}

} // namespace

std::error_code CreateNewFile(const std::filesystem::path& file) {
    const int descriptor = open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (descriptor < 0)
        return LastError();
    close(descriptor);
    return {};
}

std::error_code FlushFile(const std::filesystem::path& file) {
    return Flush(file, O_WRONLY);
}

std::error_code ReplaceFileBy(const std::filesystem::path& to, const std::filesystem::path& from) {
    struct stat old {};

    const std::filesystem::path folder = to.has_parent_path() ? to.parent_path() : std::filesystem::path(".");
    if (stat(to.c_str(), &old) == 0)
        chmod(from.c_str(), old.st_mode & 07777); // who may read the old one may read the new one
    if (rename(from.c_str(), to.c_str()) != 0)
        return LastError();
    // The database is complete under its name; that some file systems cannot flush a folder changes nothing about it.
    Flush(folder, O_RDONLY | O_DIRECTORY);
    return {};
}

std::string ProcessNumber() {
    return std::to_string(getpid());
}

} // namespace SqliteBackend
