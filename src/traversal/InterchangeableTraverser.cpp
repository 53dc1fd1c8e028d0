#include <ImportDame/InterchangeableTraverser.h>

#include <ImportDame/BitField.h>
#include <ImportDame/DataObject.h>
#include <ImportDame/GapObject.h>
#include <ImportDame/InterchangeableCollection.h>

namespace ImportDame {

VInterchangeableTraverser::~VInterchangeableTraverser() = default;

void VInterchangeableTraverser::TraverseInterchangeable(VInterchangeable& interchangeable) {
    interchangeable.Accept(*this);
}

void VInterchangeableTraverser::TraverseInterchangeableCollection(VInterchangeableCollection& collection) {
    for (VInterchangeable& member : collection)
        TraverseInterchangeable(member);
}

void VInterchangeableTraverser::VisitDataObject(VDataObject& dataObject) {
    PreProcessDataObject(dataObject);
    DescendDataObject(dataObject);
    PostProcessDataObject(dataObject);
}

void VInterchangeableTraverser::VisitBitField(VBitField& bitField) {
    PreProcessBitField(bitField);
    DescendBitField(bitField);
    PostProcessBitField(bitField);
}

void VInterchangeableTraverser::VisitGapObject(VGapObject& gapObject) {
    PreProcessGapObject(gapObject);
    DescendGapObject(gapObject);
    PostProcessGapObject(gapObject);
}

void VInterchangeableTraverser::DescendDataObject(VDataObject&) {}

void VInterchangeableTraverser::DescendBitField(VBitField& bitField) {
    for (VInterchangeable& member : bitField.InterchangeableCollection())
        member.Accept(*this);
}

void VInterchangeableTraverser::DescendGapObject(VGapObject&) {}

void VInterchangeableTraverser::PreProcessDataObject(VDataObject&) {}

void VInterchangeableTraverser::PreProcessBitField(VBitField&) {}

void VInterchangeableTraverser::PreProcessGapObject(VGapObject&) {}

void VInterchangeableTraverser::PostProcessDataObject(VDataObject&) {}

void VInterchangeableTraverser::PostProcessBitField(VBitField&) {}

void VInterchangeableTraverser::PostProcessGapObject(VGapObject&) {}

} // namespace ImportDame
