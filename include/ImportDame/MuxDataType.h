#pragma once

#include <ImportDame/BasePacketDataType.h>
#include <ImportDame/CaseCollection.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/InterchangeableCollection.h>
#include <ImportDame/detail/OptionalUnsigned.h>

namespace ImportDame {

/// A multiplexer: the value of a selector chooses the content among cases.
///
/// Positions are in bits. A reference to one stays valid and follows later sets until the position is unset or the type
/// dies.
class IMPORTDAME_API VMuxDataType : public VBasePacketDataType {
public:
    explicit VMuxDataType(VDataTypeCollection& dataTypeCollection);
    ~VMuxDataType() override;

    void Accept(VDataTypeVisitor& visitor) override;

    /// True, also before a selector data type is set.
    bool NeedsSelector() const override;

    /// The content where no case matches.
    virtual VInterchangeableCollection& GetDefaultCase();
    virtual VCaseCollection& GetCaseCollection();

    /// The data type of the selector. Requires: HasSelectorDataType() (error code 102001).
    virtual VDataType& GetSelectorDataType();

    /// The data type is borrowed.
    virtual void SetSelectorDataType(VDataType& dataType);
    virtual bool HasSelectorDataType() const;

    bool HasMuxStartBitPosition() const { return m_muxStartBitPosition.IsPresent(); }

    /// Requires: HasMuxStartBitPosition() (error code 102003).
    const unsigned int& GetMuxStartBitPosition() const;
    void SetMuxStartBitPosition(const unsigned int& bitPosition);
    void UnsetMuxStartBitPosition();

    bool HasSelectorStartBitPosition() const { return m_selectorStartBitPosition.IsPresent(); }

    /// Requires: HasSelectorStartBitPosition() (error code 102004).
    const unsigned int& GetSelectorStartBitPosition() const;
    void SetSelectorStartBitPosition(const unsigned int& bitPosition);
    void UnsetSelectorStartBitPosition();

private:
    VInterchangeableCollection m_defaultCase;
    VCaseCollection m_caseCollection;
    VDataType* m_selectorDataType = nullptr;
    detail::OptionalUnsigned m_muxStartBitPosition;
    detail::OptionalUnsigned m_selectorStartBitPosition;
};

} // namespace ImportDame
