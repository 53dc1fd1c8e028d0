#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/detail/Memory.h>
#include <ImportDame/detail/Text.h>
#include <ImportDame/detail/TextField.h>

#include <cstddef>
#include <string>

namespace ImportDame {

/// The value of a constant, a limit or a table entry, as the importer delivered it: one text (atomic), or a field of
/// element texts. Converted to a number only when asked.
///
/// The text and the field are held side by side; switching from one to the other clears neither. Texts passed in are
/// copied and must not be null; texts handed out are valid until the value changes or dies.
class IMPORTDAME_API VValue {
public:
    /// Which of the two representations is in force.
    enum Quantity : unsigned int {
        atomic = 0,
        field = 1,
    };

    static const std::wstring c_separator; ///< Between the elements of a field given as one text: one blank.

    /// The empty text, not physical.
    VValue();

    /// As by `SetAsDouble`, not physical.
    VValue(double value);

    /// The text, not physical.
    VValue(const wchar_t* text);
    VValue(const VValue& other);
    VValue& operator=(const VValue& other);
    virtual ~VValue();

    /// Objects live in memory of the library, whoever creates them, unless a place is given for them.
    static void* operator new(std::size_t size) { return detail::Allocate(size); }

    static void* operator new(std::size_t, void* place) noexcept { return place; }

    static void operator delete(void* object, std::size_t size) noexcept { detail::Free(object, size); }

    static void operator delete(void*, void*) noexcept {}

    /// Makes the value atomic.
    void Set(const wchar_t* text);

    /// Requires: atomic (error code 102034).
    const wchar_t* Get();

    /// Makes the value atomic, with six decimals and a point in every locale.
    void SetAsDouble(double value);

    /// The number in the text; 0 and a record in the log when there is none. Understands an optional sign, digits and
    /// an optional point, or the exponent form of `NValueUtil::StrToDbl`. Requires: atomic (error code 102035).
    double GetAsDouble() const;

    /// Makes the value a field and inserts an element at its front.
    void AddFieldElement(const wchar_t* text);

    /// Makes the value a field that has every character of the text as an element.
    void SetTextField(const wchar_t* text);

    /// Makes the value a field of the parts of the text between separators. Several separators count as one, those at
    /// the end as none; in front of one at the start stands an empty element.
    void SetNonTextField(const wchar_t* text);

    /// Removes all elements; the value stays a field. Requires: a field (error code 102039).
    void ClearField();

    /// Requires: the value is either of both (error code 102040).
    bool IsField() const;

    /// Requires: a field (error code 102038).
    bool IsFieldEmpty();

    /// Requires: a field (error code 102037).
    unsigned long long GetFieldSize();

    /// Requires: a field (error code 102036), and index < GetFieldSize(), which is not checked.
    const wchar_t* GetElement(unsigned int index) const;

    /// Whether the value is given in the physical domain rather than the coded one.
    void IsPhysical(bool isPhysical);

    /// False at first.
    bool IsPhysical() { return m_isPhysical; }

    /// Compares quantity and physical flag, and what the quantity says: the texts, or the fields element by element.
    bool operator==(const VValue& other) const;
    bool operator!=(const VValue& other) const;

    /// Compares atomic values as numbers; a longer field is greater, fields of one size compare by the 32-bit integers
    /// at the start of the first elements that differ. False when the quantities differ.
    bool operator>=(const VValue& other) const;

    /// Whether the quantities are equal, and the values are equal as by `==` or not `>=`. Not the mirror of `>=`.
    bool operator<=(const VValue& other) const;

private:
    friend class VDataObject;
    friend class VRange;

    void Swap(VValue& other) noexcept;

    detail::TextField m_reversedElements; ///< The last element first, so that adding at the front is cheap.
    detail::Text m_text;
    Quantity m_quantity = atomic;
    bool m_isPhysical = false;
};

} // namespace ImportDame
