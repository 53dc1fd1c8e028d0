#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/PhysicalDisplayProperties.h>
#include <ImportDame/Properties.h>

namespace ImportDame {

/// What one physical value, or one element of a physical field, is and how it is shown.
class IMPORTDAME_API VPhysicalAtomProperties {
public:
    /// An unsigned integer of 8 bits, with the display record's own defaults.
    VPhysicalAtomProperties();
    VPhysicalAtomProperties(const VPhysicalAtomProperties& other);
    VPhysicalAtomProperties& operator=(const VPhysicalAtomProperties&) = delete;
    virtual ~VPhysicalAtomProperties();

    /// Every field takes part.
    bool operator==(const VPhysicalAtomProperties& other) const;
    bool operator!=(const VPhysicalAtomProperties& other) const;

    /// What kind of value people see.
    VProperties::VEncoding GetEncoding() const { return m_encoding; }

    void SetEncoding(VProperties::VEncoding encoding);

    /// In bits.
    unsigned int GetBitLength() const { return m_bitLength; }

    void SetBitLength(unsigned int bitLength);

    /// Whether the encoding is one of the numbers.
    bool IsNum() const;

    /// Whether the encoding is one of the texts.
    bool IsText() const;

    VPhysicalDisplayProperties& PhysicalDisplayProperties() { return m_physicalDisplayProperties; }

    /// The radix of the digits, as in the display record.
    VPhysicalDisplayProperties::VDisplayFormat GetDisplayFormat() const {
        return m_physicalDisplayProperties.GetDisplayFormat();
    }

    void SetDisplayFormat(VPhysicalDisplayProperties::VDisplayFormat displayFormat);

    /// In digits behind the point, as in the display record.
    unsigned int GetPrecision() const { return m_physicalDisplayProperties.GetPrecision(); }

    void SetPrecision(unsigned int precision);

    /// Valid until the unit changes or the record dies.
    const wchar_t* GetUnit() const { return m_physicalDisplayProperties.GetUnit(); }

    /// Copied; must not be null.
    void SetUnit(const wchar_t* unit);

private:
    VProperties::VEncoding m_encoding = VProperties::unsignedInteger;
    unsigned int m_bitLength = 8;
    VPhysicalDisplayProperties m_physicalDisplayProperties;
};

} // namespace ImportDame
