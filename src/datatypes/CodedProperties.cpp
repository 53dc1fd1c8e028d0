#include <ImportDame/CodedProperties.h>

namespace ImportDame {

VCodedProperties::VCodedProperties() = default;

VCodedProperties::VCodedProperties(const VCodedProperties& other) = default;

VCodedProperties::~VCodedProperties() = default;

bool VCodedProperties::operator==(const VCodedProperties& other) const {
    return m_codedAtomProperties == other.m_codedAtomProperties &&
           m_codedFieldProperties == other.m_codedFieldProperties && m_quantity == other.m_quantity;
}

bool VCodedProperties::operator!=(const VCodedProperties& other) const {
    return !(*this == other);
}

VProperties::VQuantity VCodedProperties::GetQuantity() const {
    return m_quantity;
}

void VCodedProperties::SetQuantity(VProperties::VQuantity quantity) {
    m_quantity = quantity;
}

VCodedAtomProperties& VCodedProperties::CodedAtomProperties() {
    return m_codedAtomProperties;
}

VFieldProperties& VCodedProperties::CodedFieldProperties() {
    return m_codedFieldProperties;
}

VProperties::VEncoding VCodedProperties::GetEncoding() const {
    return m_codedAtomProperties.GetEncoding();
}

void VCodedProperties::SetEncoding(VProperties::VEncoding encoding) {
    m_codedAtomProperties.SetEncoding(encoding);
}

VProperties::VByteOrder VCodedProperties::GetByteOrder() const {
    return m_codedAtomProperties.GetByteOrder();
}

void VCodedProperties::SetByteOrder(VProperties::VByteOrder byteOrder) {
    m_codedAtomProperties.SetByteOrder(byteOrder);
}

unsigned int VCodedProperties::GetAtomicBitLength() const {
    return m_codedAtomProperties.GetBitLength();
}

void VCodedProperties::SetAtomicBitLength(unsigned int bitLength) {
    m_codedAtomProperties.SetBitLength(bitLength);
}

unsigned int VCodedProperties::GetBitMask() const {
    return m_codedAtomProperties.GetBitMask();
}

void VCodedProperties::SetBitMask(unsigned int bitMask) {
    m_codedAtomProperties.SetBitMask(bitMask);
}

bool VCodedProperties::HasBitMask() const {
    return m_codedAtomProperties.HasBitMask();
}

bool VCodedProperties::IsNum() const {
    return m_codedAtomProperties.IsNum();
}

bool VCodedProperties::IsText() const {
    return m_codedAtomProperties.IsText();
}

VFieldProperties::VSizeInfo VCodedProperties::GetSizeInfo() const {
    return m_codedFieldProperties.GetSizeInfo();
}

void VCodedProperties::SetSizeInfo(VFieldProperties::VSizeInfo sizeInfo) {
    m_codedFieldProperties.SetSizeInfo(sizeInfo);
    m_quantity = VProperties::field;
}

unsigned int VCodedProperties::GetMinLength() const {
    return m_codedFieldProperties.GetMinLength();
}

void VCodedProperties::SetMinLength(unsigned int minLength) {
    m_codedFieldProperties.SetMinLength(minLength);
    m_quantity = VProperties::field;
}

unsigned int VCodedProperties::GetMaxLength() const {
    return m_codedFieldProperties.GetMaxLength();
}

void VCodedProperties::SetMaxLength(unsigned int maxLength) {
    m_codedFieldProperties.SetMaxLength(maxLength);
    m_quantity = VProperties::field;
}

} // namespace ImportDame
