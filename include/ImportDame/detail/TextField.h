/// @file
/// The element texts of a value that is a field.
#pragma once

#include <ImportDame/detail/Text.h>

#include <algorithm>
#include <memory>
#include <span>
#include <vector>

namespace ImportDame::detail {

/// Texts in their order. One pointer in size, as few values are fields.
class TextField {
public:
    TextField() noexcept = default;

    TextField(const TextField& other)
        : m_texts(other.IsEmpty() ? nullptr : std::make_unique<std::vector<Text>>(*other.m_texts)) {}

    TextField(TextField&&) noexcept = default;
    TextField& operator=(const TextField&) = delete;
    TextField& operator=(TextField&&) noexcept = default;
    ~TextField() = default;

    [[nodiscard]] std::span<const Text> Texts() const noexcept {
        return m_texts ? std::span<const Text>(*m_texts) : std::span<const Text>();
    }

    [[nodiscard]] bool IsEmpty() const noexcept { return !m_texts || m_texts->empty(); }

    /// The same, to be changed. Changes nothing when it fails.
    [[nodiscard]] std::vector<Text>& Change() {
        if (!m_texts)
            m_texts = std::make_unique<std::vector<Text>>();
        return *m_texts;
    }

    void Clear() noexcept { m_texts.reset(); }

    bool operator==(const TextField& other) const noexcept { return std::ranges::equal(Texts(), other.Texts()); }

private:
    std::unique_ptr<std::vector<Text>> m_texts;
};

} // namespace ImportDame::detail
