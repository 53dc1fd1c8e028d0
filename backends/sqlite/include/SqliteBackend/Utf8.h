#ifndef SQLITEBACKEND_UTF8_H
#define SQLITEBACKEND_UTF8_H

#include <cstdint>
#include <string>
#include <string_view>

namespace SqliteBackend {

/// Appends the text in UTF-8. Wide characters are UTF-16 where they have 16 bits, code points where they have
/// 32; surrogate pairs are understood in both. What is no character (a lone surrogate, a number above U+10FFFF) becomes
/// U+FFFD. Answers how many were replaced.
std::uint64_t AppendUtf8(std::wstring_view text, std::string& out);

/// Appends the text, each byte that is not part of well-formed UTF-8 and each zero byte replaced by U+FFFD. Answers
/// how many were replaced.
std::uint64_t AppendValidUtf8(std::string_view text, std::string& out);

/// A path as UTF-8, for messages.
std::string PathText(const std::u8string& path);

} // namespace SqliteBackend

#endif
