#include "PlainPackets.h"

#include "Data.h"
#include "Model.h"

namespace Bench::Plain::Packets {

namespace {

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

    void Visit(Packet& packet) override {
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

class Counter : public Traverser {
public:
    void PreProcess(DataObject&) override { ++m_count; }

    void PreProcess(BitField&) override { ++m_count; }

    void PreProcess(Gap&) override { ++m_count; }

    void PreProcess(Packet&) override { ++m_count; }

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
            packet->Accept(walker);
        return walker.Value();
    }

    std::size_t ImportedCount() override { return CountImported(m_packets); }

    std::size_t Traverse() override {
        Counter counter;
        for (const auto& packet : m_packets)
            packet->Accept(counter);
        return counter.Count();
    }

    void Clear() override { m_packets.clear(); }

private:
    Document m_document;
    Owned<Packet> m_packets;
};

} // namespace

} // namespace Bench::Plain::Packets

std::unique_ptr<Bench::Model> Bench::MakePlainPackets() {
    return std::make_unique<Plain::Packets::PlainPackets>();
}
