#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>

namespace ImportDame {

/// Tells the kinds of variants apart: `VVariant::Accept` calls the operation of its own kind.
class IMPORTDAME_API VVariantVisitor {
public:
    VVariantVisitor() = default;
    VVariantVisitor(const VVariantVisitor&) = default;
    VVariantVisitor& operator=(const VVariantVisitor&) = default;
    virtual ~VVariantVisitor() = 0;

    virtual void VisitBaseVariant(VBaseVariant& variant) = 0;
    virtual void VisitEcuVariant(VEcuVariant& variant) = 0;

    /// Lets the variant call the visit operation of its kind.
    virtual void DispatchVariant(VVariant& variant);
};

} // namespace ImportDame
