#include <ImportDame/detail/Memory.h>
#include <ImportDame/detail/Text.h>

#include <cstdint>
#include <cstring>
#include <limits>
#include <new>

namespace ImportDame::detail {

namespace {

/// Stands in front of the characters.
struct Header {
    std::uint32_t length;
};

std::size_t BlockSize(std::size_t length) noexcept {
    return sizeof(Header) + (length + 1) * sizeof(wchar_t);
}

} // namespace

wchar_t* Text::MakeBlock(std::wstring_view text) {
    if (text.empty())
        return nullptr;
    if (text.size() > std::numeric_limits<std::uint32_t>::max())
        throw std::bad_array_new_length(); // unreachable: takes a text of 16 GB
    auto* const header = ::new (Allocate(BlockSize(text.size()))) Header{static_cast<std::uint32_t>(text.size())};
    auto* const characters = reinterpret_cast<wchar_t*>(header + 1);
    std::memcpy(characters, text.data(), text.size() * sizeof(wchar_t));
    characters[text.size()] = L'\0';
    return characters;
}

void Text::FreeBlock(wchar_t* characters) noexcept {
    if (characters)
        Free(reinterpret_cast<Header*>(characters) - 1, BlockSize(BlockLength(characters)));
}

std::size_t Text::BlockLength(const wchar_t* characters) noexcept {
    return (reinterpret_cast<const Header*>(characters) - 1)->length;
}

} // namespace ImportDame::detail
