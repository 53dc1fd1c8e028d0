#include <ImportDame/BaseDataObject.h>

namespace ImportDame {

VBaseDataObject::VBaseDataObject(VImportDoc& importDoc) : VInterchangeable(importDoc) {}

VBaseDataObject::~VBaseDataObject() = default;

VBaseDataObject::VSemantics VBaseDataObject::GetSemantics() {
    return m_semantics;
}

void VBaseDataObject::SetSemantics(VSemantics semantics) {
    m_semantics = semantics;
}

VDataType* VBaseDataObject::GetDataType() {
    return m_dataType;
}

void VBaseDataObject::SetDataType(VDataType* dataType) {
    m_dataType = dataType;
}

} // namespace ImportDame
