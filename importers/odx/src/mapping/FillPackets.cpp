#include "mapping/DataTypes.h"
#include "mapping/Params.h"
#include "mapping/UniqueNames.h"

#include <ImportDame/BitField.h>
#include <ImportDame/GapObject.h>
#include <ImportDame/InterchangeableCollection.h>
#include <ImportDame/PacketDataType.h>

#include <algorithm>
#include <limits>

namespace OdxImport {

using ImportDame::VDataType;
using ImportDame::VInterchangeableCollection;

namespace {

constexpr std::uint64_t unknownByte = std::numeric_limits<std::uint64_t>::max();

/// Which datum a request or response is about. Its identifier may be in two constants of a byte each.
std::optional<std::uint32_t> DidOf(std::vector<CodedConstant> constants) {
    std::erase_if(constants, [](const CodedConstant& constant) {
        return !constant.value || (constant.semantic != "DATA-ID" && constant.semantic != "ID");
    });
    if (constants.empty())
        return std::nullopt;
    const CodedConstant& first =
        *std::min_element(constants.begin(), constants.end(), [](const CodedConstant& a, const CodedConstant& b) {
            return a.byte.value_or(unknownByte) < b.byte.value_or(unknownByte);
        });
    return first.byte ? ValueOfTwoBytesAt(constants, *first.byte) : first.value;
}

bool HasBitsOfBytes(const Placement& at) {
    return at.bit != 0 || at.bits.value_or(0) % 8 != 0;
}

/// Where a member says it lies, for members whose place what is before them does not tell.
void AddPosition(ImportDame::VQualified& member, const std::optional<std::uint64_t>& position) {
    if (!position)
        return;
    AddAttribute(member.Attributes(), L"BYTE-POSITION", std::to_wstring(*position / 8));
    if (*position % 8 != 0)
        AddAttribute(member.Attributes(), L"BIT-POSITION", std::to_wstring(*position % 8));
}

/// After its first byte, or where that is not known, after its parameter.
std::wstring NameOfGroup(const LayoutItem& group, const std::vector<Element>& params) {
    if (group.byte)
        return L"Bits_" + std::to_wstring(*group.byte);
    const auto member = std::find_if(group.items.begin(), group.items.end(),
                                     [](const LayoutItem& item) { return item.kind == LayoutItem::Param; });
    return L"Bits_" + Naming::MentionOf(params[member->param]);
}

} // namespace

void DataTypes::FillPacket(VDataType& type, Element element) {
    auto& packet = static_cast<ImportDame::VPacketDataType&>(type);
    const Numbers numbers(m_workspace.Report());
    std::vector<Element> params;
    std::vector<Placement> placements;
    UniqueNames names(m_workspace);
    for (const Element param : Children(element.Take("PARAMS"), "PARAM")) {
        if (!Params::IsKnown(param.Attribute("type"))) {
            m_workspace.ReportAt(param, Rule::ParamTypeUnknown,
                                 "xsi:type is \"" + std::string(param.Attribute("type")) + "\"");
            param.LeaveOut(Fate::Dropped, "the kind of parameter is not known");
            continue;
        }
        names.Add(param);
        params.push_back(param);
        placements.push_back(PlacementOf(param, numbers, 0));
    }
    // The order of bytes counts only where parameters share them.
    if (std::any_of(placements.begin(), placements.end(), HasBitsOfBytes))
        for (std::size_t i = 0; i < params.size(); ++i)
            if (placements[i].bit + placements[i].bits.value_or(0) > 8)
                placements[i].order = OrderOfParam(params[i]);
    std::optional<std::uint64_t> total;
    if (const auto bytes = numbers.Whole(element.Take("BYTE-SIZE"), 0x0FFFFFFF))
        total = std::uint64_t{*bytes} * 8;
    AddMembers(type, packet.InterchangeableCollection(), LayOut(placements, total), params);
    if (const auto did = DidOf(CodedConstantsOf(params, placements, m_workspace)))
        packet.SetDid(*did);
    if (element.Is("ENV-DATA")) {
        element.Take("ALL-VALUE");
        for (const Element value : Children(element.Take("DTC-VALUES"), "DTC-VALUE"))
            numbers.Constant(value.Taken(), ValueKind::Whole);
    }
}

void DataTypes::AddMembers(VDataType& packet, VInterchangeableCollection& members, const std::vector<LayoutItem>& items,
                           const std::vector<Element>& params) {
    Params reader(m_workspace, m_naming, *this, packet);
    for (const LayoutItem& item : items) {
        switch (item.kind) {
        case LayoutItem::Param:
            if (item.isOverlapping)
                m_workspace.ReportAt(params[item.param], Rule::ParamsOverlap,
                                     "the parameter begins on bits that another one has");
            AddPosition(reader.Add(members, params[item.param]), item.position);
            break;
        case LayoutItem::Gap:
            members.AddNewGapObject().SetBitLength(static_cast<unsigned int>(item.bits));
            break;
        case LayoutItem::Group: {
            ImportDame::VBitField& group = members.AddNewBitField();
            group.SetQualifier(NameOfGroup(item, params).c_str());
            AddPosition(group, item.position);
            AddMembers(packet, group.InterchangeableCollection(), item.items, params);
            break;
        }
        }
    }
}

} // namespace OdxImport
