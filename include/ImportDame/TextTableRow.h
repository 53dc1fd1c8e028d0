#pragma once

#include <ImportDame/Conversion.h>
#include <ImportDame/Export.h>
#include <ImportDame/Range.h>
#include <ImportDame/Text.h>

namespace ImportDame {

/// A row of a text table: the text to which a range of coded values is mapped.
///
/// Texts passed in are copied and must not be null; texts handed out are valid until that text changes or the row dies.
class IMPORTDAME_API VTextTableRow : public VConversion {
public:
    /// Empty texts, over a range without ends.
    VTextTableRow();
    ~VTextTableRow() override;

    /// The coded values that the row covers.
    VRange& GetRange() { return m_range; }

    /// Requires: the range has a start (error code 102009).
    VValue GetStartValue() { return m_range.GetStartValue(); }

    /// Requires: the range has an end (error code 102010).
    VValue GetEndValue() { return m_range.GetEndValue(); }

    void SetStartValue(VValue& value);
    void SetEndValue(VValue& value);

    const wchar_t* GetMappedValue() { return m_mappedValue.GetText(); }

    /// Sets the text; its text identifier stays.
    void SetMappedValue(const wchar_t* text);

    /// The mapped text with its text identifier.
    VText& MappedValue() { return m_mappedValue; }

    const wchar_t* GetAdditionalInfo() { return m_additionalInfo.GetText(); }

    /// Sets the text; its text identifier stays.
    void SetAdditionalInfo(const wchar_t* text);

    /// The additional information with its text identifier.
    VText& AdditionalInfo() { return m_additionalInfo; }

    /// Compares both texts with their identifiers and the range, not the inverse value.
    bool operator==(const VTextTableRow& other) const;
    bool operator!=(const VTextTableRow& other) const;

private:
    VRange m_range;
    VText m_mappedValue;
    VText m_additionalInfo;
};

} // namespace ImportDame
