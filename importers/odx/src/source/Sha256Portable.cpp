#include "source/Sha256Blocks.h"

#include <bit>
#include <cstring>

namespace OdxImport {

namespace {

std::array<std::uint32_t, 64> Schedule(const char* block) {
    std::array<std::uint32_t, 64> words;
    for (std::size_t i = 0; i < 16; ++i) {
        std::array<unsigned char, 4> bytes;
        std::memcpy(bytes.data(), block + 4 * i, 4);
        words[i] =
            std::uint32_t{bytes[0]} << 24 | std::uint32_t{bytes[1]} << 16 | std::uint32_t{bytes[2]} << 8 | bytes[3];
    }
    for (std::size_t i = 16; i < 64; ++i) {
        const std::uint32_t a = words[i - 15], b = words[i - 2];
        const std::uint32_t s0 = std::rotr(a, 7) ^ std::rotr(a, 18) ^ (a >> 3);
        const std::uint32_t s1 = std::rotr(b, 17) ^ std::rotr(b, 19) ^ (b >> 10);
        words[i] = words[i - 16] + s0 + words[i - 7] + s1;
    }
    return words;
}

void CompressBlock(Sha256State& state, const char* block) {
    const std::array<std::uint32_t, 64> words = Schedule(block);
    auto [a, b, c, d, e, f, g, h] = state;
    for (std::size_t i = 0; i < 64; ++i) {
        const std::uint32_t s1 = std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25);
        const std::uint32_t t1 = h + s1 + ((e & f) ^ (~e & g)) + sha256Constants[i] + words[i];
        const std::uint32_t s0 = std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22);
        const std::uint32_t t2 = s0 + ((a & b) ^ (a & c) ^ (b & c));
        h = g, g = f, f = e, e = d + t1, d = c, c = b, b = a, a = t1 + t2;
    }
    const Sha256State sum{a, b, c, d, e, f, g, h};
    for (std::size_t i = 0; i < 8; ++i)
        state[i] += sum[i];
}

} // namespace

void CompressPortable(Sha256State& state, const char* blocks, std::size_t count) {
    for (; count != 0; --count, blocks += sha256BlockSize)
        CompressBlock(state, blocks);
}

} // namespace OdxImport
