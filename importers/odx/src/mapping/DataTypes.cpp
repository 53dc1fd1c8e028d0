#include "mapping/DataTypes.h"

#include "mapping/Numbers.h"
#include "report/Words.h"

#include <ImportDame/BasePacketDataType.h>
#include <ImportDame/DataObject.h>
#include <ImportDame/DataTypeCollection.h>
#include <ImportDame/EndMarkerIterDataType.h>
#include <ImportDame/EndOfServiceIterDataType.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/InterchangeableCollection.h>
#include <ImportDame/MuxDataType.h>
#include <ImportDame/NumeratorIterDataType.h>
#include <ImportDame/PacketDataType.h>
#include <ImportDame/StaticIterDataType.h>

#include <algorithm>
#include <array>

namespace OdxImport {

using ImportDame::VDataObject;
using ImportDame::VDataType;

namespace {

VDataType::VSourceLayerInfo SourceLayerOf(const Layer* layer) {
    if (layer == nullptr)
        return VDataType::unknownLayer;
    switch (layer->kind) {
    case LayerKind::EcuSharedData:
        return VDataType::ecuSharedDataLayer;
    case LayerKind::Protocol:
        return VDataType::protocolLayer;
    case LayerKind::FunctionalGroup:
        return VDataType::functionalGroupLayer;
    case LayerKind::BaseVariant:
        return VDataType::baseVariantLayer;
    case LayerKind::EcuVariant:
        return VDataType::ecuVariantLayer;
    }
    return VDataType::unknownLayer;
}

enum class Shape { Scalar, Packet, Mux, StaticField, DynamicLength, EndMarker, EndOfPdu };

/// A new data type that has content.
VDataType& AddContainer(ImportDame::VImportDoc& document, Shape shape) {
    ImportDame::VDataTypeCollection& types = document.DataTypeCollection();
    const auto append = [&](auto& made) -> VDataType& {
        types.AppendDataType(made);
        return made;
    };
    switch (shape) {
    case Shape::Packet:
        return types.AddNewPacketDataType();
    case Shape::Mux:
        return types.AddNewMuxDataType();
    case Shape::StaticField:
        return append(document.MakeStaticIterDataType());
    case Shape::DynamicLength:
        return append(document.MakeNumeratorIterDataType());
    case Shape::EndMarker:
        return append(document.MakeEndMarkerIterDataType());
    default:
        return append(document.MakeEndOfServiceIterDataType());
    }
}

} // namespace

struct DataTypes::Kind {
    std::string_view tag;
    Shape shape;
    Filler fill;
};

const DataTypes::Kind* DataTypes::KindOf(std::string_view tag) {
    static constexpr std::array<Kind, 15> kinds{
        {{"DATA-OBJECT-PROP", Shape::Scalar, nullptr},
         {"DTC-DOP", Shape::Scalar, nullptr},
         {"STRUCTURE", Shape::Packet, &DataTypes::FillPacket},
         {"REQUEST", Shape::Packet, &DataTypes::FillPacket},
         {"POS-RESPONSE", Shape::Packet, &DataTypes::FillPacket},
         {"NEG-RESPONSE", Shape::Packet, &DataTypes::FillPacket},
         {"GLOBAL-NEG-RESPONSE", Shape::Packet, &DataTypes::FillPacket},
         {"ENV-DATA", Shape::Packet, &DataTypes::FillPacket},
         {"MUX", Shape::Mux, &DataTypes::FillMux},
         {"TABLE", Shape::Mux, &DataTypes::FillTable},
         {"ENV-DATA-DESC", Shape::Mux, &DataTypes::FillEnvDataDesc},
         {"STATIC-FIELD", Shape::StaticField, &DataTypes::FillStaticField},
         {"DYNAMIC-LENGTH-FIELD", Shape::DynamicLength, &DataTypes::FillDynamicLengthField},
         {"DYNAMIC-ENDMARKER-FIELD", Shape::EndMarker, &DataTypes::FillEndMarkerField},
         {"END-OF-PDU-FIELD", Shape::EndOfPdu, &DataTypes::FillEndOfPduField}}};
    const auto found = std::find_if(kinds.begin(), kinds.end(), [&](const Kind& kind) { return kind.tag == tag; });
    return found == kinds.end() ? nullptr : &*found;
}

DataTypes::DataTypes(Workspace& workspace, const Naming& naming, Units& units)
    : m_workspace(workspace), m_naming(naming), m_scalars(workspace, naming, units) {}

VDataType* DataTypes::For(Element dataObject) {
    Layer* view = m_workspace.ViewOf(dataObject);
    const auto known = m_types.find({dataObject.Identity(), view});
    if (known != m_types.end())
        return known->second;
    const Kind* kind = KindOf(dataObject.Tag());
    if (kind == nullptr)
        return nullptr;
    if (view != nullptr && !MayRepeat(dataObject)) {
        const auto home = m_types.find({dataObject.Identity(), nullptr});
        return home == m_types.end() ? nullptr : home->second;
    }
    VDataType& type =
        kind->shape == Shape::Scalar ? m_scalars.Add(dataObject) : AddContainer(m_workspace.Document(), kind->shape);
    Layer* layer = m_workspace.Layers().Around(dataObject);
    type.SetSourceLayerInfo(SourceLayerOf(layer));
    m_types.emplace(Sight{dataObject.Identity(), view}, &type);
    if (view == nullptr && dataObject.Is("DTC-DOP"))
        m_dtcDops.push_back({dataObject, &type, m_workspace.View()});
    if (kind->fill != nullptr) {
        m_naming.Describe(type, dataObject);
        const bool isOwn = view == nullptr && layer != nullptr && layer->kind == LayerKind::EcuVariant;
        m_open.push_back({&type, dataObject, kind->fill, isOwn ? layer : view, view != nullptr});
    }
    if (view != nullptr)
        AddAttribute(type.Attributes(), L"ECU-VARIANT", Mention(view->shortName));
    return &type;
}

/// It is repeated whole or not at all: what its filling will make of it is counted here.
bool DataTypes::MayRepeat(Element dataObject) {
    std::uint64_t objects = 1, bytes = dataObject.Length();
    const auto addAll = [&objects](Element list) {
        for (Element part = list.FirstChild(); part; part = part.Next())
            ++objects;
    };
    for (const Element child : Children(dataObject)) {
        if (child.Is("PARAMS") || child.Is("CASES")) {
            addAll(child);
        } else if (child.Is("TABLE-ROW") || child.Is("TABLE-ROW-REF") || child.Is("DEFAULT-CASE")) {
            ++objects;
            const Element row = m_workspace.Look(child, Tags::tableRow);
            bytes += row ? row.Length() : 0;
        } else if (child.Is("ENV-DATAS") || child.Is("ENV-DATA-REFS")) {
            for (const Element item : Children(child)) {
                const Element envData = item.Is("ENV-DATA") ? item : m_workspace.Look(item, Tags::envData);
                bytes += envData ? envData.Length() : 0;
                addAll(envData.Child("DTC-VALUES"));
            }
        }
    }
    return m_workspace.MayCopy(dataObject, objects, bytes);
}

Element DataTypes::Target(Element owner, const char* link, const char* nameLink, Wanted wanted) {
    if (const Element byId = owner.Child(link))
        return m_workspace.Follow(byId, wanted.kinds);
    const Element byName = owner.Child(nameLink);
    if (!byName)
        return {};
    const std::string_view name = byName.Attribute("SHORT-NAME");
    const bool isFirst = !byName.IsTaken(); // the table of a key is asked for by its users, too
    byName.Taken();
    if (name.empty()) {
        m_workspace.ReportAt(byName, Rule::LinkEmpty, std::string(nameLink) + " has no SHORT-NAME");
        byName.Refuse(deadLink);
        return {};
    }
    Layer& context = m_workspace.ContextOf(owner);
    if (const Element target = m_workspace.Layers().FindByName(context, wanted.category, name))
        return m_workspace.IsRightKind(byName, target, wanted.kinds) ? target : Element();
    if (isFirst || m_workspace.IsRepeating())
        m_workspace.ReportAlwaysAt(byName, Rule::NameLinkDangling,
                                   Words({"\"", context.shortName, "\" has no object \"", name, "\""}));
    if (!m_workspace.IsRepeating())
        byName.Refuse(deadLink);
    return {};
}

VDataType& DataTypes::ForCodedType(const CodedType& coded, Element owner) {
    const std::wstring name = NameOf(coded, owner.Child("DIAG-CODED-TYPE").Attribute("BASE-DATA-TYPE"));
    VDataType*& type = m_codedTypes[name];
    if (type == nullptr)
        type = &m_scalars.AddIdentity(coded, name);
    return *type;
}

VDataType& DataTypes::ForBytes(std::uint32_t count) {
    CodedType coded;
    coded.encoding = ImportDame::VProperties::byteField;
    coded.isField = true;
    coded.minLength = coded.maxLength = count;
    const std::wstring name = NameOf(coded, "A_BYTEFIELD");
    VDataType*& type = m_codedTypes[name];
    if (type == nullptr)
        type = &m_scalars.AddIdentity(coded, name);
    return *type;
}

void DataTypes::BecameKey(Element param, VDataObject& object) {
    m_keys.emplace(Sight{param.Identity(), m_filledFor}, &object);
}

void DataTypes::NeedsKey(VDataObject& object, Element keyParam) {
    m_keyUsers.push_back({&object, keyParam, m_filledFor});
}

void DataTypes::SetMemberType(VDataType& owner, VDataObject& member, VDataType& type, Element source, Element where) {
    member.SetDataType(&type);
    // Plain values contain nothing and nobody asks who has them.
    if (!source.Is("DATA-OBJECT-PROP"))
        m_members.Add(owner, member, type, where);
}

void DataTypes::Finish() {
    while (!m_open.empty()) {
        const Open open = m_open.front();
        m_open.pop_front();
        m_workspace.LookAs(open.view, open.isRepeating);
        m_filledFor = open.isRepeating ? open.view : nullptr;
        (this->*open.fill)(*open.type, open.element);
    }
    m_workspace.LookAs(nullptr);
    m_members.CutCircles(m_workspace.Report());
    ConnectKeys();
}

void DataTypes::ConnectKeys() {
    for (const KeyUser& user : m_keyUsers) {
        auto key = m_keys.find({user.keyParam.Identity(), user.view});
        if (key == m_keys.end())
            key = m_keys.find({user.keyParam.Identity(), nullptr});
        if (key != m_keys.end())
            user.object->SetSelectorDataObject(*key->second);
    }
    m_keyUsers.clear();
}

} // namespace OdxImport
