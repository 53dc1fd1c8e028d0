#pragma once

#include <ImportDame/AttributeCollection.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/ImportDocChild.h>
#include <ImportDame/RecordItemCollection.h>
#include <ImportDame/Text.h>
#include <ImportDame/detail/Text.h>

#include <string>

namespace ImportDame {

/// A diagnostic trouble code of the control unit, with a record of item texts.
///
/// Texts passed in are copied and must not be null; texts handed out are valid until that text changes or the code or
/// its record item dies.
class IMPORTDAME_API VTroubleCode : public VImportDocChild {
public:
    static const unsigned int siDefaultCode;      ///< 0
    static const bool sbDefaultValueIsImported;   ///< true
    static const std::wstring ssDefaultErrorText; ///< Empty.

    explicit VTroubleCode(VImportDoc& importDoc);

    /// The document is borrowed, and has to live longer. Requires: errorText is not null.
    VTroubleCode(VImportDoc& importDoc, int code, const wchar_t* errorText, bool isImported);

    /// Copies everything, record and attributes item by item.
    VTroubleCode(const VTroubleCode& other);

    /// The same for another document.
    VTroubleCode(const VTroubleCode& other, VImportDoc& importDoc);
    ~VTroubleCode() override;

    /// Named values of the code; live as long as it does.
    virtual VAttributeCollection& Attributes();
    virtual VRecordItemCollection& RecordItemCollection();

    /// The number that the control unit reports.
    unsigned int GetCode() const { return m_code; }

    void SetCode(unsigned int code);

    /// The number of bits up to the highest one that is set; 1 for the code 0, and 0 for codes of 0x80000000 and above.
    unsigned int GetBitLen() const;

    /// The error text with its text identifier.
    VText& ErrorText() { return m_errorText; }

    const wchar_t* GetErrorText() const { return m_errorText.GetText(); }

    /// Sets the text; its text identifier stays.
    void SetErrorText(const wchar_t* errorText);

    /// By which other systems know the code; may be empty.
    const wchar_t* GetObjectIdentifier() const { return m_objectIdentifier.Get(); }

    void SetObjectIdentifier(const wchar_t* objectIdentifier);

    /// Whether the object identifier is not empty.
    bool HasObjectIdentifier() const { return !m_objectIdentifier.IsEmpty(); }

    /// Whether the code is part of the import.
    bool IsImported() const { return m_isImported; }

    void IsImported(bool isImported);

    /// Deletes all record items.
    void ClearRecord();

    /// The number of record items.
    unsigned long long GetNumberOfItem() const { return m_recordItemCollection.Count(); }

    /// Adds a record item at the end.
    void AppendItem(const wchar_t* text);

    /// The same, with the text identifier.
    void AppendItem(VText text);

    /// Replaces the text of the record item at the position, its text identifier included. Where the record is shorter,
    /// it is filled up with empty items first; no item ever moves.
    void InsertItem(unsigned int iNum, VText text);

    /// The same, with a text that has no identifier.
    void InsertItem(unsigned int iNum, const wchar_t* text);

    /// The same, and makes the item an enumerated text.
    void InsertEnumRecordItem(unsigned int iNum, const wchar_t* text, unsigned short enumIndex);

    /// Replaces the text of the record item at the position, its text identifier included; whether it is an enumerated
    /// text stays. Requires: iNum < GetNumberOfItem() (error code 102022).
    void OverwriteItem(unsigned int iNum, VText text);

    /// The same with a text without identifier. Requires: iNum < GetNumberOfItem() (error code 102024).
    void OverwriteItem(unsigned int iNum, const wchar_t* text);

    /// The text of the record item at the position. Requires: iNum < GetNumberOfItem() (error code 102019).
    VText& Item(unsigned int iNum);

    /// The same without its text identifier. Requires: iNum < GetNumberOfItem() (error code 102020).
    const wchar_t* GetItem(unsigned int iNum) const;

private:
    unsigned int m_code;
    [[no_unique_address]] VText m_errorText; ///< The flag lies in its padding.
    bool m_isImported;
    VRecordItemCollection m_recordItemCollection;
    VAttributeCollection m_attributes;
    detail::Text m_objectIdentifier;
};

} // namespace ImportDame
