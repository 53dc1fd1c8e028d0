#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/detail/Text.h>

namespace ImportDame {

/// How a physical value is shown.
class IMPORTDAME_API VPhysicalDisplayProperties {
public:
    /// The radix of the digits. Any 32-bit number can be stored.
    enum VDisplayFormat : int {
        decimal = 0,
        hexadecimal = 1,
        binary = 2,
        octal = 3,
    };

    /// Decimal, precision 0, no unit, unsigned.
    VPhysicalDisplayProperties();
    VPhysicalDisplayProperties(const VPhysicalDisplayProperties& other);
    VPhysicalDisplayProperties& operator=(const VPhysicalDisplayProperties&) = delete;
    virtual ~VPhysicalDisplayProperties();

    /// Every field takes part; the unit is compared as exact text.
    bool operator==(const VPhysicalDisplayProperties& other) const;
    bool operator!=(const VPhysicalDisplayProperties& other) const;

    /// The radix of the digits.
    VDisplayFormat GetDisplayFormat() const { return m_displayFormat; }

    void SetDisplayFormat(VDisplayFormat displayFormat);

    /// In digits behind the point.
    unsigned int GetPrecision() const { return m_precision; }

    void SetPrecision(unsigned int precision);

    /// Valid until the unit changes or the record dies.
    const wchar_t* GetUnit() const { return m_unit.Get(); }

    /// Copied; must not be null.
    void SetUnit(const wchar_t* unit);

    /// Whether the value is shown with a sign.
    bool IsSigned() const { return m_isSigned; }

    /// Sets what `IsSigned` answers.
    void SetSigned(const bool& isSigned);

private:
    VDisplayFormat m_displayFormat = decimal;
    unsigned int m_precision = 0;
    detail::Text m_unit;
    bool m_isSigned = false;
};

} // namespace ImportDame
