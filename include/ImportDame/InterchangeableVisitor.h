#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>

namespace ImportDame {

/// One operation for each kind of interchangeable; `VInterchangeable::Accept` calls the one of its kind.
class IMPORTDAME_API VInterchangeableVisitor {
public:
    VInterchangeableVisitor() = default;
    VInterchangeableVisitor(const VInterchangeableVisitor&) = default;
    VInterchangeableVisitor& operator=(const VInterchangeableVisitor&) = default;
    virtual ~VInterchangeableVisitor() = 0;

    virtual void VisitDataObject(VDataObject& dataObject) = 0;
    virtual void VisitBitField(VBitField& bitField) = 0;
    virtual void VisitGapObject(VGapObject& gapObject) = 0;

    /// Lets the interchangeable call the visit operation of its kind.
    virtual void DispatchInterchangeable(VInterchangeable& interchangeable);
};

} // namespace ImportDame
