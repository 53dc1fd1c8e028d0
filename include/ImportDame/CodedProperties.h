#pragma once

#include <ImportDame/CodedAtomProperties.h>
#include <ImportDame/Export.h>
#include <ImportDame/FieldProperties.h>
#include <ImportDame/Properties.h>

namespace ImportDame {

/// How a value or a field of values is coded on the wire.
class IMPORTDAME_API VCodedProperties {
public:
    /// Atomic, with the parts' own defaults.
    VCodedProperties();
    VCodedProperties(const VCodedProperties& other);
    VCodedProperties& operator=(const VCodedProperties&) = delete;
    virtual ~VCodedProperties();

    /// Every field takes part, also those that the quantity makes irrelevant.
    bool operator==(const VCodedProperties& other) const;
    bool operator!=(const VCodedProperties& other) const;

    /// Whether the value is single or a field.
    VProperties::VQuantity GetQuantity() const { return m_quantity; }

    void SetQuantity(VProperties::VQuantity quantity);

    /// Changes made through it leave the quantity alone.
    VCodedAtomProperties& CodedAtomProperties() { return m_codedAtomProperties; }

    /// Changes made through it leave the quantity alone.
    VFieldProperties& CodedFieldProperties() { return m_codedFieldProperties; }

    /// How the bits of one element are to be read.
    VProperties::VEncoding GetEncoding() const { return m_codedAtomProperties.GetEncoding(); }

    void SetEncoding(VProperties::VEncoding encoding);

    /// Of elements of more than one byte.
    VProperties::VByteOrder GetByteOrder() const { return m_codedAtomProperties.GetByteOrder(); }

    void SetByteOrder(VProperties::VByteOrder byteOrder);

    /// The bits of one element.
    unsigned int GetAtomicBitLength() const { return m_codedAtomProperties.GetBitLength(); }

    void SetAtomicBitLength(unsigned int bitLength);

    /// The bits that belong to one element.
    unsigned int GetBitMask() const { return m_codedAtomProperties.GetBitMask(); }

    void SetBitMask(unsigned int bitMask);

    bool HasBitMask() const { return m_codedAtomProperties.HasBitMask(); }

    /// Whether the encoding is one of the numbers.
    bool IsNum() const { return m_codedAtomProperties.IsNum(); }

    /// Whether the encoding is one of the texts.
    bool IsText() const { return m_codedAtomProperties.IsText(); }

    VFieldProperties::VSizeInfo GetSizeInfo() const { return m_codedFieldProperties.GetSizeInfo(); }

    /// Makes the quantity a field.
    void SetSizeInfo(VFieldProperties::VSizeInfo sizeInfo);

    unsigned int GetMinLength() const { return m_codedFieldProperties.GetMinLength(); }

    /// Makes the quantity a field.
    void SetMinLength(unsigned int minLength);

    unsigned int GetMaxLength() const { return m_codedFieldProperties.GetMaxLength(); }

    /// Makes the quantity a field.
    void SetMaxLength(unsigned int maxLength);

private:
    VCodedAtomProperties m_codedAtomProperties;
    [[no_unique_address]] VFieldProperties m_codedFieldProperties; ///< The quantity lies in its padding.
    VProperties::VQuantity m_quantity = VProperties::atomic;
};

} // namespace ImportDame
