#include "source/Sha256.h"

#include "source/Sha256Blocks.h"

#include <algorithm>

namespace OdxImport {

namespace {

std::string ToHex(const Sha256State& state) {
    static constexpr char digits[] = "0123456789abcdef";
    std::string text;
    for (const std::uint32_t word : state)
        for (int shift = 28; shift >= 0; shift -= 4)
            text += digits[(word >> shift) & 15];
    return text;
}

} // namespace

std::string Sha256(std::string_view bytes) {
    static const auto compress = CanAccelerateSha256() ? &CompressAccelerated : &CompressPortable;
    Sha256State state{0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a, 0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
    const std::size_t whole = bytes.size() / sha256BlockSize;
    // NOLINTNEXTLINE(bugprone-suspicious-stringview-data-usage): the number of blocks goes with it
    compress(state, bytes.data(), whole);

    const std::string_view rest = bytes.substr(whole * sha256BlockSize);
    std::array<char, 2 * sha256BlockSize> tail{};
    std::copy(rest.begin(), rest.end(), tail.begin());
    tail[rest.size()] = static_cast<char>(0x80);
    const std::size_t tailBlocks = rest.size() + 9 <= sha256BlockSize ? 1 : 2;
    const std::uint64_t bits = std::uint64_t{bytes.size()} * 8;
    for (std::size_t i = 0; i < 8; ++i)
        tail[tailBlocks * sha256BlockSize - 1 - i] = static_cast<char>((bits >> (8 * i)) & 0xFF);
    compress(state, tail.data(), tailBlocks);
    return ToHex(state);
}

} // namespace OdxImport
