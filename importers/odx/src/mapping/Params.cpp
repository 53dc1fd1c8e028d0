#include "mapping/Params.h"

#include "mapping/Limits.h"
#include "report/Words.h"
#include "text/Utf8.h"

#include <ImportDame/AttributeCollection.h>
#include <ImportDame/DataObject.h>
#include <ImportDame/DataType.h>
#include <ImportDame/GapObject.h>
#include <ImportDame/InterchangeableCollection.h>

#include <algorithm>
#include <array>

namespace OdxImport {

using ImportDame::VBaseDataObject;
using ImportDame::VDataObject;

namespace {

constexpr std::array<std::pair<std::string_view, VBaseDataObject::VSemantics>, 12> semantics{
    {{"DATA", VBaseDataObject::data},
     {"DATA-ID", VBaseDataObject::dataId},
     {"SERVICE-ID", VBaseDataObject::serviceId},
     {"SERVICEIDRQ", VBaseDataObject::serviceIdOfRequest},
     {"SUBFUNCTION", VBaseDataObject::subfunction},
     {"ID", VBaseDataObject::id},
     {"LOCAL-ID", VBaseDataObject::localId},
     {"RESPONSE-CODE", VBaseDataObject::responseCode},
     {"STATUS", VBaseDataObject::status},
     {"DTC", VBaseDataObject::dtc},
     {"LENGTH", VBaseDataObject::length},
     {"RESERVED", VBaseDataObject::reserved}}};

} // namespace

struct Params::Kind {
    std::string_view type;
    Reader read;
};

const Params::Kind* Params::KindOf(std::string_view type) {
    static constexpr std::array<Kind, 12> kinds{{{"VALUE", &Params::ReadValue},
                                                 {"CODED-CONST", &Params::ReadCodedConst},
                                                 {"RESERVED", nullptr},
                                                 {"PHYS-CONST", &Params::ReadPhysConst},
                                                 {"MATCHING-REQUEST-PARAM", &Params::ReadMatchingRequest},
                                                 {"NRC-CONST", &Params::ReadNrcConst},
                                                 {"LENGTH-KEY", &Params::ReadLengthKey},
                                                 {"TABLE-KEY", &Params::ReadTableKey},
                                                 {"TABLE-STRUCT", &Params::ReadTableStruct},
                                                 {"TABLE-ENTRY", &Params::ReadTableEntry},
                                                 {"SYSTEM", &Params::ReadSystem},
                                                 {"DYNAMIC", &Params::ReadDynamic}}};
    const auto found = std::find_if(kinds.begin(), kinds.end(), [&](const Kind& kind) { return kind.type == type; });
    return found == kinds.end() ? nullptr : &*found;
}

bool Params::IsKnown(std::string_view type) {
    return KindOf(type) != nullptr;
}

ImportDame::VInterchangeable& Params::Add(ImportDame::VInterchangeableCollection& members, Element param) {
    param.Take("BYTE-POSITION");
    param.Take("BIT-POSITION");
    const Kind& kind = *KindOf(param.Attribute("type"));
    if (kind.read == nullptr)
        return AddReserved(members, param);
    VDataObject& object = members.AddNewDataObject();
    m_naming.Describe(object, param);
    ReadSemantic(object, param);
    (this->*kind.read)(object, param);
    return object;
}

ImportDame::VInterchangeable& Params::AddReserved(ImportDame::VInterchangeableCollection& members, Element param) {
    const Element length = param.Take("BIT-LENGTH");
    if (!length)
        m_workspace.ReportAt(param, Rule::ValueMissing, "the reserved parameter has no BIT-LENGTH; 8 assumed");
    ImportDame::VGapObject& gap = members.AddNewGapObject();
    gap.SetBitLength(m_numbers.Whole(length).value_or(8));
    m_naming.Describe(gap, param);
    param.Child("CODED-VALUE").LeaveOut(Fate::NotRepresented, "a gap has no value");
    param.Child("DIAG-CODED-TYPE").LeaveOut(Fate::NotRepresented, "a gap has no type");
    return gap;
}

void Params::ReadSemantic(VDataObject& object, Element param) const {
    const std::string_view text = param.Attribute("SEMANTIC");
    if (text.empty())
        return;
    const auto found =
        std::find_if(semantics.begin(), semantics.end(), [&](const auto& word) { return word.first == text; });
    object.SetSemantics(found == semantics.end() ? VBaseDataObject::otherSemantics : found->second);
    if (found == semantics.end())
        AddXmlAttribute(object.Attributes(), param, "SEMANTIC");
}

void Params::SetType(VDataObject& object, Element param, Element target) {
    if (ImportDame::VDataType* type = target ? m_types.For(target) : nullptr)
        m_types.SetMemberType(m_packet, object, *type, target, param);
}

Element Params::SetType(VDataObject& object, Element param) {
    const Element target = m_types.Target(param, "DOP-REF", "DOP-SNREF", anyDataObject);
    if (!target && !param.Child("DOP-REF") && !param.Child("DOP-SNREF"))
        m_workspace.ReportAt(param, Rule::ParamWithoutType, "the parameter has neither DOP-REF nor DOP-SNREF");
    SetType(object, param, target);
    return target;
}

std::optional<std::string> Params::ConstantOf(Element value, const CodedType& coded) const {
    auto text = m_numbers.Constant(value, coded.Kind());
    if (!text || !coded.IsWhole() || coded.CanHold(*text))
        return text;
    m_workspace.ReportAt(value, Rule::NumberOutOfRange,
                         Words({value.Tag(), " \"", *text, "\" does not fit into ", std::to_string(coded.bitLength),
                                " bits of its coded type"}));
    if (!m_workspace.IsRepeating())
        value.Refuse("the value cannot be read");
    return std::nullopt;
}

void Params::ReadCodedConst(VDataObject& object, Element param) {
    const CodedType coded = ReadCodedType(param, m_workspace);
    object.SetDataType(&m_types.ForCodedType(coded, param));
    const Element value = param.Take("CODED-VALUE");
    if (!value)
        m_workspace.ReportAt(param, Rule::ValueMissing, "the constant has no CODED-VALUE");
    else if (const auto text = ConstantOf(value, coded))
        object.SetConstValue(ValueOf(*text));
}

void Params::ReadNrcConst(VDataObject& object, Element param) {
    const CodedType coded = ReadCodedType(param, m_workspace);
    object.SetDataType(&m_types.ForCodedType(coded, param));
    std::string values;
    const Element list = param.Take("CODED-VALUES");
    for (const Element value : Children(list, "CODED-VALUE"))
        if (const auto text = ConstantOf(value.Taken(), coded))
            values += (values.empty() ? "" : " ") + *text;
    if (!list.Child("CODED-VALUE"))
        m_workspace.ReportAt(param, Rule::ValueMissing, "the constant has no CODED-VALUES");
    AddAttribute(object.Attributes(), L"CODED-VALUES", Widen(values));
}

void Params::ReadPhysConst(VDataObject& object, Element param) {
    SetType(object, param);
    if (const Element value = param.Take("PHYS-CONSTANT-VALUE"))
        object.SetConstValue(ValueOf(value.Text(), true));
    else
        m_workspace.ReportAt(param, Rule::ValueMissing, "the constant has no PHYS-CONSTANT-VALUE");
}

void Params::ReadValue(VDataObject& object, Element param) {
    const Element target = SetType(object, param);
    if (const Element value = param.Take("PHYSICAL-DEFAULT-VALUE"))
        object.SetDefaultValue(ValueOf(value.Text(), true));
    const Element coded = target ? target.Child("DIAG-CODED-TYPE") : Element();
    if (!coded)
        return;
    const Element link = coded.Child("LENGTH-KEY-REF");
    if (const Element key = m_workspace.Look(link, Tags::param)) {
        if (key.Attribute("type") == "LENGTH-KEY")
            m_types.NeedsKey(object, key);
        else if (!m_workspace.IsRepeating()) // it was reported with the data object
            link.Refuse(deadLink);
    } else if (const Element name = coded.Child("LENGTH-KEY-SNREF")) {
        m_types.NeedsKey(object, Sibling(param, name.Attribute("SHORT-NAME"), "LENGTH-KEY"));
    }
}

void Params::ReadMatchingRequest(VDataObject& object, Element param) {
    const auto bytes = m_numbers.Whole(param.Take("BYTE-LENGTH"));
    if (!bytes)
        m_workspace.ReportAt(param, Rule::ValueMissing, "the parameter has no BYTE-LENGTH; 1 assumed");
    object.SetDataType(&m_types.ForBytes(bytes.value_or(1)));
    if (const Element position = param.Take("REQUEST-BYTE-POS"))
        AddAttribute(object.Attributes(), L"REQUEST-BYTE-POS", Widen(position.Text()));
}

void Params::ReadLengthKey(VDataObject& object, Element param) {
    m_types.BecameKey(param, object);
    SetType(object, param);
    if (object.GetSemantics() == VBaseDataObject::noSemantics)
        object.SetSemantics(VBaseDataObject::length);
}

void Params::ReadSystem(VDataObject& object, Element param) {
    SetType(object, param);
    AddXmlAttribute(object.Attributes(), param, "SYSPARAM");
}

void Params::ReadDynamic(VDataObject& object, Element) {
    AddAttribute(object.Attributes(), L"DYNAMIC", L"true");
}

Element Params::TableOf(Element keyParam) {
    if (const Element table = m_types.Target(keyParam, "TABLE-REF", "TABLE-SNREF", anyTable))
        return table;
    const Element row = m_workspace.Follow(keyParam.Child("TABLE-ROW-REF"), Tags::tableRow);
    return row ? row.Parent() : Element();
}

Element Params::Sibling(Element param, std::string_view name, const char* type) const {
    for (const Element other : Children(param.Parent(), "PARAM")) {
        if (other.ShortName() != name)
            continue;
        if (other.Attribute("type") == type)
            return other;
        m_workspace.ReportAt(param, Rule::LinkWrongKind,
                             Words({"the parameter \"", name, "\" is a ", other.Attribute("type"), ", not a ", type}));
        return {};
    }
    m_workspace.ReportAt(param, Rule::NameLinkDangling, "the structure has no parameter \"" + std::string(name) + "\"");
    return {};
}

void Params::ReadTableKey(VDataObject& object, Element param) {
    m_types.BecameKey(param, object);
    const Element table = TableOf(param);
    if (!table) {
        m_workspace.ReportAt(param, Rule::ParamWithoutType, "the table key leads to no table");
        return;
    }
    SetType(object, param, m_types.Target(table, "KEY-DOP-REF", "KEY-DOP-SNREF", simpleDataObject));
    if (const auto key = m_types.KeyOf(RowOf(param, table), table)) // where one row is named, the key is fixed
        object.SetConstValue(ValueOf(*key, true));
}

Element Params::RowOf(Element keyParam, Element table) const {
    const Element name = keyParam.Take("TABLE-ROW-SNREF");
    if (!name)
        return m_workspace.Look(keyParam.Child("TABLE-ROW-REF"), Tags::tableRow);
    for (const Element child : Children(table)) {
        const Element row = child.Is("TABLE-ROW-REF") ? m_workspace.Look(child, Tags::tableRow) : child;
        if (row.Is("TABLE-ROW") && row.ShortName() == name.Attribute("SHORT-NAME"))
            return row;
    }
    m_workspace.ReportAt(name, Rule::NameLinkDangling,
                         Words({"\"", table.ShortName(), "\" has no row \"", name.Attribute("SHORT-NAME"), "\""}));
    name.Refuse(deadLink);
    return {};
}

void Params::ReadTableStruct(VDataObject& object, Element param) {
    Element key = m_workspace.Follow(param.Child("TABLE-KEY-REF"), Tags::param);
    if (const Element name = param.Take("TABLE-KEY-SNREF"); name && !key)
        key = Sibling(param, name.Attribute("SHORT-NAME"), "TABLE-KEY");
    const Element table = key ? TableOf(key) : Element();
    if (!table) {
        m_workspace.ReportAt(param, Rule::ParamWithoutType, "the parameter leads to no table");
        return;
    }
    SetType(object, param, table);
    m_types.NeedsKey(object, key);
}

void Params::ReadTableEntry(VDataObject& object, Element param) {
    const Element row = m_workspace.Follow(param.Child("TABLE-ROW-REF"), Tags::tableRow);
    if (!row) {
        m_workspace.ReportAt(param, Rule::ParamWithoutType, "the parameter leads to no row of a table");
        return;
    }
    const Element side = param.Take("TARGET");
    if (side && side.Text() == "KEY") {
        if (const auto key = m_types.KeyOf(row, row.Parent()))
            object.SetConstValue(ValueOf(*key, true));
        SetType(object, param, m_types.Target(row.Parent(), "KEY-DOP-REF", "KEY-DOP-SNREF", simpleDataObject));
        return;
    }
    SetType(object, param, m_types.ContentOfRow(row));
}

} // namespace OdxImport
