#include <ImportDame/VariantVisitor.h>

#include <ImportDame/Variant.h>

namespace ImportDame {

VVariantVisitor::VVariantVisitor() = default;

VVariantVisitor::VVariantVisitor(const VVariantVisitor& other) = default;

VVariantVisitor& VVariantVisitor::operator=(const VVariantVisitor& other) = default;

VVariantVisitor::~VVariantVisitor() = default;

void VVariantVisitor::DispatchVariant(VVariant& variant) {
    variant.Accept(*this);
}

} // namespace ImportDame
