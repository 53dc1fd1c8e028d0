#include "Utf8.h"

#include <cstddef>
#include <type_traits>

namespace NArdenaSharedUtil::Logging {

namespace {

constexpr char32_t s_replacementCharacter = 0xFFFD;

constexpr char32_t UnitAt(std::wstring_view text, std::size_t index) {
    return static_cast<std::make_unsigned_t<wchar_t>>(text[index]);
}

constexpr bool IsHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

constexpr bool IsLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

void AppendContinuation(std::string& utf8, char32_t bits) {
    utf8 += static_cast<char>(0x80U | (bits & 0x3FU));
}

void AppendCodePoint(std::string& utf8, char32_t codePoint) {
    if (codePoint < 0x80) {
        utf8 += static_cast<char>(codePoint);
    } else if (codePoint < 0x800) {
        utf8 += static_cast<char>(0xC0U | (codePoint >> 6U));
        AppendContinuation(utf8, codePoint);
    } else if (codePoint < 0x10000) {
        utf8 += static_cast<char>(0xE0U | (codePoint >> 12U));
        AppendContinuation(utf8, codePoint >> 6U);
        AppendContinuation(utf8, codePoint);
    } else {
        utf8 += static_cast<char>(0xF0U | (codePoint >> 18U));
        AppendContinuation(utf8, codePoint >> 12U);
        AppendContinuation(utf8, codePoint >> 6U);
        AppendContinuation(utf8, codePoint);
    }
}

} // namespace

void AppendUtf8(std::string& utf8, std::wstring_view text) {
    for (std::size_t index = 0; index < text.size(); ++index) {
        char32_t codePoint = UnitAt(text, index);
        const bool isPair =
            IsHighSurrogate(codePoint) && index + 1 < text.size() && IsLowSurrogate(UnitAt(text, index + 1));
        if (isPair) {
            ++index;
            codePoint = 0x10000 + ((codePoint - 0xD800) << 10U) + (UnitAt(text, index) - 0xDC00);
        } else if (IsHighSurrogate(codePoint) || IsLowSurrogate(codePoint) || codePoint > 0x10FFFF) {
            codePoint = s_replacementCharacter;
        }
        AppendCodePoint(utf8, codePoint);
    }
}

} // namespace NArdenaSharedUtil::Logging
