#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Value.h>
#include <ImportDame/detail/Memory.h>

#include <cstddef>

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

    /// Objects live in memory of the library, whoever creates them, unless a place is given for them.
    static void* operator new(std::size_t size) { return detail::Allocate(size); }

    static void* operator new(std::size_t, void* place) noexcept { return place; }

    static void operator delete(void* object, std::size_t size) noexcept { detail::Free(object, size); }

    static void operator delete(void*, void*) noexcept {}

    /// Requires: HasCompuInverseValue() (error code 101052).
    virtual VValue GetCompuInverseValue();
    virtual bool HasCompuInverseValue() const;

    /// From now on the conversion has an inverse value.
    virtual void SetCompuInverseValue(const VValue& value);

private:
    [[no_unique_address]] VValue m_compuInverseValue; ///< The flag lies in its padding.
    bool m_hasCompuInverseValue = false;
};

} // namespace ImportDame
