#pragma once

#include "Model.h"

#include <google/protobuf/arena.h>
#include <models.pb.h>

#include <algorithm>

namespace Bench {

/// A model whose elements are messages of one type. The policy says where they lie in the document, fills them and
/// takes them into a checksum.
template <class Policy>
class ProtobufModel : public Model {
public:
    /// On an arena, or on the heap.
    explicit ProtobufModel(bool isOnArena)
        : m_owned(isOnArena ? nullptr : std::make_unique<bench::Document>()),
          m_document(isOnArena ? google::protobuf::Arena::CreateMessage<bench::Document>(&m_arena) : m_owned.get()) {}

    void Build(std::size_t count) override {
        auto& elements = Policy::Elements(*m_document);
        for (std::size_t index = 0; index < count; ++index)
            Policy::Fill(*elements.Add(), index);
    }

    std::uint64_t Walk(Depth depth) override {
        Checksum checksum(depth);
        for (const auto& element : Policy::Elements(*m_document))
            Policy::Add(checksum, element);
        return checksum.Value();
    }

    std::size_t ImportedCount() override {
        const auto& elements = Policy::Elements(*m_document);
        return static_cast<std::size_t>(std::count_if(elements.begin(), elements.end(), Policy::IsImported));
    }

    void Clear() override {
        auto& elements = Policy::Elements(*m_document);
        elements.DeleteSubrange(0, elements.size());
    }

protected:
    bench::Document& Document() { return *m_document; }

private:
    google::protobuf::Arena m_arena;
    std::unique_ptr<bench::Document> m_owned;
    bench::Document* m_document;
};

template <class T, bool isOnArena>
std::unique_ptr<Model> MakeProtobuf() {
    return std::make_unique<T>(isOnArena);
}

/// The two ways to hold one kind of elements.
template <class T>
std::vector<Subject> ProtobufSubjects() {
    return {{"protobuf", MakeProtobuf<T, false>}, {"arena", MakeProtobuf<T, true>}};
}

std::vector<Subject> ProtobufTroubleCodes();
std::vector<Subject> ProtobufDataTypes();
std::vector<Subject> ProtobufPackets();

} // namespace Bench
