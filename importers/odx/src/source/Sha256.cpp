#include "source/Sha256.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

namespace OdxImport {

namespace {

constexpr std::size_t blockSize = 64;

constexpr std::array<std::uint32_t, 64> roundConstants{
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};

using State = std::array<std::uint32_t, 8>;

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

void Compress(State& state, const char* block) {
    const std::array<std::uint32_t, 64> words = Schedule(block);
    auto [a, b, c, d, e, f, g, h] = state;
    for (std::size_t i = 0; i < 64; ++i) {
        const std::uint32_t s1 = std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25);
        const std::uint32_t t1 = h + s1 + ((e & f) ^ (~e & g)) + roundConstants[i] + words[i];
        const std::uint32_t s0 = std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22);
        const std::uint32_t t2 = s0 + ((a & b) ^ (a & c) ^ (b & c));
        h = g, g = f, f = e, e = d + t1, d = c, c = b, b = a, a = t1 + t2;
    }
    const State sum{a, b, c, d, e, f, g, h};
    for (std::size_t i = 0; i < 8; ++i)
        state[i] += sum[i];
}

std::string ToHex(const State& state) {
    static constexpr char digits[] = "0123456789abcdef";
    std::string text;
    for (const std::uint32_t word : state)
        for (int shift = 28; shift >= 0; shift -= 4)
            text += digits[(word >> shift) & 15];
    return text;
}

} // namespace

std::string Sha256(std::string_view bytes) {
    State state{0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a, 0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
    std::size_t at = 0;
    for (; at + blockSize <= bytes.size(); at += blockSize)
        Compress(state, bytes.data() + at);

    std::array<char, 2 * blockSize> tail{};
    const std::size_t rest = bytes.size() - at;
    std::copy_n(bytes.data() + at, rest, tail.data());
    tail[rest] = static_cast<char>(0x80);
    const std::size_t tailSize = rest + 9 <= blockSize ? blockSize : 2 * blockSize;
    const std::uint64_t bits = std::uint64_t{bytes.size()} * 8;
    for (std::size_t i = 0; i < 8; ++i)
        tail[tailSize - 1 - i] = static_cast<char>((bits >> (8 * i)) & 0xFF);
    for (std::size_t i = 0; i < tailSize; i += blockSize)
        Compress(state, tail.data() + i);
    return ToHex(state);
}

} // namespace OdxImport
