#include "oom/scenario/World.h"

using namespace ImportDame;

namespace Scenario {

namespace {

constexpr Step g_steps[] = {
    {"sets a value", [](World& w) { w.value.Set(L"a text"); }},
    {"sets a value as a number", [](World& w) { w.value.SetAsDouble(1e300); }},
    {"reads a long number", [](World& w) { w.value.Set(L"1234567890123456789012345678901234567890e+12"); }},
    {"converts it", [](World& w) { w.value.GetAsDouble(); }},
    {"makes a field", [](World& w) { w.value.AddFieldElement(L"element"); }},
    {"adds an element", [](World& w) { w.value.AddFieldElement(L"in front"); }},
    {"splits characters", [](World& w) { w.value.SetTextField(L"abcdefghijkl"); }},
    {"splits words", [](World& w) { w.value.SetNonTextField(L"12 34  56"); }},
    {"builds values", [](World&) { const VValue number(2.5), text(L"text"), copy(text); }},

    {"adds an identity type",
     [](World& w) { w.identity = &w.document->DataTypeCollection().AddNewIdentityDataType(); }},
    {"adds an invalid range",
     [](World& w) { w.invalidRange = &w.identity->InvalidRangeCollection().AddNewInvalidRange(); }},
    {"sets the invalid range", [](World& w) { w.invalidRange->SetRange(L"254", L"255"); }},
    {"assigns a text to it", [](World& w) { w.invalidRange->SetAssignedText(L"not available"); }},
    {"sets its start", [](World& w) { w.invalidRange->SetStartValue(w.value); }},
    {"sets its end", [](World& w) { w.invalidRange->SetEndValue(w.value); }},
    {"assigns a range", [](World& w) { static_cast<VRange&>(*w.invalidRange) = VRange(*w.invalidRange); }},
    {"reads its ends", [](World& w) { w.invalidRange->GetStartValue(), w.invalidRange->GetEndValue(); }},
    {"adds another invalid range", [](World& w) { w.identity->InvalidRangeCollection().AddNewInvalidRange(); }},

    {"adds a piecewise linear type",
     [](World& w) { w.piecewise = &w.document->DataTypeCollection().AddNewPiecewiseLinearDataType(); }},
    {"adds a segment",
     [](World& w) { w.conversion = &w.piecewise->LinearConversionCollection().AddNewLinearConversion(); }},
    {"sets the start of the segment", [](World& w) { w.conversion->SetStartValue(0.0); }},
    {"sets the end of the segment", [](World& w) { w.conversion->SetEndValue(100.5); }},
    {"sets its inverse value",
     [](World& w) {
         w.conversion->SetCompuInverseValue(w.value);
         w.conversion->SetOffset(-40.0);
     }},
    {"reads its inverse value", [](World& w) { w.conversion->GetCompuInverseValue(); }},
    {"adds another segment", [](World& w) { w.piecewise->LinearConversionCollection().AddNewLinearConversion(); }},

    {"adds a text table", [](World& w) { w.textTable = &w.document->DataTypeCollection().AddNewTextTableDataType(); }},
    {"names the text table", [](World& w) { w.textTable->SetQualifier(L"OnOff"); }},
    {"adds a row", [](World& w) { w.textRow = &w.textTable->TextTableRowCollection().AddNewTextTableRow(); }},
    {"sets the row's text", [](World& w) { w.textRow->SetMappedValue(L"on"); }},
    {"sets the row's info", [](World& w) { w.textRow->SetAdditionalInfo(L"since 2.0"); }},
    {"sets the row's start", [](World& w) { w.textRow->SetStartValue(w.value); }},
    {"sets the row's end", [](World& w) { w.textRow->SetEndValue(w.value); }},
    {"sets the row's inverse value", [](World& w) { w.textRow->SetCompuInverseValue(w.value); }},
    {"sets the text of no row", [](World& w) { w.textTable->TextTableRowCollection().DefaultValue().SetText(L"?"); }},
    {"adds a second row", [](World& w) { w.textTable->TextTableRowCollection().AddNewTextTableRow(); }},
    {"adds a third row", [](World& w) { w.textTable->TextTableRowCollection().AddNewTextTableRow(); }},

    {"adds a value table",
     [](World& w) { w.valueTable = &w.document->DataTypeCollection().AddNewValueTableDataType(); }},
    {"adds a pair", [](World& w) { w.valueTable->ValueTableRowCollection().AddNewValueTableRow().SetCodedValue(1.0); }},
    {"adds a second pair",
     [](World& w) { w.valueTable->ValueTableRowCollection().AddNewValueTableRow().SetMappedValue(2.0); }},
    {"adds a third pair", [](World& w) { w.valueTable->ValueTableRowCollection().AddNewValueTableRow(); }},

    {"adds a procedure", [](World& w) { w.procedure = &w.document->DataTypeCollection().AddNewProcedureDataType(); }},
    {"adds a function", [](World& w) { w.function = &w.procedure->CodedToPhysFunctionCollection().AddNewFunction(); }},
    {"adds an inverse function", [](World& w) { w.procedure->PhysToCodedFunctionCollection().AddNewFunction(); }},
    {"sets its version", [](World& w) { w.function->SetVersion(L"1.2"); }},
    {"sets its entry point", [](World& w) { w.function->SetEntryPoint(L"Convert"); }},
    {"sets its syntax", [](World& w) { w.function->SetSyntax(L"JAR"); }},
    {"sets its encryption", [](World& w) { w.function->SetEncryption(L"none"); }},
    {"sets its source file", [](World& w) { w.function->SourceFile().SetPath(L"convert.jar"); }},
    {"adds a file", [](World& w) { w.function->AdditionalFileCollection().AddNewAdditionalFile(); }},
    {"sets the file", [](World& w) { w.function->AdditionalFileCollection().Begin()->SetPath(L"tables.jar"); }},
    {"copies the file", [](World& w) { const VAdditionalFile copy(*w.function->AdditionalFileCollection().Begin()); }},
    {"assigns the file",
     [](World& w) { static_cast<VFile&>(*w.function->AdditionalFileCollection().Begin()) = w.function->SourceFile(); }},

    {"adds a unit", [](World& w) { w.unit = &w.document->UnitCollection().AddNewUnit(); }},
    {"shows the unit", [](World& w) { w.unit->SetDisplayName(L"km/h"); }},
    {"builds a unit", [](World& w) { const VUnit unit(*w.document, L"V"); }},
};

} // namespace

std::span<const Step> ValueSteps() {
    return g_steps;
}

} // namespace Scenario
