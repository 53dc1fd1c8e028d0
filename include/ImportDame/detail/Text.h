/// @file
/// The representation of every text that the model holds.
#pragma once

#include <cstddef>
#include <string_view>
#include <utility>

namespace ImportDame::detail {

/// A zero-terminated wide text of one pointer: null when empty, otherwise the characters of a block of its own, with
/// their number in front of them. Every changing operation either succeeds or leaves the text as it was, and may be
/// given the text itself or a part of it.
class Text {
public:
    Text() noexcept = default;

    explicit Text(std::wstring_view text) : m_characters(MakeBlock(text)) {}

    Text(const Text& other) : m_characters(MakeBlock(other.View())) {}

    Text(Text&& other) noexcept : m_characters(std::exchange(other.m_characters, nullptr)) {}

    ~Text() {
        if (m_characters) // most texts of a model are empty
            FreeBlock(m_characters);
    }

    Text& operator=(const Text& other) {
        Set(other.View());
        return *this;
    }

    Text& operator=(Text&& other) noexcept {
        std::swap(m_characters, other.m_characters);
        return *this;
    }

    /// Requires: text is not null.
    void Set(const wchar_t* text) { Set(std::wstring_view(text)); }

    void Set(std::wstring_view text) { FreeBlock(std::exchange(m_characters, MakeBlock(text))); }

    void Clear() noexcept { FreeBlock(std::exchange(m_characters, nullptr)); }

    /// Never null; valid until the text changes or dies.
    [[nodiscard]] const wchar_t* Get() const noexcept { return m_characters ? m_characters : L""; }

    [[nodiscard]] std::size_t Length() const noexcept { return m_characters ? BlockLength(m_characters) : 0; }

    [[nodiscard]] bool IsEmpty() const noexcept { return m_characters == nullptr; }

    [[nodiscard]] std::wstring_view View() const noexcept { return {Get(), Length()}; }

    friend bool operator==(const Text& left, const Text& right) noexcept { return left.View() == right.View(); }

private:
    static wchar_t* MakeBlock(std::wstring_view text);
    static void FreeBlock(wchar_t* characters) noexcept;
    static std::size_t BlockLength(const wchar_t* characters) noexcept;

    wchar_t* m_characters = nullptr;
};

} // namespace ImportDame::detail
