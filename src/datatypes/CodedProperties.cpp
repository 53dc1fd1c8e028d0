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

void VCodedProperties::SetQuantity(VProperties::VQuantity quantity) {
    m_quantity = quantity;
}

void VCodedProperties::SetEncoding(VProperties::VEncoding encoding) {
    m_codedAtomProperties.SetEncoding(encoding);
}

void VCodedProperties::SetByteOrder(VProperties::VByteOrder byteOrder) {
    m_codedAtomProperties.SetByteOrder(byteOrder);
}

void VCodedProperties::SetAtomicBitLength(unsigned int bitLength) {
    m_codedAtomProperties.SetBitLength(bitLength);
}

void VCodedProperties::SetBitMask(unsigned int bitMask) {
    m_codedAtomProperties.SetBitMask(bitMask);
}

void VCodedProperties::SetSizeInfo(VFieldProperties::VSizeInfo sizeInfo) {
    m_codedFieldProperties.SetSizeInfo(sizeInfo);
    m_quantity = VProperties::field;
}

void VCodedProperties::SetMinLength(unsigned int minLength) {
    m_codedFieldProperties.SetMinLength(minLength);
    m_quantity = VProperties::field;
}

void VCodedProperties::SetMaxLength(unsigned int maxLength) {
    m_codedFieldProperties.SetMaxLength(maxLength);
    m_quantity = VProperties::field;
}

} // namespace ImportDame
