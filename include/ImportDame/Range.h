#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Value.h>
#include <ImportDame/detail/Memory.h>

#include <cstddef>

namespace ImportDame {

/// An interval of values; either end may be absent. An end that was unset keeps its value, which comparisons look at.
class IMPORTDAME_API VRange {
public:
    /// Both ends absent.
    VRange();
    VRange(const VRange& other);
    VRange& operator=(const VRange& other);
    virtual ~VRange();

    /// Objects live in memory of the library, whoever creates them, unless a place is given for them.
    static void* operator new(std::size_t size) { return detail::Allocate(size); }

    static void* operator new(std::size_t, void* place) noexcept { return place; }

    static void operator delete(void* object, std::size_t size) noexcept { detail::Free(object, size); }

    static void operator delete(void*, void*) noexcept {}

    void SetStartValue(const VValue& value);
    void SetEndValue(const VValue& value);

    /// The same without a copy of the texts. The given value may hold anything afterwards.
    void SetStartValue(VValue&& value) noexcept;

    /// The same without a copy of the texts. The given value may hold anything afterwards.
    void SetEndValue(VValue&& value) noexcept;

    /// Makes the end absent; its value stays.
    void UnsetStartValue();
    void UnsetEndValue();

    bool HasStartValue() const { return m_hasStartValue; }

    bool HasEndValue() const { return m_hasEndValue; }

    /// Requires: HasStartValue() (error code 102009).
    VValue GetStartValue();

    /// Requires: HasEndValue() (error code 102010).
    VValue GetEndValue();

    /// Compares which ends are present, and both values, also that of an absent end.
    bool operator==(const VRange& other) const;
    bool operator!=(const VRange& other) const;

private:
    VValue m_startValue;
    [[no_unique_address]] VValue m_endValue; ///< The flags lie in its padding.
    bool m_hasStartValue = false;
    bool m_hasEndValue = false;
};

} // namespace ImportDame
