#include <ImportDame/EcuVariant.h>

#include <ImportDame/VariantVisitor.h>

namespace ImportDame {

VEcuVariant::VEcuVariant(VImportDoc& importDoc) : VVariant(importDoc) {}

VEcuVariant::VEcuVariant(const VEcuVariant& other) = default;

VEcuVariant::~VEcuVariant() = default;

void VEcuVariant::Accept(VVariantVisitor& visitor) {
    visitor.VisitEcuVariant(*this);
}

} // namespace ImportDame
