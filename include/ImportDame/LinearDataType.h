#pragma once

#include <ImportDame/CodedAtomProperties.h>
#include <ImportDame/DataType.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/LinearConversion.h>
#include <ImportDame/PhysicalAtomProperties.h>
#include <ImportDame/PhysicalDisplayProperties.h>

namespace ImportDame {

/// A data type whose physical value follows from the coded one by one linear segment.
class IMPORTDAME_API VLinearDataType : public VDataType {
public:
    explicit VLinearDataType(VDataTypeCollection& dataTypeCollection);
    ~VLinearDataType() override;

    void Accept(VDataTypeVisitor& visitor) override;

    VCodedAtomProperties& CodedAtomProperties() { return m_codedAtomProperties; }

    VPhysicalAtomProperties& PhysicalAtomProperties() { return m_physicalAtomProperties; }

    /// Independent of the display record inside the physical atom properties.
    VPhysicalDisplayProperties& PhysicalDisplayProperties() { return m_physicalDisplayProperties; }

    VLinearConversion& LinearConversion() { return m_linearConversion; }

private:
    VCodedAtomProperties m_codedAtomProperties;
    VPhysicalAtomProperties m_physicalAtomProperties;
    VPhysicalDisplayProperties m_physicalDisplayProperties;
    VLinearConversion m_linearConversion;
};

} // namespace ImportDame
