#pragma once

#include <ImportDame/DataTypeVisitor.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>

namespace ImportDame {

/// Has every kind of data type handled in one place; a subclass overrides single kinds as needed.
class IMPORTDAME_API VDataTypeDefaultVisitor : public VDataTypeVisitor {
public:
    VDataTypeDefaultVisitor() = default;
    VDataTypeDefaultVisitor(const VDataTypeDefaultVisitor&) = default;
    VDataTypeDefaultVisitor& operator=(const VDataTypeDefaultVisitor&) = default;
    ~VDataTypeDefaultVisitor() override = 0;

    void VisitIdentityDataType(VIdentityDataType& dataType) override;
    void VisitTextTableDataType(VTextTableDataType& dataType) override;
    void VisitLinearDataType(VLinearDataType& dataType) override;
    void VisitPiecewiseLinearDataType(VPiecewiseLinearDataType& dataType) override;
    void VisitValueTableDataType(VValueTableDataType& dataType) override;
    void VisitFormulaDataType(VFormulaDataType& dataType) override;
    void VisitProcedureDataType(VProcedureDataType& dataType) override;
    void VisitPacketDataType(VPacketDataType& dataType) override;
    void VisitMuxDataType(VMuxDataType& dataType) override;
    void VisitStaticIterDataType(VStaticIterDataType& dataType) override;
    void VisitNumeratorIterDataType(VNumeratorIterDataType& dataType) override;
    void VisitEndOfServiceIterDataType(VEndOfServiceIterDataType& dataType) override;
    void VisitEndMarkerIterDataType(VEndMarkerIterDataType& dataType) override;

    /// Called with a data type of any kind that the subclass does not visit by an operation of its own.
    virtual void VisitDataType(VDataType& dataType) = 0;
};

} // namespace ImportDame
