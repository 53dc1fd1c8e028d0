#include "mapping/DataTypes.h"
#include "mapping/Params.h"

#include <ImportDame/BitField.h>
#include <ImportDame/GapObject.h>
#include <ImportDame/InterchangeableCollection.h>
#include <ImportDame/PacketDataType.h>

namespace OdxImport {

using ImportDame::VDataType;
using ImportDame::VInterchangeableCollection;

namespace {

/// The constant that says which datum a request or response is about.
std::optional<std::uint32_t> DidOf(const std::vector<Element>& params, const Numbers& numbers) {
    for (const Element param : params) {
        const std::string_view semantic = param.Attribute("SEMANTIC");
        if (param.Attribute("type") == "CODED-CONST" && (semantic == "DATA-ID" || semantic == "ID"))
            return numbers.Whole(param.Child("CODED-VALUE"));
    }
    return std::nullopt;
}

} // namespace

void DataTypes::FillPacket(VDataType& type, Element element) {
    auto& packet = static_cast<ImportDame::VPacketDataType&>(type);
    const Numbers numbers(m_workspace.Report());
    std::vector<Element> params;
    std::vector<Placement> placements;
    for (const Element param : Children(element.Take("PARAMS"), "PARAM")) {
        if (!Params::IsKnown(param.Attribute("type"))) {
            m_workspace.ReportAt(param, Rule::ParamTypeUnknown,
                                 "xsi:type is \"" + std::string(param.Attribute("type")) + "\"");
            param.LeaveOut(Fate::Dropped, "the kind of parameter is not known");
            continue;
        }
        params.push_back(param);
        placements.push_back(PlacementOf(param, numbers, 0));
    }
    std::optional<std::uint64_t> total;
    if (const auto bytes = numbers.Whole(element.Take("BYTE-SIZE"), 0x0FFFFFFF))
        total = std::uint64_t{*bytes} * 8;
    AddMembers(type, packet.InterchangeableCollection(), LayOut(placements, total), params);
    if (const auto did = DidOf(params, numbers))
        packet.SetDid(*did);
    if (element.Is("ENV-DATA")) {
        element.Take("ALL-VALUE");
        element.Child("DTC-VALUES").TakeAll();
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
            reader.Add(members, params[item.param]);
            break;
        case LayoutItem::Gap:
            members.AddNewGapObject().SetBitLength(static_cast<unsigned int>(item.bits));
            break;
        case LayoutItem::Group: {
            ImportDame::VBitField& group = members.AddNewBitField();
            group.SetQualifier((L"Bits_" + std::to_wstring(item.byte)).c_str());
            AddMembers(packet, group.InterchangeableCollection(), item.items, params);
            break;
        }
        }
    }
}

} // namespace OdxImport
