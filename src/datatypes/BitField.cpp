#include <ImportDame/BitField.h>

#include <ImportDame/InterchangeableVisitor.h>

namespace ImportDame {

VBitField::VBitField(VImportDoc& importDoc) : VBaseDataObject(importDoc), m_interchangeableCollection(importDoc) {}

VBitField::~VBitField() = default;

void VBitField::Accept(VInterchangeableVisitor& visitor) {
    visitor.VisitBitField(*this);
}

} // namespace ImportDame
