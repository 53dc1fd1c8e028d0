// With the SHA extensions of x86-64.
// NOLINTBEGIN(portability-simd-intrinsics): that is what this file is for; Sha256Portable.cpp does without.

#include "source/Sha256Blocks.h"

#include <cpuid.h>
#include <immintrin.h>

namespace OdxImport {

namespace {

__m128i Load(const void* from) {
    return _mm_loadu_si128(static_cast<const __m128i*>(from));
}

void Store(void* to, __m128i value) {
    _mm_storeu_si128(static_cast<__m128i*>(to), value);
}

/// The instructions want the words a, b, e, f in one register and c, d, g, h in the other.
struct Halves {
    __m128i abef;
    __m128i cdgh;
};

__attribute__((target("sha,sse4.1"))) Halves Split(const Sha256State& state) {
    const __m128i cdab = _mm_shuffle_epi32(Load(&state[0]), 0xB1);
    const __m128i efgh = _mm_shuffle_epi32(Load(&state[4]), 0x1B);
    return {_mm_alignr_epi8(cdab, efgh, 8), _mm_blend_epi16(efgh, cdab, 0xF0)};
}

__attribute__((target("sha,sse4.1"))) void Join(Sha256State& state, const Halves& halves) {
    const __m128i feba = _mm_shuffle_epi32(halves.abef, 0x1B);
    const __m128i dchg = _mm_shuffle_epi32(halves.cdgh, 0xB1);
    Store(&state[0], _mm_blend_epi16(feba, dchg, 0xF0));
    Store(&state[4], _mm_alignr_epi8(dchg, feba, 8));
}

__attribute__((target("sha,sse4.1"))) void CompressBlock(Halves& halves, const char* block) {
    const __m128i bigEndian = _mm_set_epi64x(0x0c0d0e0f08090a0b, 0x0405060700010203);
    __m128i words[4];
    for (std::size_t i = 0; i < 4; ++i)
        words[i] = _mm_shuffle_epi8(Load(block + 16 * i), bigEndian);
    const Halves before = halves;
    for (std::size_t i = 0; i < 16; ++i) {
        const __m128i next = _mm_add_epi32(words[i % 4], Load(&sha256Constants[4 * i]));
        halves.cdgh = _mm_sha256rnds2_epu32(halves.cdgh, halves.abef, next);
        halves.abef = _mm_sha256rnds2_epu32(halves.abef, halves.cdgh, _mm_shuffle_epi32(next, 0x0E));
        if (i < 12) { // the four words that are four steps ahead
            const __m128i w1 = words[(i + 1) % 4], w2 = words[(i + 2) % 4], w3 = words[(i + 3) % 4];
            const __m128i sum = _mm_add_epi32(_mm_sha256msg1_epu32(words[i % 4], w1), _mm_alignr_epi8(w3, w2, 4));
            words[i % 4] = _mm_sha256msg2_epu32(sum, w3);
        }
    }
    halves.abef = _mm_add_epi32(halves.abef, before.abef);
    halves.cdgh = _mm_add_epi32(halves.cdgh, before.cdgh);
}

} // namespace

bool CanAccelerateSha256() {
    constexpr unsigned sse41 = 1u << 19, ssse3 = 1u << 9, sha = 1u << 29;
    unsigned a = 0, b = 0, c = 0, d = 0;
    if (__get_cpuid(1, &a, &b, &c, &d) == 0 || (c & (sse41 | ssse3)) != (sse41 | ssse3))
        return false;
    return __get_cpuid_count(7, 0, &a, &b, &c, &d) != 0 && (b & sha) != 0;
}

__attribute__((target("sha,sse4.1"))) void CompressAccelerated(Sha256State& state, const char* blocks,
                                                               std::size_t count) {
    Halves halves = Split(state);
    for (; count != 0; --count, blocks += sha256BlockSize)
        CompressBlock(halves, blocks);
    Join(state, halves);
}

} // namespace OdxImport

// NOLINTEND(portability-simd-intrinsics)
