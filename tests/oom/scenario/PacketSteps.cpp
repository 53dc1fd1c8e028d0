#include "oom/scenario/World.h"

using namespace ImportDame;

namespace Scenario {

namespace {

VInterchangeableCollection& Members(World& world) {
    return world.packet->InterchangeableCollection();
}

constexpr Step g_steps[] = {
    {"adds a packet", [](World& w) { w.packet = &w.document->DataTypeCollection().AddNewPacketDataType(); }},
    {"adds a data object", [](World& w) { w.dataObject = &Members(w).AddNewDataObject(); }},
    {"names it", [](World& w) { w.dataObject->SetQualifier(L"DataObject"); }},
    {"sets its default", [](World& w) { w.dataObject->SetDefaultValue(w.value); }},
    {"sets its default again", [](World& w) { w.dataObject->SetDefaultValue(VValue(L"0")); }},
    {"sets its constant",
     [](World& w) {
         w.dataObject->SetConstValue(w.value);
         w.dataObject->SetDataType(w.identity);
         w.dataObject->SetSelectorDataObject(*w.dataObject);
     }},
    {"reads both", [](World& w) { w.dataObject->GetDefaultValue(), w.dataObject->GetConstValue(); }},
    {"adds a bit field", [](World& w) { w.bitField = &Members(w).AddNewBitField(); }},
    {"adds a bit field to it",
     [](World& w) { w.bitField = &w.bitField->InterchangeableCollection().AddNewBitField(); }},
    {"names the inner bit field", [](World& w) { w.bitField->SetQualifier(L"Inner"); }},
    {"adds a gap to it",
     [](World& w) {
         w.gap = &w.bitField->InterchangeableCollection().AddNewGapObject();
         w.gap->SetBitLength(3);
     }},
    {"names the gap", [](World& w) { w.gap->SetQualifier(L"Gap"); }},
    {"adds a data object to it", [](World& w) { w.bitField->InterchangeableCollection().AddNewDataObject(); }},
    {"adds a second gap to it",
     [](World& w) { w.bitField->InterchangeableCollection().AddNewGapObject().SetBitLength(1); }},
    {"adds a gap to the packet", [](World& w) { Members(w).AddNewGapObject().SetBitLength(8); }},
    {"adds an object to the document", [](World& w) { w.document->InterchangeableCollection().AddNewDataObject(); }},
    {"adds a bit field to the document", [](World& w) { w.document->InterchangeableCollection().AddNewBitField(); }},
    {"adds a gap to the document",
     [](World& w) { w.document->InterchangeableCollection().AddNewGapObject().SetBitLength(2); }},

    {"adds a multiplexer", [](World& w) { w.mux = &w.document->DataTypeCollection().AddNewMuxDataType(); }},
    {"sets where it starts", [](World& w) { w.mux->SetMuxStartBitPosition(8); }},
    {"sets where its selector starts",
     [](World& w) {
         w.mux->SetSelectorStartBitPosition(0);
         w.mux->SetSelectorDataType(*w.identity);
     }},
    {"adds to its default case", [](World& w) { w.mux->GetDefaultCase().AddNewGapObject().SetBitLength(8); }},
    {"adds a case", [](World& w) { w.muxCase = &w.mux->GetCaseCollection().AddNewCase(); }},
    {"names the case", [](World& w) { w.muxCase->SetQualifier(L"Case"); }},
    {"sets the start of its range", [](World& w) { w.muxCase->Range().SetStartValue(L"1"); }},
    {"sets the end of its range", [](World& w) { w.muxCase->Range().SetEndValue(L"2"); }},
    {"adds to the case", [](World& w) { w.muxCase->InterchangeableCollection().AddNewDataObject(); }},
    {"adds a second case", [](World& w) { w.mux->GetCaseCollection().AddNewCase(); }},

    {"sets where a repetition starts", [](World& w) { w.numerator->SetContentStartBitPosition(16); }},
    {"sets where its count starts", [](World& w) { w.numerator->SetSelectorStartBitPosition(0); }},
    {"adds what it repeats", [](World& w) { w.numerator->InterchangeableCollection().AddNewDataObject(); }},
    {"sets an end marker", [](World& w) { w.endMarker->TerminationValue().Set(L"255"); }},
    {"adds what it repeats", [](World& w) { w.endMarker->InterchangeableCollection().AddNewDataObject(); }},
    {"limits a repetition", [](World& w) { w.endOfService->SetMaxNumberOfItems(4); }},
    {"adds what it repeats", [](World& w) { w.endOfService->InterchangeableCollection().AddNewDataObject(); }},
};

} // namespace

std::span<const Step> PacketSteps() {
    return g_steps;
}

} // namespace Scenario
