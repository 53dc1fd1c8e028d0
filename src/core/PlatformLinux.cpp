#include "core/Platform.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <climits>
#include <cwchar>

#include <unistd.h>

namespace ImportDame::detail {

void ReadExecutablePath(std::span<wchar_t> buffer) noexcept {
    std::array<char, PATH_MAX> bytes{};
    const ssize_t read = ::readlink("/proc/self/exe", bytes.data(), bytes.size());
    const std::size_t known = read > 0 ? static_cast<std::size_t>(read) : 0; // unreachable: /proc is never missing
    const std::size_t length = std::min(known, buffer.size() - 1);
    // One character a byte: only ASCII names are ever compared, and this needs no locale.
    std::transform(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length), buffer.begin(),
                   [](char byte) { return static_cast<wchar_t>(static_cast<unsigned char>(byte)); });
    buffer[length] = L'\0';
}

const wchar_t* FileNamePart(const wchar_t* path) noexcept {
    const wchar_t* const separator = std::wcsrchr(path, L'/');
    return separator ? separator + 1 : path;
}

std::uint32_t TickCount() noexcept {
    using namespace std::chrono;
    return static_cast<std::uint32_t>(duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}

} // namespace ImportDame::detail
