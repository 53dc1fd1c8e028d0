#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/detail/Memory.h>
#include <ImportDame/detail/Text.h>

#include <cstddef>

namespace ImportDame {

/// A wide text with an optional text identifier, by which a translation of it can be found.
///
/// Texts passed in are copied and must not be null; texts handed out live in the object and are valid until that text
/// changes or the object dies.
class IMPORTDAME_API VText {
public:
    /// An empty text without identifier.
    VText();

    /// A text without identifier.
    VText(const wchar_t* text);

    VText(const VText& other);
    VText& operator=(const VText& other);
    virtual ~VText();

    /// Objects live in memory of the library, whoever creates them, unless a place is given for them.
    static void* operator new(std::size_t size) { return detail::Allocate(size); }

    static void* operator new(std::size_t, void* place) noexcept { return place; }

    static void operator delete(void* object, std::size_t size) noexcept { detail::Free(object, size); }

    static void operator delete(void*, void*) noexcept {}

    /// Compares text and identifier; a set but empty identifier equals none.
    bool operator==(const VText& other) const;
    bool operator!=(const VText& other) const;

    /// Empty at first.
    const wchar_t* GetText() const { return m_text.Get(); }

    void SetText(const wchar_t* text);

    /// Requires: HasTextId() (error code 102016).
    const wchar_t* GetTextId() const;

    /// From now on the text has an identifier, also when it is empty; only assignment takes it away again.
    void SetTextId(const wchar_t* textId);

    bool HasTextId() const { return mbHasTextId; }

private:
    detail::Text m_text;
    detail::Text m_textId;
    bool mbHasTextId = false;
};

} // namespace ImportDame
