#pragma once

#include <ImportDame/BasePacketDataType.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/Value.h>

namespace ImportDame {

/// A repetition that ends at a marker.
class IMPORTDAME_API VEndMarkerIterDataType : public VBasePacketDataType {
public:
    explicit VEndMarkerIterDataType(VDataTypeCollection& dataTypeCollection);
    ~VEndMarkerIterDataType() override;

    void Accept(VDataTypeVisitor& visitor) override;

    /// The marker; an empty text at first. Whether it agrees with the termination data type is not looked at.
    VValue& TerminationValue() { return m_terminationValue; }

    bool HasTerminationDataType() const { return m_terminationDataType != nullptr; }

    /// Requires: HasTerminationDataType(), unchecked.
    VDataType& GetTerminationDataType();

    /// The data type is borrowed.
    void SetTerminationDataType(VDataType& dataType);

private:
    VValue m_terminationValue;
    VDataType* m_terminationDataType = nullptr;
};

} // namespace ImportDame
