#pragma once

#include <ImportDame/BasePacketDataType.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/detail/OptionalUnsigned.h>

namespace ImportDame {

/// A repetition whose number of items is the value of a selector field.
///
/// Positions are in bits. A reference to one stays valid and follows later sets until the position is unset or the type
/// dies.
class IMPORTDAME_API VNumeratorIterDataType : public VBasePacketDataType {
public:
    explicit VNumeratorIterDataType(VDataTypeCollection& dataTypeCollection);
    ~VNumeratorIterDataType() override;

    void Accept(VDataTypeVisitor& visitor) override;

    /// True, also before a selector data type is set.
    bool NeedsSelector() const override;

    /// The data type of the count field. Requires: HasSelectorDataType() (error code 102005).
    virtual VDataType& GetSelectorDataType();

    /// The data type is borrowed.
    virtual void SetSelectorDataType(VDataType& dataType);
    virtual bool HasSelectorDataType() const;

    bool HasContentStartBitPosition() const { return m_contentStartBitPosition.IsPresent(); }

    /// Requires: HasContentStartBitPosition() (error code 102006).
    const unsigned int& GetContentStartBitPosition() const;
    void SetContentStartBitPosition(const unsigned int& bitPosition);
    void UnsetContentStartBitPosition();

    bool HasSelectorStartBitPosition() const { return m_selectorStartBitPosition.IsPresent(); }

    /// Requires: HasSelectorStartBitPosition() (error code 102007).
    const unsigned int& GetSelectorStartBitPosition() const;
    void SetSelectorStartBitPosition(const unsigned int& bitPosition);
    void UnsetSelectorStartBitPosition();

    /// 0 at first; the library stores it only.
    const unsigned int& GetOffset() const { return m_offset; }

    void SetOffset(const unsigned int& offset);

private:
    VDataType* m_selectorDataType = nullptr;
    detail::OptionalUnsigned m_contentStartBitPosition;
    detail::OptionalUnsigned m_selectorStartBitPosition;
    unsigned int m_offset = 0;
};

} // namespace ImportDame
