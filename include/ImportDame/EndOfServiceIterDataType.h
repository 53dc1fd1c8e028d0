#pragma once

#include <ImportDame/BasePacketDataType.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/detail/OptionalUnsigned.h>

namespace ImportDame {

/// A repetition up to the end of the service.
class IMPORTDAME_API VEndOfServiceIterDataType : public VBasePacketDataType {
public:
    /// At least 0 items, no maximum.
    explicit VEndOfServiceIterDataType(VDataTypeCollection& dataTypeCollection);
    ~VEndOfServiceIterDataType() override;

    void Accept(VDataTypeVisitor& visitor) override;

    /// How often the content occurs at least.
    const unsigned int& GetMinNumberOfItems() const { return m_minNumberOfItems; }

    void SetMinNumberOfItems(const unsigned int& minNumberOfItems);

    bool HasMaxNumberOfItems() const { return m_maxNumberOfItems.IsPresent(); }

    /// Valid, and following later sets, until the maximum is unset or the type dies. Requires: HasMaxNumberOfItems(),
    /// unchecked.
    const unsigned int& GetMaxNumberOfItems() const { return m_maxNumberOfItems.Get(); }

    void SetMaxNumberOfItems(const unsigned int& maxNumberOfItems);
    void UnsetMaxNumberOfItems();

private:
    unsigned int m_minNumberOfItems = 0;
    detail::OptionalUnsigned m_maxNumberOfItems;
};

} // namespace ImportDame
