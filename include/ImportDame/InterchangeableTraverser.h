#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/InterchangeableVisitor.h>

namespace ImportDame {

/// Walks interchangeables: for each one the pre-process hook, the descend hook and the post-process hook of its kind.
/// The descend hook of a bit field enters its members, depth first; the other hooks are there to be overridden.
class IMPORTDAME_API VInterchangeableTraverser : public VInterchangeableVisitor {
public:
    VInterchangeableTraverser() = default;
    VInterchangeableTraverser(const VInterchangeableTraverser&) = default;
    VInterchangeableTraverser& operator=(const VInterchangeableTraverser&) = default;
    ~VInterchangeableTraverser() override = 0;

    /// Lets the interchangeable call the visit operation of its kind, which calls the three hooks.
    virtual void TraverseInterchangeable(VInterchangeable& interchangeable);

    /// Calls `TraverseInterchangeable` with every element, in order.
    virtual void TraverseInterchangeableCollection(VInterchangeableCollection& collection);

protected:
    void VisitDataObject(VDataObject& dataObject) override;
    void VisitBitField(VBitField& bitField) override;
    void VisitGapObject(VGapObject& gapObject) override;

    virtual void DescendDataObject(VDataObject& dataObject);
    virtual void DescendBitField(VBitField& bitField);
    virtual void DescendGapObject(VGapObject& gapObject);

    virtual void PreProcessDataObject(VDataObject& dataObject);
    virtual void PreProcessBitField(VBitField& bitField);
    virtual void PreProcessGapObject(VGapObject& gapObject);

    virtual void PostProcessDataObject(VDataObject& dataObject);
    virtual void PostProcessBitField(VBitField& bitField);
    virtual void PostProcessGapObject(VGapObject& gapObject);
};

} // namespace ImportDame
