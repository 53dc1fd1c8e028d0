#pragma once

#include "Harness.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace Fuzz {

/// Takes an input apart. At its end it gives zeros and empty texts.
class Bytes {
public:
    explicit Bytes(Input input) : m_rest(input) {}

    [[nodiscard]] bool IsEmpty() const { return m_rest.empty(); }

    unsigned char Byte() {
        if (m_rest.empty())
            return 0;
        const unsigned char byte = m_rest.front();
        m_rest = m_rest.subspan(1);
        return byte;
    }

    /// A number below the bound, which is at most 256 and not 0.
    std::size_t Below(std::size_t bound) { return Byte() % bound; }

    bool Bool() { return Byte() % 2 != 0; }

    std::uint32_t Number() {
        std::uint32_t number = 0;
        for (int count = 0; count < 4; ++count)
            number = number << 8 | Byte();
        return number;
    }

    /// The characters up to a line feed or the end.
    std::wstring Text() {
        std::wstring text;
        while (!m_rest.empty()) {
            const unsigned char byte = Byte();
            if (byte == '\n')
                break;
            if (byte != 0)
                text.push_back(Character(byte));
        }
        return text;
    }

private:
    /// Bytes above 0x7F are characters that a conversion to eight bits takes for a number.
    static wchar_t Character(unsigned char byte) {
        constexpr std::string_view digits = "0123456789+-.eE ";
        return static_cast<wchar_t>(byte < 0x80 ? byte : (byte - 0x7F) * 0x100 + digits[byte % digits.size()]);
    }

    Input m_rest;
};

} // namespace Fuzz
