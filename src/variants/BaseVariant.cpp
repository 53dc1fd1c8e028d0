#include <ImportDame/BaseVariant.h>

#include <ImportDame/EcuVariantCollection.h>
#include <ImportDame/VariantVisitor.h>

namespace ImportDame {

VBaseVariant::VBaseVariant(VImportDoc& importDoc)
    : VVariant(importDoc), m_ecuVariantCollection(std::make_unique<VEcuVariantCollection>(importDoc)) {}

VBaseVariant::VBaseVariant(const VBaseVariant& other)
    : VVariant(other), m_ecuVariantCollection(std::make_unique<VEcuVariantCollection>(other.ImportDoc())) {}

VBaseVariant::~VBaseVariant() = default;

void VBaseVariant::Accept(VVariantVisitor& visitor) {
    visitor.VisitBaseVariant(*this);
}

VEcuVariantCollection& VBaseVariant::GetEcuVariantCollection() {
    return *m_ecuVariantCollection;
}

} // namespace ImportDame
