#pragma once

#include <ImportDame/BaseDataObject.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/Value.h>

namespace ImportDame {

/// A member that carries a value. What was once set stays set.
class IMPORTDAME_API VDataObject : public VBaseDataObject {
public:
    explicit VDataObject(VImportDoc& importDoc);
    ~VDataObject() override;

    void Accept(VInterchangeableVisitor& visitor) override;

    bool HasDefaultValue() { return m_hasDefaultValue; }

    /// Requires: HasDefaultValue() (error code 101053).
    VValue GetDefaultValue();
    void SetDefaultValue(const VValue& value);

    /// The same without a copy of the texts. The given value may hold anything afterwards.
    void SetDefaultValue(VValue&& value) noexcept;

    bool HasConstValue() { return m_hasConstValue; }

    /// Requires: HasConstValue() (error code 101055).
    VValue GetConstValue();
    void SetConstValue(const VValue& value);

    /// The same without a copy of the texts. The given value may hold anything afterwards.
    void SetConstValue(VValue&& value) noexcept;

    bool HasSelectorDataObject() const { return m_selectorDataObject != nullptr; }

    /// Requires: HasSelectorDataObject() (error code 101056).
    VDataObject& GetSelectorDataObject();

    /// The data object is borrowed; it may be this one.
    void SetSelectorDataObject(VDataObject& dataObject);

private:
    bool m_hasDefaultValue = false;
    [[no_unique_address]] VValue m_defaultValue; ///< The next flag lies in its padding.
    bool m_hasConstValue = false;
    VValue m_constValue;
    VDataObject* m_selectorDataObject = nullptr;
};

} // namespace ImportDame
