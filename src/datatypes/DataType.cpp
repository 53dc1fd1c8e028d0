#include <ImportDame/DataType.h>

#include <ImportDame/DataTypeCollection.h>

namespace ImportDame {

VDataType::VDataType(VDataTypeCollection& dataTypeCollection)
    : VQualified(dataTypeCollection.ImportDoc()), m_dataTypeCollection(dataTypeCollection),
      m_invalidRangeCollection(*this) {}

VDataType::~VDataType() = default;

void VDataType::SetMayBeModified(const bool& mayBeModified) {
    m_mayBeModified = mayBeModified;
}

void VDataType::SetSourceLayerInfo(const VSourceLayerInfo& sourceLayerInfo) {
    m_sourceLayerInfo = sourceLayerInfo;
}

void VDataType::ReasonForIsImported(VReasonForIsImported reason) {
    m_reasonForIsImported = reason;
}

bool VDataType::IsCodedAtom() {
    return false;
}

bool VDataType::IsCodedText() {
    return false;
}

bool VDataType::IsPhysicalAtom() {
    return false;
}

bool VDataType::IsPhysicalText() {
    return false;
}

} // namespace ImportDame
