#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/detail/Text.h>

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

    /// Compares text and identifier; a set but empty identifier equals none.
    bool operator==(const VText& other) const;
    bool operator!=(const VText& other) const;

    const wchar_t* GetText() const;
    void SetText(const wchar_t* text);

    /// Requires: HasTextId() (error code 102016).
    const wchar_t* GetTextId() const;

    /// From now on the text has an identifier, also when it is empty; only assignment takes it away again.
    void SetTextId(const wchar_t* textId);
    bool HasTextId() const;

private:
    detail::Text m_text;
    detail::Text m_textId;
    bool mbHasTextId = false;
};

} // namespace ImportDame
