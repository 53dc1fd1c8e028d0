#pragma once

#include <bit>
#include <cstdint>
#include <string>

namespace Bench {

/// How a walk looks at a text.
enum class Depth {
    touch, ///< Its first character only: what is measured.
    whole  ///< Every character, and what a walk leaves out: whether two models hold the same.
};

/// What a walk saw, in its order.
class Checksum {
public:
    explicit Checksum(Depth depth) noexcept : m_depth(depth) {}

    [[nodiscard]] bool IsWhole() const noexcept { return m_depth == Depth::whole; }

    void Add(std::uint64_t number) noexcept { m_sum = (m_sum ^ number) * 0x100000001B3; }

    void Add(double number) noexcept { Add(std::bit_cast<std::uint64_t>(number)); }

    template <class Character>
    void Add(const Character* text) noexcept {
        if (m_depth == Depth::touch)
            return Add(static_cast<std::uint64_t>(*text));
        for (; *text; ++text)
            Add(static_cast<std::uint64_t>(*text));
    }

    template <class Character>
    void Add(const std::basic_string<Character>& text) noexcept {
        Add(text.c_str());
    }

    /// Takes the elements of a set in: their order does not count.
    template <class Range, class Operation>
    void AddSet(Range&& range, Operation operation) {
        std::uint64_t sum = 0;
        for (auto& element : range) {
            Checksum checksum(m_depth);
            operation(checksum, element);
            sum += checksum.m_sum;
        }
        Add(sum);
    }

    [[nodiscard]] std::uint64_t Value() const noexcept { return m_sum; }

private:
    Depth m_depth;
    std::uint64_t m_sum = 0xCBF29CE484222325;
};

} // namespace Bench
