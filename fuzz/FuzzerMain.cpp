/// @file
/// The fuzzer: `Fuzzers --harness=NAME [option of libFuzzer...] FOLDER...`

#include "Harness.h"

#include <KoLogging/Logging.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string_view>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t capacity);
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t capacity,
                                               unsigned int seed);

namespace {

const Fuzz::Harness* g_harness = nullptr;

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    constexpr std::string_view option = "--harness=";
    for (const char* const argument : std::span(*argv, static_cast<std::size_t>(*argc)))
        if (std::string_view(argument).starts_with(option))
            for (const Fuzz::Harness& harness : Fuzz::AllHarnesses())
                if (std::string_view(argument).substr(option.size()) == harness.name)
                    g_harness = &harness;
    if (g_harness == nullptr) {
        std::cerr << "--harness= is missing or names none\n";
        std::exit(2);
    }
    NArdenaSharedUtil::Logging::VLogging::GetInstance().SetEnabled(false);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    g_harness->run({data, size});
    return 0;
}

/// Half of the changes are the fuzzer's own.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t capacity,
                                               unsigned int seed) {
    if (g_harness->mutator == nullptr || seed % 2 == 0)
        return LLVMFuzzerMutate(data, size, capacity);
    return g_harness->mutator(data, size, capacity, seed / 2);
}
