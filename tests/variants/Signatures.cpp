// What the tests of behaviour cannot tell of the operations of the variants, the diagnostic communications and the
// service mapping: the exact types of results, and who may call.
#include "support/Signatures.h"

#include <ImportDame/ImportDame.h>

using namespace ImportDame;
using TestSupport::g_has;
using TestSupport::HasPublicRemovalAt;

namespace {

static_assert(g_has<VVariant, VDiagCommCollection&(), &VVariant::DiagCommCollection>);
static_assert(g_has<VVariant, const wchar_t*() const, &VVariant::GetTargetVariantQualifier>);
static_assert(g_has<VVariant, const wchar_t*() const, &VVariant::GetReferenceFromVariantQualifier>);
static_assert(g_has<VVariant, bool() const, &VVariant::HasReferenceFromVariantSpecified>);
static_assert(g_has<VVariant, bool() const, &VVariant::GetVariantIsLockedInTarget>);
static_assert(g_has<VVariant, bool(), &VVariant::IsImportedCompletly>);
static_assert(g_has<VBaseVariant, VEcuVariantCollection&(), &VBaseVariant::GetEcuVariantCollection>);
using EcuVariants = VEcuVariantCollection;
static_assert(g_has<EcuVariants, VEcuVariant&(), &EcuVariants::AddNewEcuVariant>);
static_assert(g_has<EcuVariants, EcuVariants::iterator(VEcuVariant&), &EcuVariants::Find>);
static_assert(g_has<EcuVariants, EcuVariants::iterator(const wchar_t*), &EcuVariants::Find>);
static_assert(!HasPublicRemovalAt<EcuVariants>);

static_assert(g_has<VDiagComm, bool(), &VDiagComm::IsImportedCompletly>);
static_assert(g_has<VDiagComm, void(), &VDiagComm::InitCache>);
static_assert(g_has<VDiagService, const unsigned int&() const, &VDiagService::GetServiceId>);
static_assert(g_has<VDiagService, void(const unsigned int&), &VDiagService::SetServiceId>);
static_assert(g_has<VDiagService, const wchar_t*() const, &VDiagService::GetSemantic>);
static_assert(g_has<VDiagService, const wchar_t*() const, &VDiagService::GetFunctClass>);
static_assert(g_has<VDiagService, VDiagServiceShapeCollection&(), &VDiagService::DiagServiceShapeCollection>);
static_assert(g_has<VDiagServiceShape, const unsigned int&() const, &VDiagServiceShape::GetSubValue>);
static_assert(g_has<VDiagServiceShape, void(const unsigned int&), &VDiagServiceShape::SetSubValue>);

template <class Collection, class Element>
concept FindsInPublic = requires(Collection collection, Element& element) {
    collection.Find(element);
};

using DiagComms = VDiagCommCollection;
static_assert(g_has<DiagComms, VDiagService&(), &DiagComms::AddNewDiagService>);
static_assert(g_has<DiagComms, VDiagService&(const unsigned int&), &DiagComms::AddNewDiagService>);
static_assert(g_has<DiagComms, VDiagJob&(), &DiagComms::AddNewDiagJob>);
static_assert(g_has<DiagComms, VDiagComm*() const, &DiagComms::GetLastElement>);
static_assert(g_has<DiagComms, unsigned int() const, &DiagComms::ImportedCount>);
static_assert(g_has<DiagComms, VDiagComm*(const wchar_t*) const, &DiagComms::GetFromCache>);
static_assert(!HasPublicRemovalAt<DiagComms> && !FindsInPublic<DiagComms, VDiagComm>);
using Shapes = VDiagServiceShapeCollection;
static_assert(g_has<Shapes, VDiagServiceShape&(), &Shapes::AddNewDiagServiceShape>);
static_assert(g_has<Shapes, VDiagServiceShape*() const, &Shapes::GetLastElement>);
static_assert(g_has<Shapes, unsigned int() const, &Shapes::ImportedCount>);
static_assert(g_has<Shapes, VDiagServiceShape*(const wchar_t*) const, &Shapes::GetFromCache>);
static_assert(!HasPublicRemovalAt<Shapes> && !FindsInPublic<Shapes, VDiagServiceShape>);

using Mapping = VServiceMapping;
static_assert(std::is_same_v<decltype(Mapping::siDefaultBitPosition), const int>);
static_assert(g_has<Mapping, const wchar_t*(), &Mapping::GetVariant>);
static_assert(g_has<Mapping, const wchar_t*(), &Mapping::GetClass>);
static_assert(g_has<Mapping, const wchar_t*(), &Mapping::GetInstance>);
static_assert(g_has<Mapping, const wchar_t*(), &Mapping::GetService>);
static_assert(g_has<Mapping, const wchar_t*(), &Mapping::GetPrimitive>);
static_assert(g_has<Mapping, int(), &Mapping::GetBitPosition>);
static_assert(g_has<Mapping, void(int), &Mapping::SetBitPosition>);
static_assert(g_has<Mapping, bool() const, &Mapping::IsDtcPool>);
static_assert(g_has<Mapping, const Mapping::FaultMemoryType&() const, &Mapping::GetDtcPoolType>);
static_assert(g_has<Mapping, void(const Mapping::FaultMemoryType&), &Mapping::SetDtcPoolType>);
static_assert(g_has<VMappable, VServiceMapping&(), &VMappable::ServiceMapping>);

} // namespace
