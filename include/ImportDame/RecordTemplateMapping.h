#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/ItemMapping.h>

#include <set>
#include <string>
#include <vector>

namespace ImportDame {

/// The layout of the records of one trouble-code collection: its named items, in order. Holds copies of the item
/// mappings given to it; references to them are valid until a mapping is appended, cleared or assigned.
class IMPORTDAME_API VRecordTemplateMapping {
public:
    static const int sInvalidIndex; ///< -1

    VRecordTemplateMapping();
    VRecordTemplateMapping(const VRecordTemplateMapping& other);

    /// Empties this mapping, then copies the other's items: assigning a mapping to itself leaves it empty.
    VRecordTemplateMapping& operator=(const VRecordTemplateMapping& other);
    virtual ~VRecordTemplateMapping();

    /// Copies the item mapping to the end.
    void Append(VItemMapping& itemMapping);

    /// Removes all items.
    void Clear();

    /// The length that records are to have.
    unsigned long long GetNumberOfTemplateItem() const;

    /// Requires: iNum < GetNumberOfTemplateItem() (error code 102014).
    const VItemMapping& GetItemMapping(unsigned int iNum) const;

    /// Copies the item mapping over the one at the position. Requires: iNum < GetNumberOfTemplateItem() (error code
    /// 102015).
    void OverwriteItemMapping(unsigned int iNum, VItemMapping& itemMapping);

    /// The position of the first item whose content is exactly the name, or `sInvalidIndex`.
    int GetMappedIndex(const wchar_t* name) const;
    bool HasTemplateItem(const wchar_t* name) const;

    /// Whether the content of every item is one of the allowed names.
    bool IsRecordTemplateMappingOK(std::set<std::wstring> allowedNames) const;

private:
    std::vector<VItemMapping> m_itemMappings;
};

} // namespace ImportDame
