#pragma once

#include <ImportDame/CodedProperties.h>
#include <ImportDame/DataType.h>
#include <ImportDame/Export.h>
#include <ImportDame/FunctionCollection.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/PhysicalProperties.h>

namespace ImportDame {

/// A data type whose physical value is computed by external procedures.
class IMPORTDAME_API VProcedureDataType : public VDataType {
public:
    explicit VProcedureDataType(VDataTypeCollection& dataTypeCollection);
    ~VProcedureDataType() override;

    void Accept(VDataTypeVisitor& visitor) override;

    VCodedProperties& CodedProperties() { return m_codedProperties; }

    VPhysicalProperties& PhysicalProperties() { return m_physicalProperties; }

    /// The functions that make a physical value of a coded one.
    VFunctionCollection& CodedToPhysFunctionCollection() { return m_codedToPhysFunctionCollection; }

    /// The functions that make a coded value of a physical one.
    VFunctionCollection& PhysToCodedFunctionCollection() { return m_physToCodedFunctionCollection; }

private:
    VCodedProperties m_codedProperties;
    VPhysicalProperties m_physicalProperties;
    VFunctionCollection m_codedToPhysFunctionCollection;
    VFunctionCollection m_physToCodedFunctionCollection;
};

} // namespace ImportDame
