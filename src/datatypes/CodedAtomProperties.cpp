#include <ImportDame/CodedAtomProperties.h>

#include "datatypes/Encoding.h"

namespace ImportDame {

const unsigned int VCodedAtomProperties::c_neutralBitMask = 0xFFFFFFFFu;

VCodedAtomProperties::VCodedAtomProperties() = default;

VCodedAtomProperties::VCodedAtomProperties(const VCodedAtomProperties& other) = default;

VCodedAtomProperties::~VCodedAtomProperties() = default;

VCodedAtomProperties&
VCodedAtomProperties::operator=(const VCodedAtomProperties& other) = default; // unreachable: private

bool VCodedAtomProperties::operator==(const VCodedAtomProperties& other) const {
    return m_encoding == other.m_encoding && m_byteOrder == other.m_byteOrder && m_bitLength == other.m_bitLength &&
           m_bitMask == other.m_bitMask;
}

bool VCodedAtomProperties::operator!=(const VCodedAtomProperties& other) const {
    return !(*this == other);
}

void VCodedAtomProperties::SetEncoding(VProperties::VEncoding encoding) {
    m_encoding = encoding;
}

void VCodedAtomProperties::SetByteOrder(VProperties::VByteOrder byteOrder) {
    m_byteOrder = byteOrder;
}

void VCodedAtomProperties::SetBitLength(unsigned int bitLength) {
    m_bitLength = bitLength;
}

void VCodedAtomProperties::SetBitMask(unsigned int bitMask) {
    m_bitMask = bitMask;
}

bool VCodedAtomProperties::HasBitMask() const {
    const unsigned int bits = m_bitLength >= 32 ? c_neutralBitMask : (1u << m_bitLength) - 1;
    return (m_bitMask & bits) != bits;
}

bool VCodedAtomProperties::IsNum() const {
    return detail::IsNumber(m_encoding);
}

bool VCodedAtomProperties::IsText() const {
    return detail::IsText(m_encoding);
}

} // namespace ImportDame
