#include <ImportDame/DiagServiceShape.h>

namespace ImportDame {

VDiagServiceShape::VDiagServiceShape(VImportDoc& importDoc) : VQualified(importDoc) {}

VDiagServiceShape::VDiagServiceShape(const VDiagServiceShape& other) = default;

VDiagServiceShape::~VDiagServiceShape() = default;

void VDiagServiceShape::SetSubValue(const unsigned int& subValue) {
    m_subValue = subValue;
}

} // namespace ImportDame
