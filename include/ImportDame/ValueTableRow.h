#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/detail/Memory.h>

#include <cstddef>

namespace ImportDame {

/// A row of a value table: the number to which a coded number is mapped.
class IMPORTDAME_API VValueTableRow {
public:
    /// 0 mapped to 0.
    VValueTableRow();
    VValueTableRow(const VValueTableRow&) = delete;
    VValueTableRow& operator=(const VValueTableRow&) = delete;
    virtual ~VValueTableRow();

    /// Objects live in memory of the library, whoever creates them, unless a place is given for them.
    static void* operator new(std::size_t size) { return detail::Allocate(size); }

    static void* operator new(std::size_t, void* place) noexcept { return place; }

    static void operator delete(void* object, std::size_t size) noexcept { detail::Free(object, size); }

    static void operator delete(void*, void*) noexcept {}

    /// 0 at first.
    double GetCodedValue() const { return m_codedValue; }

    void SetCodedValue(double value);

    /// The physical value; 0 at first.
    double GetMappedValue() const { return m_mappedValue; }

    void SetMappedValue(double value);

    /// Compares both numbers; a row with a not-a-number equals none.
    bool operator==(const VValueTableRow& other) const;
    bool operator!=(const VValueTableRow& other) const;

private:
    double m_codedValue = 0.0;
    double m_mappedValue = 0.0;
};

} // namespace ImportDame
