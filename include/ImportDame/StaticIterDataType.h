#pragma once

#include <ImportDame/BasePacketDataType.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>

namespace ImportDame {

/// A repetition with a fixed number of items.
class IMPORTDAME_API VStaticIterDataType : public VBasePacketDataType {
public:
    /// One item.
    explicit VStaticIterDataType(VDataTypeCollection& dataTypeCollection);
    ~VStaticIterDataType() override;

    void Accept(VDataTypeVisitor& visitor) override;

    /// How often the content occurs.
    const unsigned int& GetNumOfItems() const { return m_numOfItems; }

    void SetNumOfItems(const unsigned int& numOfItems);

private:
    unsigned int m_numOfItems = 1;
};

} // namespace ImportDame
