#include "mapping/DataTypes.h"
#include "mapping/Limits.h"

#include <ImportDame/DataObject.h>
#include <ImportDame/EndMarkerIterDataType.h>
#include <ImportDame/EndOfServiceIterDataType.h>
#include <ImportDame/InterchangeableCollection.h>
#include <ImportDame/NumeratorIterDataType.h>
#include <ImportDame/StaticIterDataType.h>

namespace OdxImport {

using ImportDame::VDataType;

namespace {

constexpr std::uint32_t lastByte = 0x0FFFFFFF;

} // namespace

void DataTypes::AddContent(VDataType& owner, ImportDame::VInterchangeableCollection& members, Element named,
                           Element target) {
    VDataType* type = target ? For(target) : nullptr;
    if (type == nullptr)
        return;
    ImportDame::VDataObject& content = members.AddNewDataObject();
    content.SetQualifier(Naming::MentionOf(named).c_str());
    content.SetSourceInfo(m_workspace.SourceOf(named).c_str());
    SetMemberType(owner, content, *type, target, named);
}

void DataTypes::FillField(ImportDame::VBasePacketDataType& type, Element element) {
    const bool hasStructure = element.Child("BASIC-STRUCTURE-REF") || element.Child("BASIC-STRUCTURE-SNREF");
    const bool hasEnvData = element.Child("ENV-DATA-DESC-REF") || element.Child("ENV-DATA-DESC-SNREF");
    Element target;
    if (hasStructure)
        target = Target(element, "BASIC-STRUCTURE-REF", "BASIC-STRUCTURE-SNREF", complexDataObject);
    else if (hasEnvData)
        target = Target(element, "ENV-DATA-DESC-REF", "ENV-DATA-DESC-SNREF", anyEnvDataDesc);
    else
        m_workspace.ReportAt(element, Rule::FieldWithoutStructure,
                             std::string(element.Tag()) + " has no link to a structure");
    AddContent(type, type.InterchangeableCollection(), element, target);
    for (const char* link : {"ENV-DATA-DESC-REF", "ENV-DATA-DESC-SNREF"})
        element.Child(link).LeaveOut(Fate::NotRepresented, "the structure is repeated");
}

void DataTypes::FillStaticField(VDataType& type, Element element) {
    auto& field = static_cast<ImportDame::VStaticIterDataType&>(type);
    const Numbers numbers(m_workspace.Report());
    FillField(field, element);
    const Element count = element.Take("FIXED-NUMBER-OF-ITEMS");
    if (!count)
        m_workspace.ReportAt(element, Rule::ValueMissing, "STATIC-FIELD has no FIXED-NUMBER-OF-ITEMS; 1 assumed");
    field.SetNumOfItems(numbers.Whole(count).value_or(1));
    if (const auto size = numbers.Whole(element.Take("ITEM-BYTE-SIZE")))
        AddAttribute(field.Attributes(), L"ITEM-BYTE-SIZE", std::to_wstring(*size));
}

void DataTypes::FillDynamicLengthField(VDataType& type, Element element) {
    auto& field = static_cast<ImportDame::VNumeratorIterDataType&>(type);
    const Numbers numbers(m_workspace.Report());
    FillField(field, element);
    const auto offset = numbers.Whole(element.Take("OFFSET"), lastByte).value_or(0);
    field.SetOffset(offset);
    field.SetContentStartBitPosition(offset * 8);
    const Element count = element.Take("DETERMINE-NUMBER-OF-ITEMS");
    if (!count) {
        m_workspace.ReportAt(element, Rule::ValueMissing, "DYNAMIC-LENGTH-FIELD has no DETERMINE-NUMBER-OF-ITEMS");
        return;
    }
    const auto byte = numbers.Whole(count.Take("BYTE-POSITION"), lastByte).value_or(0);
    const auto bit = numbers.Whole(count.Take("BIT-POSITION"), 7).value_or(0);
    field.SetSelectorStartBitPosition(byte * 8 + bit);
    if (const Element target = Target(count, "DATA-OBJECT-PROP-REF", "DATA-OBJECT-PROP-SNREF", simpleDataObject))
        if (VDataType* selector = For(target))
            field.SetSelectorDataType(*selector);
}

void DataTypes::FillEndMarkerField(VDataType& type, Element element) {
    auto& field = static_cast<ImportDame::VEndMarkerIterDataType&>(type);
    FillField(field, element);
    const Element marker = element.Child("DATA-OBJECT-PROP-REF");
    if (!marker) {
        m_workspace.ReportAt(element, Rule::ValueMissing, "DYNAMIC-ENDMARKER-FIELD has no DATA-OBJECT-PROP-REF");
        return;
    }
    const Element target = m_workspace.Follow(marker, simpleDataObject.kinds);
    if (const Element value = marker.Take("TERMINATION-VALUE"))
        if (const auto text = Numbers(m_workspace.Report()).Constant(value, PhysicalKindOf(target)))
            field.TerminationValue() = ValueOf(*text, true);
    if (VDataType* selector = target ? For(target) : nullptr)
        field.SetTerminationDataType(*selector);
}

void DataTypes::FillEndOfPduField(VDataType& type, Element element) {
    auto& field = static_cast<ImportDame::VEndOfServiceIterDataType&>(type);
    const Numbers numbers(m_workspace.Report());
    FillField(field, element);
    const auto least = numbers.Whole(element.Take("MIN-NUMBER-OF-ITEMS"));
    const auto most = numbers.Whole(element.Take("MAX-NUMBER-OF-ITEMS"));
    if (least)
        field.SetMinNumberOfItems(*least);
    if (most)
        field.SetMaxNumberOfItems(*most);
    if (least && most && *least > *most)
        m_workspace.ReportAt(element, Rule::LimitsReversed, "MIN-NUMBER-OF-ITEMS is above MAX-NUMBER-OF-ITEMS");
}

} // namespace OdxImport
