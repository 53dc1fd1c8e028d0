#include <ImportDame/detail/Text.h>

#include <cstring>
#include <new>

namespace ImportDame::detail {

namespace {

/// Stands in front of the characters.
struct Header {
    std::size_t length;
};

std::size_t BlockSize(std::size_t length) noexcept {
    return sizeof(Header) + (length + 1) * sizeof(wchar_t);
}

} // namespace

wchar_t* Text::MakeBlock(std::wstring_view text) {
    if (text.empty())
        return nullptr;
    auto* const header = ::new (::operator new(BlockSize(text.size()))) Header{text.size()};
    auto* const characters = reinterpret_cast<wchar_t*>(header + 1);
    std::memcpy(characters, text.data(), text.size() * sizeof(wchar_t));
    characters[text.size()] = L'\0';
    return characters;
}

void Text::FreeBlock(wchar_t* characters) noexcept {
    if (characters)
        ::operator delete(reinterpret_cast<Header*>(characters) - 1);
}

std::size_t Text::BlockLength(const wchar_t* characters) noexcept {
    return (reinterpret_cast<const Header*>(characters) - 1)->length;
}

} // namespace ImportDame::detail
