#pragma once

#include <ImportDame/CodedProperties.h>
#include <ImportDame/DataType.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/PhysicalDisplayProperties.h>

namespace ImportDame {

/// A data type whose physical value is the coded one.
class IMPORTDAME_API VIdentityDataType : public VDataType {
public:
    explicit VIdentityDataType(VDataTypeCollection& dataTypeCollection);
    ~VIdentityDataType() override;

    void Accept(VDataTypeVisitor& visitor) override;

    VCodedProperties& CodedProperties() { return m_codedProperties; }

    VPhysicalDisplayProperties& PhysicalDisplayProperties() { return m_physicalDisplayProperties; }

private:
    VCodedProperties m_codedProperties;
    VPhysicalDisplayProperties m_physicalDisplayProperties;
};

} // namespace ImportDame
