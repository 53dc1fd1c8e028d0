#include "source/FileKinds.h"

#include <algorithm>
#include <array>
#include <string>

namespace OdxImport {

namespace {

constexpr std::array<std::string_view, 9> odxEndings{".odx",   ".odx-d", ".odx-c",  ".odx-cs", ".odx-v",
                                                     ".odx-f", ".odx-e", ".odx-fd", ".odx-m"};

char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool EndsLike(std::string_view name, std::string_view ending) {
    if (name.size() <= ending.size())
        return false;
    const std::string_view tail = name.substr(name.size() - ending.size());
    return std::equal(tail.begin(), tail.end(), ending.begin(), [](char a, char b) { return Lower(a) == b; });
}

} // namespace

bool IsOdxName(std::string_view name) {
    return std::any_of(odxEndings.begin(), odxEndings.end(), [&](std::string_view e) { return EndsLike(name, e); });
}

bool IsXmlName(std::string_view name) {
    return EndsLike(name, ".xml");
}

bool LooksLikeOdx(std::string_view head) {
    std::string text(head.substr(0, headBytes));
    text.erase(std::remove(text.begin(), text.end(), '\0'), text.end()); // of UTF-16
    for (const std::string_view root : {"<ODX", ":ODX"})                 // a prefix may stand before it
        for (std::size_t at = text.find(root); at != std::string::npos; at = text.find(root, at + 1))
            if (const std::size_t behind = at + root.size();
                behind < text.size() && std::string_view(" \t\r\n>").find(text[behind]) != std::string_view::npos)
                return true;
    return false;
}

bool IsArchiveName(std::string_view name) {
    return EndsLike(name, ".pdx");
}

} // namespace OdxImport
