#include "oom/scenario/World.h"

using namespace ImportDame;

namespace Scenario {

namespace {

VTroubleCodeCollectionCollection& Sources(World& world) {
    return world.document->TroubleCodeCollectionCollection();
}

constexpr Step g_steps[] = {
    {"builds a document", [](World& w) { w.document = std::make_unique<VImportDoc>(); }},
    {"builds a second document", [](World& w) { w.target = std::make_unique<VImportDoc>(); }},
    {"sets the language", [](World& w) { w.document->SetLanguage(L"German"); }},
    {"sets the language again", [](World& w) { w.document->SetLanguage(L"English"); }},
    {"sets the name of the control unit", [](World& w) { w.document->SetEcuName(L"Coolant pump"); }},
    {"sets the version", [](World& w) { w.document->SetKDIVersion(L"1.0"); }},

    {"appends a source", [](World& w) { w.codes = &Sources(w).AppendNew(); }},
    {"names the source", [](World& w) { w.codes->SetSourceName(L"Engine"); }},
    {"identifies the source", [](World& w) { w.codes->SetObjectIdentifier(L"id.source"); }},
    {"names an item of the template", [](World& w) { w.mapping.SetContent(L"Odometer"); }},
    {"appends to the template", [](World& w) { w.codes->RecordTemplateMapping().Append(w.mapping); }},
    {"renames the item", [](World& w) { w.mapping.SetContent(L"Supply voltage"); }},
    {"appends to the template again", [](World& w) { w.codes->RecordTemplateMapping().Append(w.mapping); }},
    {"overwrites in the template",
     [](World& w) { w.codes->RecordTemplateMapping().OverwriteItemMapping(0, w.mapping); }},
    {"appends to another template", [](World& w) { w.otherTemplate.Append(w.mapping); }},
    {"assigns the template", [](World& w) { w.otherTemplate = w.codes->RecordTemplateMapping(); }},
    {"checks the template",
     [](World& w) {
         w.otherTemplate.IsRecordTemplateMappingOK({L"Odometer", L"Temperature"});
     }},
    {"maps a variant", [](World& w) { w.codes->ServiceMapping().SetVariant(L"variant"); }},
    {"maps a class", [](World& w) { w.codes->ServiceMapping().SetClass(L"class"); }},
    {"maps an instance", [](World& w) { w.codes->ServiceMapping().SetInstance(L"instance"); }},
    {"maps a service", [](World& w) { w.codes->ServiceMapping().SetService(L"service"); }},
    {"maps a primitive", [](World& w) { w.codes->ServiceMapping().SetPrimitive(L"primitive"); }},
    {"sets a kind of fault memory",
     [](World& w) { w.codes->ServiceMapping().SetDtcPoolType(VServiceMapping::mirrorMemory); }},
    {"assigns the mapping", [](World& w) { w.mappingOfService = w.codes->ServiceMapping(); }},
    {"assigns a mapping of texts",
     [](World& w) { w.mappingOfService = VServiceMapping(L"a", L"b", L"c", L"d", L"e", 6); }},

    {"appends a code", [](World& w) { w.code = &w.codes->AppendNew(); }},
    {"sets the error text", [](World& w) { w.code->SetErrorText(L"Pump stalled"); }},
    {"identifies the error text", [](World& w) { w.code->ErrorText().SetTextId(L"text.1"); }},
    {"identifies the code",
     [](World& w) {
         w.code->SetObjectIdentifier(L"id.code");
         w.code->SetCode(0x123456);
     }},
    {"appends an item", [](World& w) { w.code->AppendItem(L"12 V"); }},
    {"appends an item of a text", [](World& w) { w.code->AppendItem(VText(L"13 V")); }},
    {"inserts behind the end", [](World& w) { w.code->InsertItem(5, L"far behind"); }},
    {"inserts over an item", [](World& w) { w.code->InsertItem(0, VText(L"14 V")); }},
    {"inserts an enumerated item", [](World& w) { w.code->InsertEnumRecordItem(6, L"on", 5); }},
    {"overwrites an item", [](World& w) { w.code->OverwriteItem(3, L"overwritten"); }},
    {"overwrites an item with a text", [](World& w) { w.code->OverwriteItem(4, VText(L"text")); }},
    {"changes an item", [](World& w) { w.code->Item(2).SetText(L"changed"); }},
    {"adds an item", [](World& w) { w.code->RecordItemCollection().AddNewRecordItem(); }},
    {"makes an item of its own", [](World& w) { w.item = std::make_unique<VRecordItem>(); }},
    {"appends the item",
     [](World& w) {
         w.code->RecordItemCollection().AppendRecordItem(*w.item);
         static_cast<void>(w.item.release());
     }},
    {"clones an item", [](World& w) { w.item.reset(&w.code->RecordItemCollection().Begin()->Clone()); }},
    {"adds an attribute", [](World& w) { w.attribute = &w.code->Attributes().AddNewAttribute(); }},
    {"names the attribute", [](World& w) { w.attribute->SetQualifier(L"attribute"); }},
    {"sets the attribute", [](World& w) { w.attribute->SetValue(L"value"); }},
    {"inserts a code", [](World& w) { w.codes->InsertNew(w.codes->Begin()); }},
    {"appends a copy", [](World& w) { w.codes->AppendCopy(*w.code); }},
    {"inserts a copy", [](World& w) { w.codes->InsertCopy(w.codes->Begin(), *w.code); }},
    {"makes a code", [](World& w) { w.madeCode.reset(&w.document->MakeTroubleCode()); }},
    {"takes over the code",
     [](World& w) {
         w.codes->Append(*w.madeCode);
         static_cast<void>(w.madeCode.release());
     }},
    {"builds a code of values", [](World& w) { w.madeCode.reset(new VTroubleCode(*w.document, 7, L"seven", false)); }},
    {"completes the records", [](World& w) { w.codes->CompleteRecords(); }},
    {"appends an item to it", [](World& w) { w.madeCode->AppendItem(L"16 V"); }},
    {"doubles its record",
     [](World& w) {
         VRecordItemCollection& record = w.madeCode->RecordItemCollection();
         const VRecordItemCollection& same = record;
         record = same;
     }},
    {"makes a source", [](World& w) { w.madeCodes.reset(&w.document->MakeTroubleCodeCollection()); }},
    {"takes over the source",
     [](World& w) {
         Sources(w).Append(*w.madeCodes);
         static_cast<void>(w.madeCodes.release());
     }},
    {"inserts a source", [](World& w) { Sources(w).InsertNew(Sources(w).Begin()); }},
    {"appends a copy of a source", [](World& w) { Sources(w).AppendCopy(*w.codes); }},
    {"inserts a copy of a source", [](World& w) { Sources(w).InsertCopy(Sources(w).Begin(), *w.codes); }},
};

} // namespace

std::span<const Step> TroubleCodeSteps() {
    return g_steps;
}

} // namespace Scenario
