#pragma once

#include <ImportDame/CodedAtomProperties.h>
#include <ImportDame/DataType.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/PhysicalAtomProperties.h>
#include <ImportDame/PhysicalDisplayProperties.h>
#include <ImportDame/ValueTableRowCollection.h>

namespace ImportDame {

/// A data type whose physical value stands beside the coded one in a table of numbers.
class IMPORTDAME_API VValueTableDataType : public VDataType {
public:
    explicit VValueTableDataType(VDataTypeCollection& dataTypeCollection);
    ~VValueTableDataType() override;

    void Accept(VDataTypeVisitor& visitor) override;

    VCodedAtomProperties& CodedAtomProperties() { return m_codedAtomProperties; }

    VPhysicalAtomProperties& PhysicalAtomProperties() { return m_physicalAtomProperties; }

    /// Independent of the display record inside the physical atom properties.
    VPhysicalDisplayProperties& PhysicalDisplayProperties() { return m_physicalDisplayProperties; }

    VValueTableRowCollection& ValueTableRowCollection() { return m_valueTableRowCollection; }

    /// Whether values between the rows are to be interpolated by who reads the table.
    bool IsInterpolated() { return m_isInterpolated; }

    void IsInterpolated(bool isInterpolated);

private:
    VCodedAtomProperties m_codedAtomProperties;
    VPhysicalAtomProperties m_physicalAtomProperties;
    [[no_unique_address]] VPhysicalDisplayProperties m_physicalDisplayProperties; ///< The flag lies in its padding.
    bool m_isInterpolated = false;
    VValueTableRowCollection m_valueTableRowCollection;
};

} // namespace ImportDame
