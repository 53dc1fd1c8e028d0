#include "store/FileSystem.h"

#include <windows.h>

namespace SqliteBackend {

namespace {

std::error_code LastError() {
    return {static_cast<int>(GetLastError()), std::system_category()};
}

} // namespace

std::error_code CreateNewFile(const std::filesystem::path& file) {
    const HANDLE handle =
        CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return GetLastError() == ERROR_FILE_EXISTS ? std::make_error_code(std::errc::file_exists) : LastError();
    CloseHandle(handle);
    return {};
}

std::error_code FlushFile(const std::filesystem::path& file) {
    const HANDLE handle = CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return LastError();
    const std::error_code error = FlushFileBuffers(handle) ? std::error_code() : LastError();
    CloseHandle(handle);
    return error;
}

std::error_code ReplaceFileBy(const std::filesystem::path& to, const std::filesystem::path& from) {
    const DWORD flags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    return MoveFileExW(from.c_str(), to.c_str(), flags) ? std::error_code() : LastError();
}

std::string ProcessNumber() {
    return std::to_string(GetCurrentProcessId());
}

} // namespace SqliteBackend
