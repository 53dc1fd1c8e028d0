/// @file
/// A harness takes any bytes, makes something of them, and throws a Finding when the library or the importer does not
/// behave.
#pragma once

#include <cstddef>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace Fuzz {

using Input = std::span<const unsigned char>;

/// What a harness found. Everything else that comes out of a harness is a finding as well.
class Finding : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

inline void Expect(bool holds, const char* what) {
    if (!holds)
        throw Finding(what);
}

/// Changes the first `size` bytes of `data`, of which there are `capacity`, and answers how many count then.
using Mutator = std::size_t (*)(unsigned char* data, std::size_t size, std::size_t capacity, unsigned int seed);

struct Harness {
    const char* name; ///< also of the folder with its corpus
    void (*run)(Input input);
    Mutator mutator; ///< null for none but the fuzzer's own
};

const std::vector<Harness>& AllHarnesses();

void ParseNumbers(Input input);
void SplitFields(Input input);
void CompareValues(Input input);
void OperateOnDocument(Input input);
void ImportXml(Input input);
void ImportArchive(Input input);

} // namespace Fuzz
