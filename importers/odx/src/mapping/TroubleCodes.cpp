#include "mapping/TroubleCodes.h"

#include "mapping/Numbers.h"
#include "mapping/SpecialData.h"
#include "text/Utf8.h"

#include <ImportDame/AttributeCollection.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/ItemMapping.h>
#include <ImportDame/RecordTemplateMapping.h>
#include <ImportDame/Text.h>
#include <ImportDame/TroubleCode.h>
#include <ImportDame/TroubleCodeCollection.h>
#include <ImportDame/TroubleCodeCollectionCollection.h>

#include <algorithm>
#include <map>
#include <optional>
#include <unordered_set>

namespace OdxImport {

using ImportDame::VTroubleCode;
using ImportDame::VTroubleCodeCollection;

namespace {

enum FixedColumn : unsigned int { shortName, displayCode, level, envData, fixedColumnCount };

constexpr std::size_t mostColumns = 64;

/// Enough for every real description; keeps a hostile one from multiplying its names by its codes.
constexpr std::size_t longestNames = 4096;

void AppendName(std::wstring& names, const std::wstring& name) {
    if (names.size() + name.size() > longestNames)
        return;
    if (!names.empty())
        names += L' ';
    names += name;
}

} // namespace

VTroubleCodeCollection& TroubleCodes::Add(Element dtcDop) {
    VTroubleCodeCollection& codes = m_workspace.Document().TroubleCodeCollectionCollection().AppendNew();
    codes.SetSourceName(Naming::NameOf(dtcDop).c_str());
    codes.SetObjectIdentifier(Widen(dtcDop.Attribute("ID")).c_str());
    const std::uint64_t bits = LookAtCodedType(dtcDop, m_workspace).FixedBits().value_or(0);
    if (bits != 0)
        codes.SetMaxBitLength(static_cast<unsigned int>(bits));

    const std::vector<Element> dtcs = m_linkedCodes.Of(dtcDop);
    const Columns columns = ColumnsOf(dtcs, dtcDop);
    for (unsigned int i = 0; i < columns.size(); ++i) {
        ImportDame::VItemMapping column;
        column.SetContent(Widen(columns[i]).c_str());
        column.SetIndex(i);
        if (i == envData)
            column.SetItemMappingType(ImportDame::VItemMapping::environmentDataMapping);
        codes.RecordTemplateMapping().Append(column);
    }
    m_numbers.clear();
    for (const Element dtc : dtcs)
        AddCode(codes, dtc, columns, dtcDop, bits);
    codes.CompleteRecords();
    return codes;
}

TroubleCodes::Columns TroubleCodes::ColumnsOf(const std::vector<Element>& dtcs, Element dtcDop) const {
    Columns columns{"SHORT-NAME", "DISPLAY-TROUBLE-CODE", "LEVEL", "ENV-DATA"};
    std::unordered_set<std::string> known;
    bool isFull = false;
    for (const Element dtc : dtcs) {
        ForEachSpecialDatum(dtc, m_workspace, [&](const std::string& path, Element) {
            if (columns.size() == mostColumns)
                isFull = isFull || !known.contains(path);
            else if (known.insert(path).second)
                columns.push_back(path);
        });
    }
    if (isFull)
        m_workspace.ReportAt(dtcDop, Rule::RecordColumnsTooMany,
                             "the special data of the trouble codes have more than " +
                                 std::to_string(mostColumns - fixedColumnCount) + " names");
    return columns;
}

void TroubleCodes::AddCode(VTroubleCodeCollection& codes, Element dtc, const Columns& columns, Element dtcDop,
                           std::uint64_t bits) {
    const auto number = Numbers(m_workspace.Report()).Whole(dtc.Take("TROUBLE-CODE"));
    if (!number) {
        m_workspace.ReportAt(dtc, Rule::TroubleCodeMissing, "the trouble code has no number that can be read");
        dtc.LeaveOut(Fate::Dropped, "the trouble code has no number");
        return;
    }
    if (bits > 0 && bits < 32 && *number >> bits != 0)
        m_workspace.ReportAt(dtc, Rule::TroubleCodeTooLong,
                             std::to_string(*number) + " has more than " + std::to_string(bits) + " bits");
    if (!m_numbers.insert(*number).second)
        m_workspace.ReportAt(dtc, Rule::TroubleCodeTwice,
                             "another trouble code of the collection has the number " + std::to_string(*number));
    if (!dtc.IsTaken())
        ReportMissing(dtc);
    dtc.Taken();
    VTroubleCode& code = codes.AppendNew();
    code.SetCode(*number);
    code.SetObjectIdentifier(Widen(dtc.Attribute("ID")).c_str());
    SetText(code.ErrorText(), dtc.Child("TEXT"));
    FillRecord(code, dtc, columns, EnvDataFor(*number, m_workspace.ContextOf(dtcDop)));
    for (const char* name : {"OID", "IS-TEMPORARY"})
        AddXmlAttribute(code.Attributes(), dtc, name);
    AddSpecialData(code.Attributes(), dtc, m_workspace);
    AddAdminData(code.Attributes(), dtc, m_workspace);
}

void TroubleCodes::ReportMissing(Element dtc) const {
    if (dtc.ShortName().empty())
        m_workspace.ReportAt(dtc, Rule::ShortNameMissing, "DTC has no SHORT-NAME; its ID is used");
    if (dtc.Attribute("ID").empty())
        m_workspace.ReportAt(dtc, Rule::IdMissing, "DTC has no ID");
    if (!dtc.Child("TEXT"))
        m_workspace.ReportAt(dtc, Rule::ValueMissing, "the trouble code has no TEXT");
}

void TroubleCodes::FillRecord(VTroubleCode& code, Element dtc, const Columns& columns,
                              const std::wstring& envDataNames) const {
    dtc.Take("SHORT-NAME");
    code.InsertItem(shortName, Naming::NameOf(dtc).c_str());
    code.InsertItem(displayCode, Widen(dtc.Take("DISPLAY-TROUBLE-CODE").Text()).c_str());
    const Element severity = dtc.Take("LEVEL");
    const auto number = Numbers(m_workspace.Report()).Whole(severity, 0xFFFF);
    if (number)
        code.InsertEnumRecordItem(level, Widen(severity.Text()).c_str(), static_cast<unsigned short>(*number));
    code.InsertItem(envData, envDataNames.c_str());

    struct Value {
        std::wstring text;
        std::optional<std::wstring> id;
    };

    std::map<unsigned int, Value> values; // a name may come several times
    ForEachSpecialDatum(dtc, m_workspace, [&](const std::string& path, Element datum) {
        const auto column = std::find(columns.begin() + fixedColumnCount, columns.end(), path);
        if (column == columns.end())
            return;
        const auto position = static_cast<unsigned int>(column - columns.begin());
        const auto [value, isNew] = values.try_emplace(position);
        value->second.text += (isNew ? L"" : L"; ") + Widen(datum.Text());
        if (isNew && datum.HasAttribute("TI"))
            value->second.id = Widen(datum.Attribute("TI"));
    });
    for (const auto& [position, value] : values) {
        ImportDame::VText text(value.text.c_str());
        if (value.id)
            text.SetTextId(value.id->c_str());
        code.InsertItem(position, text);
    }
}

std::wstring TroubleCodes::EnvDataFor(std::uint32_t code, Layer& context) {
    auto known = m_envData.find(&context);
    if (known == m_envData.end())
        known = m_envData.emplace(&context, ReadEnvData(context)).first;
    const EnvDataNames& names = known->second;
    std::wstring all = names.forAll;
    if (const auto own = names.forCode.find(code); own != names.forCode.end())
        AppendName(all, own->second);
    return all;
}

TroubleCodes::EnvDataNames TroubleCodes::ReadEnvData(Layer& context) {
    EnvDataNames names;
    const EffectiveObjects& objects = m_workspace.Layers().Effective(context, Category::DataObject);
    const auto isEnvData = [](Element object) { return object.Is("ENV-DATA") || object.Is("ENV-DATA-DESC"); };
    for (const auto& entry : objects.Near().Entries()) {
        if (!isEnvData(entry.value.element))
            continue;
        AddEnvData(names, entry.value.element);
        if (&context == &m_workspace.BaseVariant())
            m_envDataOfBase.emplace_back(entry.name, entry.value.element);
    }
    if (!objects.Borrows())
        return names;
    EnvDataFor(0, m_workspace.BaseVariant());
    for (const auto& [name, element] : m_envDataOfBase) {
        const LayerObject* found = objects.Find(name);
        if (found != nullptr && found->element == element && m_workspace.MayCopy(element))
            AddEnvData(names, element);
    }
    return names;
}

void TroubleCodes::AddEnvData(EnvDataNames& names, Element object) const {
    if (object.Is("ENV-DATA-DESC")) {
        for (const Element envData : Children(object.Child("ENV-DATAS"), "ENV-DATA"))
            AddEnvData(names, envData);
        return;
    }
    const std::wstring name = Naming::NameOf(object);
    if (object.Child("ALL-VALUE"))
        AppendName(names.forAll, name);
    const Numbers numbers(Silence()); // what is wrong with the values is reported with their packet
    for (const Element value : Children(object.Child("DTC-VALUES"), "DTC-VALUE"))
        if (const auto code = numbers.Whole(value))
            AppendName(names.forCode[*code], name);
}

} // namespace OdxImport
