#include "mapping/Conduct.h"
#include "mapping/DataTypes.h"
#include "mapping/Limits.h"
#include "mapping/SpecialData.h"
#include "mapping/UniqueNames.h"
#include "text/Utf8.h"

#include <ImportDame/Case.h>
#include <ImportDame/CaseCollection.h>
#include <ImportDame/InterchangeableCollection.h>
#include <ImportDame/MuxDataType.h>
#include <ImportDame/Range.h>

#include <algorithm>
#include <limits>
#include <optional>
#include <vector>

namespace OdxImport {

using ImportDame::VDataType;
using ImportDame::VMuxDataType;

namespace {

constexpr std::uint32_t lastByte = 0x0FFFFFFF;

constexpr double infinite = std::numeric_limits<double>::infinity();

/// An end of the values that a case applies to.
struct CaseEnd {
    double value;
    bool isOpen;
};

struct CaseSpan {
    CaseEnd low, high;
    Element element;

    bool IsEmpty() const { return low.value > high.value || (low.value == high.value && (low.isOpen || high.isOpen)); }

    bool BeginsBefore(const CaseSpan& other) const {
        if (low.value != other.low.value)
            return low.value < other.low.value;
        return low.isOpen != other.low.isOpen ? other.low.isOpen : element.Number() < other.element.Number();
    }

    bool EndsBefore(const CaseSpan& other) const {
        return high.value != other.high.value ? high.value < other.high.value : high.isOpen && !other.high.isOpen;
    }
};

/// Cases with numbers for limits must not share a value; others cannot be compared.
void ReportOverlaps(std::vector<CaseSpan> spans, const Workspace& workspace) {
    std::sort(spans.begin(), spans.end(), [](const CaseSpan& a, const CaseSpan& b) { return a.BeginsBefore(b); });
    const CaseSpan* farthest = nullptr;
    for (const CaseSpan& span : spans) {
        if (farthest != nullptr && !CaseSpan{span.low, farthest->high, span.element}.IsEmpty())
            workspace.ReportAt(span.element, Rule::CasesOverlap,
                               "the case applies to values of the case \"" +
                                   std::string(farthest->element.ShortName()) + "\"");
        if (farthest == nullptr || farthest->EndsBefore(span))
            farthest = &span;
    }
}

/// Nothing for what is no number. Of whole numbers an open end has already become a closed one.
std::optional<CaseEnd> EndOf(Element limit, bool hasValue, const wchar_t* value, double otherwise, bool isWhole) {
    if (!hasValue) {
        const bool isUnread = limit && limit.Attribute("INTERVAL-TYPE") != "INFINITE";
        return isUnread ? std::nullopt : std::optional(CaseEnd{otherwise, false});
    }
    const auto number = ParseNumber(Narrow(value));
    return number ? std::optional(CaseEnd{*number, !isWhole && limit.Attribute("INTERVAL-TYPE") == "OPEN"})
                  : std::nullopt;
}

void AddSpan(std::vector<CaseSpan>& spans, ImportDame::VRange& range, Element element, bool isWhole) {
    if (!range.HasStartValue() && !range.HasEndValue())
        return;
    const auto low = EndOf(element.Child("LOWER-LIMIT"), range.HasStartValue(),
                           range.HasStartValue() ? range.GetStartValue().Get() : L"", -infinite, isWhole);
    const auto high = EndOf(element.Child("UPPER-LIMIT"), range.HasEndValue(),
                            range.HasEndValue() ? range.GetEndValue().Get() : L"", infinite, isWhole);
    if (low && high && !CaseSpan{*low, *high, element}.IsEmpty())
        spans.push_back({*low, *high, element});
}

} // namespace

void DataTypes::FillMux(VDataType& type, Element element) {
    auto& mux = static_cast<VMuxDataType&>(type);
    const Numbers numbers(m_workspace.Report());
    if (const auto byte = numbers.Whole(element.Take("BYTE-POSITION"), lastByte))
        mux.SetMuxStartBitPosition(*byte * 8);
    ValueKind kind = ValueKind::Whole;
    if (const Element key = element.Take("SWITCH-KEY")) {
        const auto byte = numbers.Whole(key.Take("BYTE-POSITION"), lastByte).value_or(0);
        const auto bit = numbers.Whole(key.Take("BIT-POSITION"), 7).value_or(0);
        mux.SetSelectorStartBitPosition(byte * 8 + bit);
        const Element target = Target(key, "DATA-OBJECT-PROP-REF", "DATA-OBJECT-PROP-SNREF", simpleDataObject);
        if (VDataType* selector = target ? For(target) : nullptr)
            mux.SetSelectorDataType(*selector);
        kind = target ? PhysicalKindOf(target) : ValueKind::Whole;
    } else {
        m_workspace.ReportAt(element, Rule::MuxWithoutKey, "the multiplexer has no SWITCH-KEY");
    }
    std::vector<CaseSpan> spans;
    UniqueNames names(m_workspace);
    for (const Element child : Children(element.Take("CASES"), "CASE")) {
        names.Add(child);
        ImportDame::VCase& made = mux.GetCaseCollection().AddNewCase();
        m_naming.Describe(made, child);
        ReadRange(made.Range(), child, kind, true, m_workspace, true);
        AddSpan(spans, made.Range(), child, kind == ValueKind::Whole);
        if (child.Child("STRUCTURE-REF") || child.Child("STRUCTURE-SNREF")) // a case without content is allowed
            AddContent(mux, made.InterchangeableCollection(), child,
                       Target(child, "STRUCTURE-REF", "STRUCTURE-SNREF", complexDataObject));
    }
    ReportOverlaps(std::move(spans), m_workspace);
    if (const Element otherwise = element.Take("DEFAULT-CASE")) {
        otherwise.Take("SHORT-NAME");
        otherwise.Child("LONG-NAME").LeaveOut(Fate::NotRepresented, "a default case has no long name");
        if (otherwise.Child("STRUCTURE-REF") || otherwise.Child("STRUCTURE-SNREF"))
            AddContent(mux, mux.GetDefaultCase(), otherwise,
                       Target(otherwise, "STRUCTURE-REF", "STRUCTURE-SNREF", complexDataObject));
        else // without content it would be as if there were none
            AddAttribute(mux.Attributes(), L"DEFAULT-CASE", Naming::MentionOf(otherwise));
    }
}

Element DataTypes::ContentOfRow(Element row) {
    if (row.Child("STRUCTURE-REF") || row.Child("STRUCTURE-SNREF"))
        return Target(row, "STRUCTURE-REF", "STRUCTURE-SNREF", complexDataObject);
    return Target(row, "DATA-OBJECT-PROP-REF", "DATA-OBJECT-PROP-SNREF", simpleDataObject);
}

void DataTypes::FillTable(VDataType& type, Element element) {
    auto& mux = static_cast<VMuxDataType&>(type);
    const Element key = Target(element, "KEY-DOP-REF", "KEY-DOP-SNREF", simpleDataObject);
    if (VDataType* selector = key ? For(key) : nullptr)
        mux.SetSelectorDataType(*selector);
    else if (!element.Child("KEY-DOP-REF") && !element.Child("KEY-DOP-SNREF"))
        m_workspace.ReportAt(element, Rule::MuxWithoutKey, "the table has no KEY-DOP-REF");
    AddXmlAttribute(mux.Attributes(), element, "SEMANTIC");
    for (const char* tag : {"KEY-LABEL", "STRUCT-LABEL"})
        AddLeaves(mux.Attributes(), element.Child(tag));
    for (const Element child : Children(element)) {
        if (child.Is("TABLE-ROW"))
            AddTableRow(type, child, element);
        else if (!child.Is("TABLE-ROW-REF"))
            continue;
        else if (const Element row = m_workspace.Follow(child, Tags::tableRow);
                 row && (m_workspace.IsRepeating() || m_workspace.MayCopy(row)))
            AddTableRow(type, row, element);
    }
}

std::optional<std::string> DataTypes::KeyOf(Element row, Element table) const {
    const Element key = row.Child("KEY");
    if (!key)
        return std::nullopt;
    const bool isFirst = !key.IsTaken(); // other tables and parameters may name the row, too
    const Element dataObject = LookAtTarget(table, "KEY-DOP-REF", "KEY-DOP-SNREF", simpleDataObject);
    return Numbers(isFirst ? m_workspace.Report() : Silence()).Constant(key.Taken(), PhysicalKindOf(dataObject));
}

void DataTypes::AddTableRow(VDataType& type, Element row, Element table) {
    auto& mux = static_cast<VMuxDataType&>(type);
    ImportDame::VCase& made = mux.GetCaseCollection().AddNewCase();
    m_naming.Describe(made, row);
    for (const char* name : {"SEMANTIC", "IS-EXECUTABLE", "IS-MANDATORY", "IS-FINAL"})
        AddXmlAttribute(made.Attributes(), row, name);
    AddLinkedNames(made.Attributes(), row.Child("FUNCT-CLASS-REFS"), "FUNCT-CLASS-REF", L"FUNCT-CLASS",
                   Tags::functClass, m_workspace);
    AddConduct(made.Attributes(), row, m_workspace);
    if (const auto key = KeyOf(row, table)) {
        made.Range().SetStartValue(ValueOf(*key, true));
        made.Range().SetEndValue(ValueOf(*key, true));
    } else if (!row.Child("KEY")) {
        m_workspace.ReportAt(row, Rule::ValueMissing, "the row has no KEY");
    }
    AddContent(mux, made.InterchangeableCollection(), row, ContentOfRow(row));
}

void DataTypes::FillEnvDataDesc(VDataType& type, Element element) {
    for (const Element link : Children(element.Take("ENV-DATA-REFS"), "ENV-DATA-REF"))
        if (const Element envData = m_workspace.Follow(link, Tags::envData))
            AddEnvData(type, envData);
    for (const Element envData : Children(element.Take("ENV-DATAS"), "ENV-DATA")) // where they stood before 2.2.0
        AddEnvData(type, envData);
    if (const Element param = element.Take("PARAM-SNREF"))
        AddAttribute(type.Attributes(), L"PARAM", Widen(param.Attribute("SHORT-NAME")));
    if (const Element param = element.Take("PARAM-SNPATHREF"))
        AddAttribute(type.Attributes(), L"PARAM", Widen(param.Attribute("SHORT-NAME-PATH")));
}

/// What goes with every trouble code is the default; the rest is a case for each of its trouble codes.
void DataTypes::AddEnvData(VDataType& type, Element envData) {
    auto& mux = static_cast<VMuxDataType&>(type);
    if (envData.Child("ALL-VALUE")) {
        AddContent(mux, mux.GetDefaultCase(), envData, envData);
        return;
    }
    const Numbers numbers(Silence()); // what is wrong with the values is reported when the packet is filled
    for (const Element value : Children(envData.Child("DTC-VALUES"), "DTC-VALUE")) {
        const auto code = numbers.Constant(value, ValueKind::Whole);
        if (!code)
            continue;
        ImportDame::VCase& made = mux.GetCaseCollection().AddNewCase();
        made.SetQualifier(Naming::MentionOf(envData).c_str());
        made.Range().SetStartValue(ValueOf(*code));
        made.Range().SetEndValue(ValueOf(*code));
        AddContent(mux, made.InterchangeableCollection(), envData, envData);
    }
    For(envData);
}

} // namespace OdxImport
