#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Range.h>
#include <ImportDame/Text.h>

namespace ImportDame {

/// A range of values that a data type marks as not valid, and the text to show for them.
class IMPORTDAME_API VInvalidRange : public VRange {
public:
    /// The kinds of invalidity. The library stores the number only.
    enum VInvalidity : unsigned int {
        valid = 0,
        notDefined = 1,
        notAvailable = 2,
        notValid = 3,
    };

    /// An empty range that is not valid, without a text.
    VInvalidRange();
    VInvalidRange(const VInvalidRange&) = delete;
    VInvalidRange& operator=(const VInvalidRange&) = delete;
    ~VInvalidRange() override;

    /// Sets both ends.
    void SetRange(const VValue& start, const VValue& end);

    /// Why values in the range are none.
    VInvalidity GetInvalidity() { return m_invalidity; }

    void SetInvalidity(VInvalidity invalidity);

    /// The text shown for a value in the range; valid until it changes or the range dies.
    const wchar_t* GetAssignedText() { return m_assignedText.GetText(); }

    /// Sets the text; its text identifier stays. Requires: text is not null.
    void SetAssignedText(const wchar_t* text);

    /// The text with its text identifier.
    VText& AssignedText() { return m_assignedText; }

    /// Compares the ranges, the kinds of invalidity and the texts with their identifiers.
    bool operator==(const VInvalidRange& other) const;
    bool operator!=(const VInvalidRange& other) const;

private:
    VInvalidity m_invalidity = notValid;
    VText m_assignedText;
};

} // namespace ImportDame
