#include "xml/Entities.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <system_error>

namespace OdxImport {

namespace {

constexpr std::size_t longestName = 64;

/// The name between & and ;, or the empty text when this is no reference.
std::string_view NameAt(std::string_view xml, std::size_t ampersand) {
    const std::string_view rest = xml.substr(ampersand + 1, longestName);
    const std::size_t end = rest.find_first_not_of("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_.-:",
                                                   rest.starts_with('#') ? 1 : 0);
    return end == std::string_view::npos || rest[end] != ';' ? std::string_view() : rest.substr(0, end);
}

/// Of "#65" and "#x41": NUL, half a character, or beyond the last one.
bool IsNoCharacter(std::string_view name) {
    const bool isHexadecimal = name.starts_with("#x");
    name.remove_prefix(isHexadecimal ? 2 : 1);
    std::uint32_t number = 0;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), number, isHexadecimal ? 16 : 10);
    if (error == std::errc::result_out_of_range)
        return true;
    if (error != std::errc() || end != name.data() + name.size())
        return false; // no reference at all, which a parser leaves as it is
    return number == 0 || (number >= 0xD800 && number < 0xE000) || number > 0x10FFFF;
}

bool IsUnknown(std::string_view name) {
    static constexpr std::array<std::string_view, 5> known{"amp", "lt", "gt", "quot", "apos"};
    if (name.starts_with('#'))
        return IsNoCharacter(name);
    return !name.empty() && std::find(known.begin(), known.end(), name) == known.end();
}

/// First unknown entity from `at` on, whatever stands around it.
std::size_t NextSuspect(std::string_view xml, std::size_t at) {
    for (at = xml.find('&', at); at != std::string_view::npos; at = xml.find('&', at + 1))
        if (IsUnknown(NameAt(xml, at)))
            return at;
    return at;
}

struct Hidden {
    std::string_view open, close;
};

/// Behind the comment, CDATA section or instruction that begins at `at`; `at` itself when none does.
std::size_t BehindHidden(std::string_view xml, std::size_t at) {
    static constexpr std::array<Hidden, 3> kinds{{{"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}}};
    for (const Hidden& kind : kinds) {
        if (!xml.substr(at).starts_with(kind.open))
            continue;
        const std::size_t end = xml.find(kind.close, at + kind.open.size());
        return end == std::string_view::npos ? xml.size() : end + kind.close.size();
    }
    return at;
}

} // namespace

std::optional<UnknownEntity> FindUnknownEntities(std::string_view xml) {
    std::size_t suspect = NextSuspect(xml, 0);
    if (suspect == std::string_view::npos)
        return std::nullopt;
    UnknownEntity found;
    for (std::size_t at = 0; suspect != std::string_view::npos;) {
        const std::size_t tag = std::min(xml.find('<', at), xml.size());
        if (suspect < tag) {
            if (found.count++ == 0) {
                found.name = NameAt(xml, suspect);
                found.offset = suspect;
            }
            if (xml[suspect + 1] == '#')
                found.characters.push_back(suspect);
            suspect = NextSuspect(xml, suspect + 1);
            continue;
        }
        const std::size_t behind = BehindHidden(xml, tag);
        at = behind == tag ? tag + 1 : behind;
        if (suspect < at)
            suspect = NextSuspect(xml, at);
    }
    return found.count == 0 ? std::nullopt : std::optional(found);
}

} // namespace OdxImport
