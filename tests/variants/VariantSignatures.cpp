// What the tests of behaviour cannot tell of the operations of the variants, the diagnostic communications and the
// service mapping: the exact types of results, and who may call.
#include "support/Signature.h"

#include <ImportDame/ImportDame.h>

#include <type_traits>

using namespace ImportDame;
using TestSupport::Has;

namespace {

template <class Collection>
concept RemovesAtInPublic = requires(Collection collection) {
    collection._Remove(collection.Begin().Unwrap());
};

static_assert(requires {
    Has<VDiagCommCollection&()>(&VVariant::DiagCommCollection);
    Has<const wchar_t*() const>(&VVariant::GetTargetVariantQualifier);
    Has<const wchar_t*() const>(&VVariant::GetReferenceFromVariantQualifier);
    Has<bool() const>(&VVariant::HasReferenceFromVariantSpecified);
    Has<bool() const>(&VVariant::GetVariantIsLockedInTarget);
    Has<bool()>(&VVariant::IsImportedCompletly);
    Has<VEcuVariantCollection&()>(&VBaseVariant::GetEcuVariantCollection);
});
using EcuVariants = VEcuVariantCollection;
static_assert(requires {
    Has<VEcuVariant&()>(&EcuVariants::AddNewEcuVariant);
    Has<EcuVariants::iterator(VEcuVariant&)>(&EcuVariants::Find);
    Has<EcuVariants::iterator(const wchar_t*)>(&EcuVariants::Find);
});
static_assert(!RemovesAtInPublic<EcuVariants>);

static_assert(requires {
    Has<bool()>(&VDiagComm::IsImportedCompletly);
    Has<void()>(&VDiagComm::InitCache);
    Has<const unsigned int&() const>(&VDiagService::GetServiceId);
    Has<void(const unsigned int&)>(&VDiagService::SetServiceId);
    Has<const wchar_t*() const>(&VDiagService::GetSemantic);
    Has<const wchar_t*() const>(&VDiagService::GetFunctClass);
    Has<VDiagServiceShapeCollection&()>(&VDiagService::DiagServiceShapeCollection);
    Has<const unsigned int&() const>(&VDiagServiceShape::GetSubValue);
    Has<void(const unsigned int&)>(&VDiagServiceShape::SetSubValue);
});

template <class Collection, class Element>
concept FindsInPublic = requires(Collection collection, Element& element) {
    collection.Find(element);
};

using DiagComms = VDiagCommCollection;
static_assert(requires {
    Has<VDiagService&()>(&DiagComms::AddNewDiagService);
    Has<VDiagService&(const unsigned int&)>(&DiagComms::AddNewDiagService);
    Has<VDiagJob&()>(&DiagComms::AddNewDiagJob);
    Has<VDiagComm*() const>(&DiagComms::GetLastElement);
    Has<unsigned int() const>(&DiagComms::ImportedCount);
    Has<VDiagComm*(const wchar_t*) const>(&DiagComms::GetFromCache);
});
static_assert(!RemovesAtInPublic<DiagComms> && !FindsInPublic<DiagComms, VDiagComm>);

struct ExposedDiagComms : DiagComms {
    using DiagComms::_Remove;
    using DiagComms::Find;
};

static_assert(RemovesAtInPublic<ExposedDiagComms> && FindsInPublic<ExposedDiagComms, VDiagComm>);

using Shapes = VDiagServiceShapeCollection;
static_assert(requires {
    Has<VDiagServiceShape&()>(&Shapes::AddNewDiagServiceShape);
    Has<VDiagServiceShape*() const>(&Shapes::GetLastElement);
    Has<unsigned int() const>(&Shapes::ImportedCount);
    Has<VDiagServiceShape*(const wchar_t*) const>(&Shapes::GetFromCache);
});
static_assert(!RemovesAtInPublic<Shapes> && !FindsInPublic<Shapes, VDiagServiceShape>);

using Mapping = VServiceMapping;
static_assert(std::is_same_v<decltype(Mapping::siDefaultBitPosition), const int>);
static_assert(requires {
    Has<const wchar_t*()>(&Mapping::GetVariant);
    Has<const wchar_t*()>(&Mapping::GetClass);
    Has<const wchar_t*()>(&Mapping::GetInstance);
    Has<const wchar_t*()>(&Mapping::GetService);
    Has<const wchar_t*()>(&Mapping::GetPrimitive);
    Has<int()>(&Mapping::GetBitPosition);
    Has<void(int)>(&Mapping::SetBitPosition);
    Has<bool() const>(&Mapping::IsDtcPool);
    Has<const Mapping::FaultMemoryType&() const>(&Mapping::GetDtcPoolType);
    Has<void(const Mapping::FaultMemoryType&)>(&Mapping::SetDtcPoolType);
    Has<VServiceMapping&()>(&VMappable::ServiceMapping);
});

} // namespace
