#include "Data.h"
#include "LibraryTraversal.h"
#include "Model.h"

#include <ImportDame/ImportDame.h>

namespace Bench {

namespace {

using namespace ImportDame;

void Fill(VPacketDataType& packet, const PacketData<wchar_t>& data) {
    packet.SetQualifier(data.qualifier.c_str());
    VInterchangeableCollection& members = packet.InterchangeableCollection();
    for (const auto& qualifier : data.objects) {
        VDataObject& object = members.AddNewDataObject();
        object.SetQualifier(qualifier.c_str());
        object.SetConstValue(VValue(data.constant.c_str()));
    }
    VBitField& bitField = members.AddNewBitField();
    bitField.SetQualifier(data.bitField.c_str());
    for (const auto& qualifier : data.bits)
        bitField.InterchangeableCollection().AddNewDataObject().SetQualifier(qualifier.c_str());
    members.AddNewGapObject().SetBitLength(data.gap);
}

class Walker : public VInterchangeableVisitor {
public:
    explicit Walker(Depth depth) : m_checksum(depth) {}

    void Walk(VDataType& packet) {
        m_checksum.Add(packet.GetQualifier());
        Walk(static_cast<VPacketDataType&>(packet).InterchangeableCollection()); // there are no others
    }

    void VisitDataObject(VDataObject& object) override {
        m_checksum.Add(object.GetQualifier());
        m_checksum.Add(std::uint64_t{object.HasConstValue()});
        if (m_checksum.IsWhole() && object.HasConstValue())
            m_checksum.Add(object.GetConstValue().Get());
    }

    void VisitBitField(VBitField& bitField) override {
        m_checksum.Add(bitField.GetQualifier());
        Walk(bitField.InterchangeableCollection());
    }

    void VisitGapObject(VGapObject& gap) override { m_checksum.Add(std::uint64_t{gap.GetBitLength()}); }

    [[nodiscard]] std::uint64_t Value() const { return m_checksum.Value(); }

private:
    void Walk(VInterchangeableCollection& members) {
        for (VInterchangeable& member : members)
            member.Accept(*this);
    }

    Checksum m_checksum;
};

class LibraryPackets : public Model {
public:
    void Build(std::size_t count) override {
        for (std::size_t index = 0; index < count; ++index)
            Fill(Types().AddNewPacketDataType(), Sample<PacketData<wchar_t>>(index));
    }

    std::uint64_t Walk(Depth depth) override {
        Walker walker(depth);
        for (VDataType& packet : Types())
            walker.Walk(packet);
        return walker.Value();
    }

    std::size_t ImportedCount() override { return Types().ImportedCount(); }

    std::size_t Traverse() override { return CountByTraverser(m_document); }

    void Dump() override { DumpToNowhere(m_document); }

    void Clear() override { Types().Clear(); }

private:
    VDataTypeCollection& Types() { return m_document.DataTypeCollection(); }

    VImportDoc m_document;
};

} // namespace

std::unique_ptr<Model> MakeLibraryPackets() {
    return std::make_unique<LibraryPackets>();
}

} // namespace Bench
