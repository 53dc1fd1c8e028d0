#include "oom/scenario/World.h"

using namespace ImportDame;

namespace Scenario {

namespace {

VBaseVariant& Base(World& world) {
    return world.document->GetBaseVariant();
}

constexpr Step g_steps[] = {
    {"names the base variant", [](World& w) { Base(w).SetQualifier(L"Base"); }},
    {"adds a service", [](World& w) { w.service = &Base(w).DiagCommCollection().AddNewDiagService(); }},
    {"names the service", [](World& w) { w.service->SetQualifier(L"ReadSpeed"); }},
    {"sets its semantic", [](World& w) { w.service->SetSemantic(L"CURRENTDATA"); }},
    {"sets its class", [](World& w) { w.service->SetFunctClass(L"Measurement"); }},
    {"adds a shape", [](World& w) { w.shape = &w.service->DiagServiceShapeCollection().AddNewDiagServiceShape(); }},
    {"names the shape",
     [](World& w) {
         w.shape->SetQualifier(L"Positive");
         w.shape->SetSubValue(1);
     }},
    {"adds a second shape", [](World& w) { w.service->DiagServiceShapeCollection().AddNewDiagServiceShape(); }},
    {"adds a third shape", [](World& w) { w.service->DiagServiceShapeCollection().AddNewDiagServiceShape(); }},
    {"adds a service by its number", [](World& w) { Base(w).DiagCommCollection().AddNewDiagService(0x22); }},
    {"adds a job", [](World& w) { w.job = &Base(w).DiagCommCollection().AddNewDiagJob(); }},
    {"names the job", [](World& w) { w.job->SetQualifier(L"Calibrate"); }},
    {"remembers the shapes", [](World& w) { w.service->InitCache(); }},
    {"remembers the names", [](World& w) { Base(w).DiagCommCollection().InitCache(); }},
    {"renames the job", [](World& w) { w.job->SetQualifier(L"CalibrateAll"); }},
    {"remembers the new names", [](World& w) { Base(w).DiagCommCollection().InitCache(); }},
    {"names the target variant", [](World& w) { Base(w).SetTargetVariantQualifier(L"Target"); }},
    {"names the referenced variant", [](World& w) { Base(w).SetReferenceFromVariantQualifier(L"Reference"); }},
    {"adds a variant", [](World& w) { w.ecuVariant = &Base(w).GetEcuVariantCollection().AddNewEcuVariant(); }},
    {"names the variant", [](World& w) { w.ecuVariant->SetQualifier(L"EV1"); }},
    {"adds a job to it", [](World& w) { w.ecuVariant->DiagCommCollection().AddNewDiagJob(); }},
    {"adds an attribute to it", [](World& w) { w.attribute = &w.ecuVariant->Attributes().AddNewAttribute(); }},
    {"sets the attribute", [](World& w) { w.attribute->SetValue(L"value"); }},
    {"adds a second variant", [](World& w) { Base(w).GetEcuVariantCollection().AddNewEcuVariant(); }},
};

} // namespace

std::span<const Step> VariantSteps() {
    return g_steps;
}

} // namespace Scenario
