#include "oom/scenario/World.h"

using namespace ImportDame;

namespace Scenario {

namespace {

class Dumper : public VDumper {
public:
    void VisitStaticIterDataType(VStaticIterDataType&) override {}

    void VisitNumeratorIterDataType(VNumeratorIterDataType&) override {}

    void VisitEndOfServiceIterDataType(VEndOfServiceIterDataType&) override {}

    void VisitEndMarkerIterDataType(VEndMarkerIterDataType&) override {}
};

constexpr Step g_steps[] = {
    {"copies a code", [](World& w) { const VTroubleCode copy(*w.code); }},
    {"copies a code for a document", [](World& w) { const VTroubleCode copy(*w.code, *w.target); }},
    {"copies a source", [](World& w) { const VTroubleCodeCollection copy(*w.codes, *w.target); }},
    {"copies a source to the target",
     [](World& w) { w.target->TroubleCodeCollectionCollection().AppendCopy(*w.codes); }},
    {"copies all sources",
     [](World& w) {
         const VTroubleCodeCollectionCollection copy(w.document->TroubleCodeCollectionCollection(), *w.target);
     }},
    {"copies a record", [](World& w) { const VRecordItemCollection copy(w.code->RecordItemCollection()); }},
    {"copies a template", [](World& w) { const VRecordTemplateMapping copy(w.otherTemplate); }},
    {"copies a mapping", [](World& w) { const VServiceMapping copy(w.codes->ServiceMapping()); }},
    {"copies what is mapped", [](World& w) { const VMappable copy(*w.codes); }},
    {"copies a text", [](World& w) { const VText copy(w.identity->Name()); }},
    {"copies a qualified object", [](World& w) { const VQualified copy(*w.identity); }},
    {"copies attributes", [](World& w) { const VAttributeCollection copy(w.ecuVariant->Attributes()); }},
    {"copies attributes for a document",
     [](World& w) { const VAttributeCollection copy(w.ecuVariant->Attributes(), *w.target); }},
    {"copies a service", [](World& w) { const VDiagService copy(*w.service); }},
    {"copies a job", [](World& w) { const VDiagJob copy(*w.job); }},
    {"copies a shape", [](World& w) { const VDiagServiceShape copy(*w.shape); }},
    {"copies the base variant", [](World& w) { const VBaseVariant copy(w.document->GetBaseVariant()); }},
    {"copies a variant", [](World& w) { const VEcuVariant copy(*w.ecuVariant); }},
    {"copies the variants",
     [](World& w) { const VEcuVariantCollection copy(w.document->GetBaseVariant().GetEcuVariantCollection()); }},

    {"writes the document to the log", [](World& w) { Dumper().Dump(*w.document); }},
    {"writes members to the log", [](World& w) { Dumper().Dump(w.packet->InterchangeableCollection()); }},
    {"breaks a precondition",
     [](World& w) {
         try {
             w.identity->Description().GetTextId();
         } catch (const VLgAssertException&) { // what it is about
         }
     }},

    {"removes a code", [](World& w) { w.codes->Remove(w.codes->Begin()); }},
    {"removes a data type", [](World& w) { w.document->DataTypeCollection().Remove(*w.formula); }},
    {"removes a member", [](World& w) { w.packet->InterchangeableCollection().Remove(*w.dataObject); }},
    {"removes a case",
     [](World& w) {
         w.mux->GetCaseCollection().Remove(*w.muxCase);
         w.muxCase->Destroy();
     }},
    {"removes a segment",
     [](World& w) {
         w.piecewise->LinearConversionCollection().Remove(*w.conversion);
         delete w.conversion;
     }},
    {"clears the sources", [](World& w) { w.document->TroubleCodeCollectionCollection().Clear(); }},
    {"clears the data types", [](World& w) { w.document->DataTypeCollection().Clear(); }},
    {"clears the members", [](World& w) { w.document->InterchangeableCollection().Clear(); }},
    {"clears the services", [](World& w) { w.document->GetBaseVariant().DiagCommCollection().Clear(); }},
    {"clears the units", [](World& w) { w.document->UnitCollection().Clear(); }},
    {"destroys the document",
     [](World& w) {
         w.destroyed = w.document.get();
         w.document.reset();
     }},
};

} // namespace

std::span<const Step> CopyAndEndSteps() {
    return g_steps;
}

} // namespace Scenario
