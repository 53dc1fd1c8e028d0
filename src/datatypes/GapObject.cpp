#include <ImportDame/GapObject.h>

#include <ImportDame/InterchangeableVisitor.h>

namespace ImportDame {

VGapObject::VGapObject(VImportDoc& importDoc) : VInterchangeable(importDoc) {}

VGapObject::~VGapObject() = default;

void VGapObject::Accept(VInterchangeableVisitor& visitor) {
    visitor.VisitGapObject(*this);
}

void VGapObject::SetBitLength(unsigned int bitLength) {
    m_bitLength = bitLength;
}

} // namespace ImportDame
