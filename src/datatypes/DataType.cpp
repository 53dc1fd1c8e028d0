#include <ImportDame/DataType.h>

#include <ImportDame/DataTypeCollection.h>

namespace ImportDame {

VDataType::VDataType(VDataTypeCollection& dataTypeCollection)
    : VQualified(dataTypeCollection.ImportDoc()), m_dataTypeCollection(dataTypeCollection),
      m_invalidRangeCollection(*this) {}

VDataType::~VDataType() = default;

VDataTypeCollection& VDataType::DataTypeCollection() {
    return m_dataTypeCollection;
}

VInvalidRangeCollection& VDataType::InvalidRangeCollection() {
    return m_invalidRangeCollection;
}

const bool& VDataType::GetMayBeModified() const {
    return m_mayBeModified;
}

void VDataType::SetMayBeModified(const bool& mayBeModified) {
    m_mayBeModified = mayBeModified;
}

const VDataType::VSourceLayerInfo& VDataType::GetSourceLayerInfo() const {
    return m_sourceLayerInfo;
}

void VDataType::SetSourceLayerInfo(const VSourceLayerInfo& sourceLayerInfo) {
    m_sourceLayerInfo = sourceLayerInfo;
}

VDataType::VReasonForIsImported VDataType::ReasonForIsImported() {
    return m_reasonForIsImported;
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
