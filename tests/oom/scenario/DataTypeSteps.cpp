#include "oom/scenario/World.h"

using namespace ImportDame;

namespace Scenario {

namespace {

VDataTypeCollection& Types(World& world) {
    return world.document->DataTypeCollection();
}

template <auto Make>
void MakeOne(World& world) {
    world.made.reset(&(*world.document.*Make)());
}

void AppendMade(World& world) {
    Types(world).AppendDataType(*world.made);
    static_cast<void>(world.made.release());
}

template <class Kind, auto Append>
void AppendMadeAs(World& world) {
    (Types(world).*Append)(static_cast<Kind&>(*world.made));
    static_cast<void>(world.made.release());
}

template <class Kind, Kind* World::*Kept>
void AppendAndKeep(World& world) {
    auto& dataType = static_cast<Kind&>(*world.made);
    AppendMade(world);
    world.*Kept = &dataType;
}

constexpr Step g_steps[] = {
    {"names an identity type", [](World& w) { w.identity->SetQualifier(L"Speed"); }},
    {"shows its name", [](World& w) { w.identity->SetName(L"Vehicle speed"); }},
    {"identifies its name", [](World& w) { w.identity->Name().SetTextId(L"text.2"); }},
    {"describes it", [](World& w) { w.identity->SetDescription(L"The speed of the vehicle"); }},
    {"tells where it came from", [](World& w) { w.identity->SetSourceInfo(L"engine.odx:12"); }},
    {"identifies it", [](World& w) { w.identity->SetObjectIdentifier(L"id.speed"); }},
    {"sets its unit", [](World& w) { w.identity->PhysicalDisplayProperties().SetUnit(L"km/h"); }},
    {"adds an attribute", [](World& w) { w.identity->Attributes().AddNewAttribute().SetQualifier(L""); }},
    {"adds a linear type", [](World& w) { w.linear = &Types(w).AddNewLinearDataType(); }},
    {"sets the unit of its atom", [](World& w) { w.linear->PhysicalAtomProperties().SetUnit(L"V"); }},
    {"sets its conversion", [](World& w) { w.linear->LinearConversion().SetStartValue(-1.5); }},
    {"adds a formula", [](World& w) { w.formula = &Types(w).AddNewFormulaDataType(); }},
    {"sets the formula", [](World& w) { w.formula->SetCodedToPhysFormula(L"x * x"); }},
    {"sets the inverse formula", [](World& w) { w.formula->SetPhysToCodedFormula(L"sqrt(x)"); }},
    {"sets the unit of a procedure", [](World& w) { w.procedure->PhysicalProperties().SetUnit(L"bar"); }},
    {"copies properties",
     [](World& w) {
         const VPhysicalProperties physical(w.procedure->PhysicalProperties());
         const VCodedProperties coded(w.procedure->CodedProperties());
     }},

    {"makes a formula", MakeOne<&VImportDoc::MakeFormulaDataType>},
    {"appends it", AppendMadeAs<VFormulaDataType, &VDataTypeCollection::AppendFormulaDataType>},
    {"makes an identity type", MakeOne<&VImportDoc::MakeIdentityDataType>},
    {"appends it", AppendMadeAs<VIdentityDataType, &VDataTypeCollection::AppendIdentityDataType>},
    {"makes a linear type", MakeOne<&VImportDoc::MakeLinearDataType>},
    {"appends it", AppendMadeAs<VLinearDataType, &VDataTypeCollection::AppendLinearDataType>},
    {"makes a piecewise linear type", MakeOne<&VImportDoc::MakePiecewiseLinearDataType>},
    {"appends it", AppendMadeAs<VPiecewiseLinearDataType, &VDataTypeCollection::AppendPiecewiseLinearDataType>},
    {"makes a procedure", MakeOne<&VImportDoc::MakeProcedureDataType>},
    {"appends it", AppendMadeAs<VProcedureDataType, &VDataTypeCollection::AppendProcedureDataType>},
    {"makes a text table", MakeOne<&VImportDoc::MakeTextTableDataType>},
    {"appends it", AppendMadeAs<VTextTableDataType, &VDataTypeCollection::AppendTextTableDataType>},
    {"makes a value table", MakeOne<&VImportDoc::MakeValueTableDataType>},
    {"appends it", AppendMadeAs<VValueTableDataType, &VDataTypeCollection::AppendValueTableDataType>},
    {"makes a packet", MakeOne<&VImportDoc::MakePacketDataType>},
    {"appends it", AppendMadeAs<VPacketDataType, &VDataTypeCollection::AppendPacketDataType>},
    {"makes a multiplexer", MakeOne<&VImportDoc::MakeMuxDataType>},
    {"appends it", AppendMade},
    {"makes a static repetition", MakeOne<&VImportDoc::MakeStaticIterDataType>},
    {"appends it", AppendMade},
    {"makes a counted repetition", MakeOne<&VImportDoc::MakeNumeratorIterDataType>},
    {"appends it", AppendAndKeep<VNumeratorIterDataType, &World::numerator>},
    {"makes a marked repetition", MakeOne<&VImportDoc::MakeEndMarkerIterDataType>},
    {"appends it", AppendAndKeep<VEndMarkerIterDataType, &World::endMarker>},
    {"makes a repetition to the end", MakeOne<&VImportDoc::MakeEndOfServiceIterDataType>},
    {"appends it", AppendAndKeep<VEndOfServiceIterDataType, &World::endOfService>},
    {"makes an attribute", [](World& w) { w.madeAttribute.reset(&w.document->MakeAttribute()); }},
    {"makes attributes", [](World& w) { w.madeAttributes.reset(&w.document->MakeAttributeCollection()); }},
    {"adds to the attributes", [](World& w) { w.madeAttributes->AddNewAttribute(); }},
};

} // namespace

std::span<const Step> DataTypeSteps() {
    return g_steps;
}

} // namespace Scenario
