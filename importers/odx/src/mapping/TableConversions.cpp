#include "mapping/Conversions.h"
#include "mapping/Limits.h"
#include "mapping/Naming.h"
#include "mapping/Numbers.h"
#include "mapping/Scales.h"

#include <ImportDame/TextTableDataType.h>
#include <ImportDame/TextTableRow.h>
#include <ImportDame/TextTableRowCollection.h>
#include <ImportDame/ValueTableDataType.h>
#include <ImportDame/ValueTableRow.h>
#include <ImportDame/ValueTableRowCollection.h>

namespace OdxImport {

namespace {

constexpr const char* toPhysical = "COMPU-INTERNAL-TO-PHYS";

} // namespace

void ReadConversion(ImportDame::VTextTableDataType& type, Element method, const CodedType& coded,
                    const Workspace& workspace) {
    ImportDame::VTextTableRowCollection& rows = type.TextTableRowCollection();
    for (const Element scale : TakeScales(method, toPhysical, true, workspace)) {
        ImportDame::VRange range;
        if (!ReadRange(range, scale, coded.Kind(), true, workspace)) {
            PassOver(scale, unreadableLimits);
            continue;
        }
        ImportDame::VTextTableRow& row = rows.AddNewTextTableRow();
        row.GetRange() = range;
        ReadInverseValue(row, scale);
        const Element text = TakeValue(scale.Take("COMPU-CONST"));
        if (!text)
            workspace.ReportAt(scale, Rule::ConversionIncomplete, "the scale has no text in COMPU-CONST");
        SetText(row.MappedValue(), text);
        SetText(row.AdditionalInfo(), scale.Child("SHORT-LABEL"));
        if (!scale.Child("SHORT-LABEL"))
            SetText(row.AdditionalInfo(), scale.Child("DESC"));
    }
    const Element otherwise = method.Child(toPhysical).Take("COMPU-DEFAULT-VALUE");
    SetText(rows.DefaultValue(), TakeValue(otherwise));
}

void ReadConversion(ImportDame::VValueTableDataType& type, Element method, const Workspace& workspace) {
    type.IsInterpolated(true);
    const Numbers numbers(workspace.Report());
    for (const Element scale : TakeScales(method, toPhysical, true, workspace)) {
        const auto coded = numbers.Number(scale.Take("LOWER-LIMIT"));
        const auto mapped = numbers.Number(scale.Take("COMPU-CONST").Take("V"));
        if (!coded || !mapped) {
            PassOver(scale, "a row of a value table needs a limit and a number");
            workspace.ReportAt(scale, Rule::ConversionIncomplete,
                               "the scale needs LOWER-LIMIT and a number in COMPU-CONST");
            continue;
        }
        scale.Take("UPPER-LIMIT");
        ImportDame::VValueTableRow& row = type.ValueTableRowCollection().AddNewValueTableRow();
        row.SetCodedValue(*coded);
        row.SetMappedValue(*mapped);
    }
}

} // namespace OdxImport
