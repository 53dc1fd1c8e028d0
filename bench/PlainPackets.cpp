#include "Data.h"
#include "Model.h"
#include "PlainModel.h"

namespace Bench::Plain {

namespace {

struct DataObject;
struct BitField;
struct Gap;

struct Visitor {
    virtual ~Visitor() = default;
    virtual void Visit(DataObject& object) = 0;
    virtual void Visit(BitField& bitField) = 0;
    virtual void Visit(Gap& gap) = 0;
};

struct Interchangeable : Qualified {
    using Qualified::Qualified;
    virtual void Accept(Visitor& visitor) = 0;
};

struct DataObject : Interchangeable {
    using Interchangeable::Interchangeable;

    void Accept(Visitor& visitor) override { visitor.Visit(*this); }

    unsigned int semantics = 0;
    void* dataType = nullptr;
    bool hasDefault = false;
    Value defaultValue;
    bool hasConstant = false;
    Value constant;
    DataObject* selector = nullptr;
};

struct BitField : Interchangeable {
    using Interchangeable::Interchangeable;

    void Accept(Visitor& visitor) override { visitor.Visit(*this); }

    unsigned int semantics = 0;
    void* dataType = nullptr;
    Owned<Interchangeable> members;
};

struct Gap : Interchangeable {
    using Interchangeable::Interchangeable;

    void Accept(Visitor& visitor) override { visitor.Visit(*this); }

    unsigned int bitLength = 0;
};

struct Packet : Qualified {
    using Qualified::Qualified;

    Owned<Range> invalidRanges;
    unsigned int reason = 0;
    bool mayBeModified = true;
    unsigned int layer = 0;
    Owned<Interchangeable> members;
    bool hasDid = false;
    unsigned int did = 0;
    bool showContentsOnlyForTester = false;
};

template <class T>
T& AddNew(Owned<Interchangeable>& members, Document& document, const std::wstring& qualifier) {
    auto member = std::make_unique<T>(document);
    member->qualifier = qualifier.c_str();
    T& added = *member;
    members.push_back(std::move(member));
    return added;
}

std::unique_ptr<Packet> MakePacket(Document& document, const PacketData<wchar_t>& data) {
    auto packet = std::make_unique<Packet>(document);
    packet->qualifier = data.qualifier.c_str();
    for (const auto& qualifier : data.objects) {
        auto& object = AddNew<DataObject>(packet->members, document, qualifier);
        object.hasConstant = true;
        object.constant.text = data.constant.c_str();
    }
    auto& bitField = AddNew<BitField>(packet->members, document, data.bitField);
    for (const auto& qualifier : data.bits)
        AddNew<DataObject>(bitField.members, document, qualifier);
    AddNew<Gap>(packet->members, document, {}).bitLength = data.gap;
    return packet;
}

class Walker : public Visitor {
public:
    explicit Walker(Depth depth) : m_checksum(depth) {}

    void Walk(Packet& packet) {
        m_checksum.Add(packet.qualifier);
        Walk(packet.members);
    }

    void Visit(DataObject& object) override {
        m_checksum.Add(object.qualifier);
        m_checksum.Add(std::uint64_t{object.hasConstant});
        if (m_checksum.IsWhole() && object.hasConstant)
            m_checksum.Add(object.constant.text);
    }

    void Visit(BitField& bitField) override {
        m_checksum.Add(bitField.qualifier);
        Walk(bitField.members);
    }

    void Visit(Gap& gap) override { m_checksum.Add(std::uint64_t{gap.bitLength}); }

    [[nodiscard]] std::uint64_t Value() const { return m_checksum.Value(); }

private:
    void Walk(Owned<Interchangeable>& members) {
        for (const auto& member : members)
            member->Accept(*this);
    }

    Checksum m_checksum;
};

class Counter : public Visitor {
public:
    void Visit(DataObject&) override { ++m_count; }

    void Visit(BitField& bitField) override {
        ++m_count;
        Count(bitField.members);
    }

    void Visit(Gap&) override { ++m_count; }

    void Count(Owned<Interchangeable>& members) {
        for (const auto& member : members)
            member->Accept(*this);
    }

    [[nodiscard]] std::size_t Count() const { return m_count; }

private:
    std::size_t m_count = 0;
};

class PlainPackets : public Model {
public:
    void Build(std::size_t count) override {
        for (std::size_t index = 0; index < count; ++index)
            m_packets.push_back(MakePacket(m_document, Sample<PacketData<wchar_t>>(index)));
    }

    std::uint64_t Walk(Depth depth) override {
        Walker walker(depth);
        for (const auto& packet : m_packets)
            walker.Walk(*packet);
        return walker.Value();
    }

    std::size_t ImportedCount() override { return CountImported(m_packets); }

    std::size_t Traverse() override {
        Counter counter;
        for (const auto& packet : m_packets)
            counter.Count(packet->members);
        return counter.Count() + m_packets.size();
    }

    void Clear() override { m_packets.clear(); }

private:
    Document m_document;
    Owned<Packet> m_packets;
};

} // namespace

} // namespace Bench::Plain

std::unique_ptr<Bench::Model> Bench::MakePlainPackets() {
    return std::make_unique<Plain::PlainPackets>();
}
