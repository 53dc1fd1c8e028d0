#pragma once

#include "Checksum.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace Bench {

/// A document with one collection of trouble codes, held in one way or another.
class TroubleCodeModel {
public:
    TroubleCodeModel() = default;
    TroubleCodeModel(const TroubleCodeModel&) = delete;
    TroubleCodeModel& operator=(const TroubleCodeModel&) = delete;
    virtual ~TroubleCodeModel() = default;

    virtual void Build(std::size_t count) = 0;
    [[nodiscard]] virtual std::uint64_t Walk(Depth depth) = 0;

    /// A second collection with the same trouble codes, in the same document.
    virtual void Copy() = 0;

    /// Whether there is a trouble code with this code.
    [[nodiscard]] virtual bool Find(unsigned int code) = 0;
    [[nodiscard]] virtual std::size_t ImportedCount() = 0;
    virtual void RemoveFromFront(std::size_t count) = 0;
    virtual void Clear() = 0;
};

std::unique_ptr<TroubleCodeModel> MakeLibraryModel();
std::unique_ptr<TroubleCodeModel> MakePlainModel();
std::unique_ptr<TroubleCodeModel> MakePugiModel();
std::unique_ptr<TroubleCodeModel> MakeProtobufModel();
std::unique_ptr<TroubleCodeModel> MakeProtobufArenaModel();

struct Subject {
    const char* name;
    std::unique_ptr<TroubleCodeModel> (*make)();
};

/// The library first, then what it is compared with on this platform.
const std::vector<Subject>& Subjects();

} // namespace Bench
