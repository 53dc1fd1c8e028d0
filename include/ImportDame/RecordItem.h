#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Text.h>
#include <ImportDame/detail/Memory.h>

#include <cstddef>

namespace ImportDame {

/// One text of a trouble code's record: a free one, or an enumerated one that carries a small index as well.
class IMPORTDAME_API VRecordItem {
public:
    /// An empty free text.
    VRecordItem();
    VRecordItem(const VRecordItem& other);
    VRecordItem& operator=(const VRecordItem& other);
    virtual ~VRecordItem();

    /// Objects live in memory of the library, whoever creates them, unless a place is given for them.
    static void* operator new(std::size_t size) { return detail::Allocate(size); }

    static void* operator new(std::size_t, void* place) noexcept { return place; }

    static void operator delete(void* object, std::size_t size) noexcept { detail::Free(object, size); }

    static void operator delete(void*, void*) noexcept {}

    /// A copy of this item on the heap. The caller owns it.
    virtual VRecordItem& Clone() const;

    VText& Text() { return m_text; }

    /// Whether the item is an enumerated text.
    bool IsEnumRecordItem() const { return m_isEnumRecordItem; }

    /// 0 for a free text.
    unsigned short GetEnumIndex() const { return m_enumIndex; }

    /// Makes the item an enumerated text; only assignment makes it a free one again.
    void SetEnumIndex(unsigned short index);

private:
    [[no_unique_address]] VText m_text; ///< The rest lies in its padding.
    bool m_isEnumRecordItem = false;
    unsigned short m_enumIndex = 0;
};

} // namespace ImportDame
