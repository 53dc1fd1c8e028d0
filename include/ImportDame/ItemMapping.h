#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/detail/Text.h>

namespace ImportDame {

/// Which position of the trouble codes' records one named item of a record template stands for.
class IMPORTDAME_API VItemMapping {
public:
    /// What the record item describes. The library stores the number only.
    enum VItemMappingType : unsigned int {
        unspecified = 0,
        statusMapping = 1,
        snapshotDataMapping = 2,
        extendedDataMapping = 3,
        environmentDataMapping = 4,
    };

    /// Unspecified, position 0, empty content, not forced.
    VItemMapping();

    /// The same, with the flag whether the mapping was forced automatically.
    explicit VItemMapping(const bool& isAutomaticallyForced);
    VItemMapping(const VItemMapping& other);
    VItemMapping& operator=(const VItemMapping& other);
    virtual ~VItemMapping();

    /// The name of the template item; valid until it changes or the mapping dies.
    const wchar_t* GetContent() const { return m_content.Get(); }

    /// Requires: content is not null.
    void SetContent(const wchar_t* content);

    /// The position in the record.
    unsigned int GetIndex() const { return m_index; }

    void SetIndex(unsigned int index);

    /// What the record item describes.
    const VItemMappingType& GetItemMappingType() const { return m_type; }

    void SetItemMappingType(const VItemMappingType& type);

    /// Whether nobody chose the mapping; given at construction.
    const bool& IsAutomaticallyForcedMapping() const { return m_isAutomaticallyForced; }

private:
    VItemMappingType m_type = unspecified;
    unsigned int m_index = 0;
    detail::Text m_content;
    bool m_isAutomaticallyForced = false;
};

} // namespace ImportDame
