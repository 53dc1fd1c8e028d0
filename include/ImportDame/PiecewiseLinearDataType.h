#pragma once

#include <ImportDame/CodedAtomProperties.h>
#include <ImportDame/DataType.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/LinearConversionCollection.h>
#include <ImportDame/PhysicalAtomProperties.h>
#include <ImportDame/PhysicalDisplayProperties.h>

namespace ImportDame {

/// A data type whose physical value follows from the coded one by several linear segments.
class IMPORTDAME_API VPiecewiseLinearDataType : public VDataType {
public:
    explicit VPiecewiseLinearDataType(VDataTypeCollection& dataTypeCollection);
    ~VPiecewiseLinearDataType() override;

    void Accept(VDataTypeVisitor& visitor) override;

    VCodedAtomProperties& CodedAtomProperties() { return m_codedAtomProperties; }

    VPhysicalAtomProperties& PhysicalAtomProperties() { return m_physicalAtomProperties; }

    /// Independent of the display record inside the physical atom properties.
    VPhysicalDisplayProperties& PhysicalDisplayProperties() { return m_physicalDisplayProperties; }

    VLinearConversionCollection& LinearConversionCollection() { return m_linearConversionCollection; }

private:
    VCodedAtomProperties m_codedAtomProperties;
    VPhysicalAtomProperties m_physicalAtomProperties;
    VPhysicalDisplayProperties m_physicalDisplayProperties;
    VLinearConversionCollection m_linearConversionCollection;
};

} // namespace ImportDame
