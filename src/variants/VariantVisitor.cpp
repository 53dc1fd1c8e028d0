#include <ImportDame/VariantVisitor.h>

#include <ImportDame/Variant.h>

namespace ImportDame {

VVariantVisitor::~VVariantVisitor() = default;

void VVariantVisitor::DispatchVariant(VVariant& variant) {
    variant.Accept(*this);
}

} // namespace ImportDame
