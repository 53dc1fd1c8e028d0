#pragma once

#include <ImportDame/DataType.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/InterchangeableCollection.h>

namespace ImportDame {

/// A data type with structured content. The base of the packet kinds.
class IMPORTDAME_API VBasePacketDataType : public VDataType {
public:
    ~VBasePacketDataType() override;

    /// Whether the value of another field steers the content.
    virtual bool NeedsSelector() const;

    /// The ordered content; of a repetition, the content of one item.
    VInterchangeableCollection& InterchangeableCollection() { return m_interchangeableCollection; }

protected:
    explicit VBasePacketDataType(VDataTypeCollection& dataTypeCollection);

private:
    VInterchangeableCollection m_interchangeableCollection;
};

} // namespace ImportDame
