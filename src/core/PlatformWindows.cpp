#include "core/Platform.h"

#include <windows.h>

#include <shlwapi.h>

namespace ImportDame::detail {

void ReadExecutablePath(std::span<wchar_t> buffer) noexcept {
    const DWORD length = ::GetModuleFileNameW(nullptr, buffer.data(), static_cast<DWORD>(buffer.size()));
    if (length == 0)
        buffer.front() = L'\0';
    buffer.back() = L'\0'; // some versions leave a cut path without its end
}

const wchar_t* FileNamePart(const wchar_t* path) noexcept {
    return ::PathFindFileNameW(path);
}

std::uint32_t TickCount() noexcept {
    return ::GetTickCount();
}

} // namespace ImportDame::detail
