#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Properties.h>

namespace ImportDame {

/// How one value, or one element of a field, is coded on the wire.
class IMPORTDAME_API VCodedAtomProperties {
public:
    /// 0xFFFFFFFF, the mask that clears no bit.
    static const unsigned int c_neutralBitMask;

    /// An unsigned integer of 8 bits, high byte first, with the neutral mask.
    VCodedAtomProperties();
    VCodedAtomProperties(const VCodedAtomProperties& other);
    virtual ~VCodedAtomProperties();

    /// Every field takes part.
    bool operator==(const VCodedAtomProperties& other) const;
    bool operator!=(const VCodedAtomProperties& other) const;

    /// How the bits are to be read.
    VProperties::VEncoding GetEncoding() const { return m_encoding; }

    void SetEncoding(VProperties::VEncoding encoding);

    /// Of values of more than one byte.
    VProperties::VByteOrder GetByteOrder() const { return m_byteOrder; }

    void SetByteOrder(VProperties::VByteOrder byteOrder);

    /// In bits.
    unsigned int GetBitLength() const { return m_bitLength; }

    void SetBitLength(unsigned int bitLength);

    /// The bits that belong to the value; all of them while it is `c_neutralBitMask`.
    unsigned int GetBitMask() const { return m_bitMask; }

    void SetBitMask(unsigned int bitMask);

    /// Whether the mask clears at least one of the value's bits; bits above the bit length do not count.
    bool HasBitMask() const;

    /// Whether the encoding is one of the numbers.
    bool IsNum() const;

    /// Whether the encoding is one of the texts.
    bool IsText() const;

private:
    VCodedAtomProperties& operator=(const VCodedAtomProperties& other);

    VProperties::VEncoding m_encoding = VProperties::unsignedInteger;
    VProperties::VByteOrder m_byteOrder = VProperties::highLow;
    unsigned int m_bitLength = 8;
    unsigned int m_bitMask = c_neutralBitMask;
};

} // namespace ImportDame
