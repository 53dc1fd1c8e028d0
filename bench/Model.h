#pragma once

#include "Checksum.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace Bench {

/// Thrown by the operations that a model does not have.
struct NotOffered {};

/// A document with any number of elements of one kind, held in one way or another.
class Model {
public:
    Model() = default;
    Model(const Model&) = delete;
    Model& operator=(const Model&) = delete;
    virtual ~Model() = default;

    virtual void Build(std::size_t count) = 0;
    [[nodiscard]] virtual std::uint64_t Walk(Depth depth) = 0;
    virtual void Clear() = 0;

    /// A second collection with the same elements, in the same document.
    virtual void Copy() { throw NotOffered(); }

    /// Looks for what is in none of the elements, so that all of them are looked at.
    [[nodiscard]] virtual bool FindCode(unsigned int) { throw NotOffered(); }

    [[nodiscard]] virtual bool FindQualifier(const wchar_t*) { throw NotOffered(); }

    [[nodiscard]] virtual std::size_t ImportedCount() { throw NotOffered(); }

    /// Reads the limits of every row and segment.
    [[nodiscard]] virtual std::uint64_t ReadLimits() { throw NotOffered(); }

    /// The number of objects that a visitor meets.
    [[nodiscard]] virtual std::size_t Traverse() { throw NotOffered(); }

    virtual void Dump() { throw NotOffered(); }

    virtual void InitCache() { throw NotOffered(); }

    /// The number of elements found by their qualifiers.
    [[nodiscard]] virtual std::size_t LookUp(std::size_t) { throw NotOffered(); }

    virtual void RemoveFromFront(std::size_t) { throw NotOffered(); }
};

/// One way to hold the elements of a scenario.
struct Subject {
    const char* name;
    std::unique_ptr<Model> (*make)();
};

/// A kind of elements; the library comes first, then the plain structs, then the peers of this platform.
struct Scenario {
    const char* name;
    std::vector<Subject> subjects;
};

const std::vector<Scenario>& Scenarios();

std::unique_ptr<Model> MakeLibraryTroubleCodes();
std::unique_ptr<Model> MakeLibraryDataTypes();
std::unique_ptr<Model> MakeLibraryPackets();
std::unique_ptr<Model> MakeLibraryVariant();

std::unique_ptr<Model> MakePlainTroubleCodes();
std::unique_ptr<Model> MakePlainDataTypes();
std::unique_ptr<Model> MakePlainPackets();
std::unique_ptr<Model> MakePlainVariant();

std::unique_ptr<Model> MakePugiTroubleCodes();
std::unique_ptr<Model> MakePugiDataTypes();
std::unique_ptr<Model> MakePugiPackets();

/// Adds what needs protobuf, where there is one: on the heap and on an arena.
void AddProtobuf(std::vector<Scenario>& scenarios);

} // namespace Bench
