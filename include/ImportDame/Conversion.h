#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Value.h>

namespace ImportDame {

/// A piece of the computation of physical values from coded ones, with the optional coded value to use when converting
/// back.
class IMPORTDAME_API VConversion {
public:
    /// Without an inverse value.
    VConversion();
    VConversion(const VConversion&) = delete;
    VConversion& operator=(const VConversion&) = delete;
    virtual ~VConversion();

    /// Requires: HasCompuInverseValue() (error code 101052).
    virtual VValue GetCompuInverseValue();
    virtual bool HasCompuInverseValue() const;

    /// From now on the conversion has an inverse value.
    virtual void SetCompuInverseValue(const VValue& value);

private:
    VValue m_compuInverseValue;
    bool m_hasCompuInverseValue = false;
};

} // namespace ImportDame
