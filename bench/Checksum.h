#pragma once

#include <cstdint>
#include <string_view>

namespace Bench {

/// How a walk looks at a text.
enum class Depth {
    touch, ///< Its first character only: what is measured.
    whole  ///< Every character: whether two models hold the same.
};

/// What a walk saw, in its order.
class Checksum {
public:
    explicit Checksum(Depth depth) noexcept : m_depth(depth) {}

    void Add(std::uint64_t number) noexcept { m_sum = (m_sum ^ number) * 0x100000001B3; }

    template <class Character>
    void Add(const Character* text) noexcept {
        if (m_depth == Depth::touch)
            Add(static_cast<std::uint64_t>(*text));
        else
            for (; *text; ++text)
                Add(static_cast<std::uint64_t>(*text));
    }

    [[nodiscard]] std::uint64_t Value() const noexcept { return m_sum; }

private:
    Depth m_depth;
    std::uint64_t m_sum = 0xCBF29CE484222325;
};

} // namespace Bench
