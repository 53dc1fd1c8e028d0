#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/FieldProperties.h>
#include <ImportDame/PhysicalAtomProperties.h>
#include <ImportDame/Properties.h>

namespace ImportDame {

/// What a physical value or a field of physical values is and how it is shown.
class IMPORTDAME_API VPhysicalProperties {
public:
    /// Atomic, with the parts' own defaults.
    VPhysicalProperties();
    VPhysicalProperties(const VPhysicalProperties& other);
    VPhysicalProperties& operator=(const VPhysicalProperties&) = delete;
    virtual ~VPhysicalProperties();

    /// Every field takes part, also those that the quantity makes irrelevant.
    bool operator==(const VPhysicalProperties& other) const;
    bool operator!=(const VPhysicalProperties& other) const;

    /// Whether the value is single or a field.
    VProperties::VQuantity GetQuantity() const { return m_quantity; }

    void SetQuantity(VProperties::VQuantity quantity);

    /// Changes made through it leave the quantity alone.
    VPhysicalAtomProperties& PhysicalAtomProperties() { return m_physicalAtomProperties; }

    /// Changes made through it leave the quantity alone.
    VFieldProperties& PhysicalFieldProperties() { return m_physicalFieldProperties; }

    /// What kind of value people see, for one element.
    VProperties::VEncoding GetEncoding() const { return m_physicalAtomProperties.GetEncoding(); }

    void SetEncoding(VProperties::VEncoding encoding);

    /// The bits of one element.
    unsigned int GetAtomicBitLength() const { return m_physicalAtomProperties.GetBitLength(); }

    void SetAtomicBitLength(unsigned int bitLength);

    /// The radix of the digits.
    VPhysicalDisplayProperties::VDisplayFormat GetDisplayFormat() const {
        return m_physicalAtomProperties.GetDisplayFormat();
    }

    void SetDisplayFormat(VPhysicalDisplayProperties::VDisplayFormat displayFormat);

    /// In digits behind the point.
    unsigned int GetPrecision() const { return m_physicalAtomProperties.GetPrecision(); }

    void SetPrecision(unsigned int precision);

    /// Valid until the unit changes or the record dies.
    const wchar_t* GetUnit() const { return m_physicalAtomProperties.GetUnit(); }

    /// Copied; must not be null.
    void SetUnit(const wchar_t* unit);

    /// Whether the encoding is one of the numbers.
    bool IsNum() const { return m_physicalAtomProperties.IsNum(); }

    /// Whether the encoding is one of the texts.
    bool IsText() const { return m_physicalAtomProperties.IsText(); }

    VFieldProperties::VSizeInfo GetSizeInfo() const { return m_physicalFieldProperties.GetSizeInfo(); }

    /// Makes the quantity a field.
    void SetSizeInfo(VFieldProperties::VSizeInfo sizeInfo);

    unsigned int GetMinLength() const { return m_physicalFieldProperties.GetMinLength(); }

    /// Makes the quantity a field.
    void SetMinLength(unsigned int minLength);

    unsigned int GetMaxLength() const { return m_physicalFieldProperties.GetMaxLength(); }

    /// Makes the quantity a field.
    void SetMaxLength(unsigned int maxLength);

private:
    VPhysicalAtomProperties m_physicalAtomProperties;
    [[no_unique_address]] VFieldProperties m_physicalFieldProperties; ///< The quantity lies in its padding.
    VProperties::VQuantity m_quantity = VProperties::atomic;
};

} // namespace ImportDame
