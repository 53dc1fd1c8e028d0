#include "mapping/ScalarTypes.h"

#include "mapping/Conversions.h"
#include "mapping/Limits.h"
#include "mapping/SpecialData.h"
#include "text/Utf8.h"

#include <ImportDame/AttributeCollection.h>
#include <ImportDame/CodedProperties.h>
#include <ImportDame/DataTypeCollection.h>
#include <ImportDame/FormulaDataType.h>
#include <ImportDame/IdentityDataType.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/LinearDataType.h>
#include <ImportDame/PhysicalProperties.h>
#include <ImportDame/PiecewiseLinearDataType.h>
#include <ImportDame/ProcedureDataType.h>
#include <ImportDame/TextTableDataType.h>
#include <ImportDame/ValueTableDataType.h>

#include <array>
#include <utility>

namespace OdxImport {

using ImportDame::VDataType;

namespace {

/// The kinds that have coded atom properties and two physical records.
template <class Type>
void ApplyAtoms(Type& type, const CodedType& coded, const PhysicalType& physical) {
    Apply(coded, type.CodedAtomProperties());
    Apply(physical, type.PhysicalAtomProperties());
    Apply(physical, type.PhysicalDisplayProperties());
}

struct Parts {
    ImportDame::VDataTypeCollection& types;
    Element method;
    const CodedType& coded;
    const PhysicalType& physical;
    const Workspace& workspace;
};

VDataType& AddPlain(const Parts& parts) {
    ImportDame::VIdentityDataType& type = parts.types.AddNewIdentityDataType();
    Apply(parts.coded, type.CodedProperties());
    Apply(parts.physical, type.PhysicalDisplayProperties());
    return type;
}

VDataType& AddLinear(const Parts& parts) {
    ImportDame::VLinearDataType& type = parts.types.AddNewLinearDataType();
    ApplyAtoms(type, parts.coded, parts.physical);
    ReadConversion(type, parts.method, parts.coded, parts.workspace);
    return type;
}

VDataType& AddPiecewiseLinear(const Parts& parts) {
    ImportDame::VPiecewiseLinearDataType& type = parts.types.AddNewPiecewiseLinearDataType();
    ApplyAtoms(type, parts.coded, parts.physical);
    ReadConversion(type, parts.method, parts.coded, parts.workspace);
    return type;
}

VDataType& AddValueTable(const Parts& parts) {
    ImportDame::VValueTableDataType& type = parts.types.AddNewValueTableDataType();
    ApplyAtoms(type, parts.coded, parts.physical);
    ReadConversion(type, parts.method, parts.workspace);
    return type;
}

VDataType& AddTextTable(const Parts& parts) {
    ImportDame::VTextTableDataType& type = parts.types.AddNewTextTableDataType();
    Apply(parts.coded, type.CodedProperties());
    ReadConversion(type, parts.method, parts.coded, parts.workspace);
    if (!parts.physical.unit.empty())
        AddAttribute(type.Attributes(), L"UNIT", parts.physical.unit);
    return type;
}

VDataType& AddFormula(const Parts& parts) {
    ImportDame::VFormulaDataType& type = parts.types.AddNewFormulaDataType();
    Apply(parts.coded, type.CodedAtomProperties());
    Apply(parts.physical, type.PhysicalAtomProperties());
    ReadConversion(type, parts.method, parts.workspace);
    return type;
}

VDataType& AddProcedure(const Parts& parts) {
    ImportDame::VProcedureDataType& type = parts.types.AddNewProcedureDataType();
    Apply(parts.coded, type.CodedProperties());
    Apply(parts.physical, type.PhysicalProperties());
    ReadConversion(type, parts.method, parts.workspace);
    return type;
}

void AddWideMask(VDataType& type, const CodedType& coded) {
    if (!coded.wideMask.empty())
        AddAttribute(type.Attributes(), L"BIT-MASK", Widen(coded.wideMask));
}

/// The parameter that counts the bits; the ID of the link where that leads nowhere.
std::wstring NameOfLengthKey(Element dataObject, const Workspace& workspace) {
    const Element codedType = dataObject.Child("DIAG-CODED-TYPE"), link = codedType.Child("LENGTH-KEY-REF");
    if (const Element key = workspace.Look(link, Tags::param))
        return Naming::MentionOf(key);
    return Mention(link ? link.Attribute("ID-REF") : codedType.Child("LENGTH-KEY-SNREF").Attribute("SHORT-NAME"));
}

/// What the kinds of types have no fields for is kept as it is written.
void AddDetails(VDataType& type, Element dataObject, const CodedType& coded) {
    ImportDame::VAttributeCollection& attributes = type.Attributes();
    const Element codedType = dataObject.Child("DIAG-CODED-TYPE"), method = dataObject.Child("COMPU-METHOD");
    AddXmlAttribute(attributes, codedType, "CONDENSED");
    if (coded.isField)
        AddXmlAttribute(attributes, codedType, "BASE-TYPE-ENCODING");
    AddWideMask(type, coded);
    const Element otherwise = method.Child("COMPU-INTERNAL-TO-PHYS").Child("COMPU-DEFAULT-VALUE");
    AddLeaves(attributes, otherwise.IsTaken() ? otherwise.Child("COMPU-INVERSE-VALUE") : otherwise);
    if (const Element back = method.Child("COMPU-PHYS-TO-INTERNAL"); back && !back.IsTaken())
        AddLeaves(attributes, back);
}

constexpr std::array<std::pair<std::string_view, VDataType& (*)(const Parts&)>, 8> adders{
    {{"IDENTICAL", AddPlain},
     {"LINEAR", AddLinear},
     {"SCALE-LINEAR", AddPiecewiseLinear},
     {"TAB-INTP", AddValueTable},
     {"TEXTTABLE", AddTextTable},
     {"RAT-FUNC", AddFormula},
     {"SCALE-RAT-FUNC", AddFormula},
     {"COMPUCODE", AddProcedure}}};

} // namespace

VDataType& ScalarTypes::Add(Element dataObject) {
    const CodedType coded = ReadCodedType(dataObject, m_workspace);
    PhysicalType physical = ReadPhysicalType(dataObject, m_workspace);
    physical.unit = m_units.DisplayNameFor(dataObject);
    // Who has this type looks there for the key again.
    if (const Element key = m_workspace.Follow(coded.lengthKey, Tags::param))
        if (key.Attribute("type") != "LENGTH-KEY")
            m_workspace.ReportAt(coded.lengthKey, Rule::LinkWrongKind,
                                 "LENGTH-KEY-REF leads to a parameter that is no LENGTH-KEY");
    VDataType& type = AddByCategory(dataObject, coded, physical);
    m_naming.Describe(type, dataObject);
    ReadConstraints(type, dataObject, coded, m_workspace);
    AddDetails(type, dataObject, coded);
    if (coded.leadingBits != 0)
        AddAttribute(type.Attributes(), L"LENGTH-FIELD-BITS", std::to_wstring(coded.leadingBits));
    if (coded.IsNumberOfVaryingLength())
        AddAttribute(type.Attributes(), L"LENGTH-KEY", NameOfLengthKey(dataObject, m_workspace));
    return type;
}

VDataType& ScalarTypes::AddByCategory(Element dataObject, const CodedType& coded, const PhysicalType& physical) {
    const Element method = dataObject.Take("COMPU-METHOD");
    const std::string_view category = method ? method.Take("CATEGORY").Text() : "IDENTICAL";
    const Parts parts{m_workspace.Document().DataTypeCollection(), method, coded, physical, m_workspace};
    for (const auto& [name, add] : adders)
        if (name == category)
            return add(parts);
    m_workspace.ReportAt(method, Rule::CategoryOfConversionUnknown, "CATEGORY is \"" + std::string(category) + "\"");
    return AddPlain(parts);
}

VDataType& ScalarTypes::AddIdentity(const CodedType& coded, const std::wstring& name) {
    ImportDame::VIdentityDataType& type = m_workspace.Document().DataTypeCollection().AddNewIdentityDataType();
    Apply(coded, type.CodedProperties());
    type.SetQualifier(name.c_str());
    if (coded.isCondensed)
        AddAttribute(type.Attributes(), L"CONDENSED", L"true");
    if (!coded.fieldEncoding.empty())
        AddAttribute(type.Attributes(), L"BASE-TYPE-ENCODING", Widen(coded.fieldEncoding));
    AddWideMask(type, coded);
    return type;
}

} // namespace OdxImport
