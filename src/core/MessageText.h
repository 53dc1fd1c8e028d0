/// @file
/// A message that is composed without allocating.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace ImportDame::detail {

/// A zero-terminated wide text in a buffer of fixed size; what does not fit is cut.
class MessageText {
public:
    MessageText& operator<<(std::wstring_view text) noexcept { return Append(text); }

    /// The text must be ASCII.
    MessageText& operator<<(std::string_view text) noexcept { return Append(text); }

    /// Plain decimal digits, whatever the locale.
    MessageText& operator<<(unsigned long number) noexcept;

    [[nodiscard]] const wchar_t* Get() const noexcept { return m_characters.data(); }

    [[nodiscard]] bool IsEmpty() const noexcept { return m_length == 0; }

private:
    template <class Characters>
    MessageText& Append(Characters text) noexcept {
        for (const auto character : text)
            if (m_length + 1 < m_characters.size())
                m_characters[m_length++] = static_cast<wchar_t>(character);
        return *this;
    }

    std::array<wchar_t, 1024> m_characters{};
    std::size_t m_length = 0;
};

} // namespace ImportDame::detail
