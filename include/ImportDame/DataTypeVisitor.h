#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>

namespace ImportDame {

/// One operation for each kind of data type; `VDataType::Accept` calls the one of its kind.
class IMPORTDAME_API VDataTypeVisitor {
public:
    VDataTypeVisitor() = default;
    VDataTypeVisitor(const VDataTypeVisitor&) = default;
    VDataTypeVisitor& operator=(const VDataTypeVisitor&) = default;
    virtual ~VDataTypeVisitor() = 0;

    virtual void VisitIdentityDataType(VIdentityDataType& dataType) = 0;
    virtual void VisitTextTableDataType(VTextTableDataType& dataType) = 0;
    virtual void VisitLinearDataType(VLinearDataType& dataType) = 0;
    virtual void VisitPiecewiseLinearDataType(VPiecewiseLinearDataType& dataType) = 0;
    virtual void VisitValueTableDataType(VValueTableDataType& dataType) = 0;
    virtual void VisitFormulaDataType(VFormulaDataType& dataType) = 0;
    virtual void VisitProcedureDataType(VProcedureDataType& dataType) = 0;
    virtual void VisitPacketDataType(VPacketDataType& dataType) = 0;
    virtual void VisitMuxDataType(VMuxDataType& dataType) = 0;
    virtual void VisitStaticIterDataType(VStaticIterDataType& dataType) = 0;
    virtual void VisitNumeratorIterDataType(VNumeratorIterDataType& dataType) = 0;
    virtual void VisitEndOfServiceIterDataType(VEndOfServiceIterDataType& dataType) = 0;
    virtual void VisitEndMarkerIterDataType(VEndMarkerIterDataType& dataType) = 0;

    /// Lets the data type call the visit operation of its kind.
    virtual void DispatchDataType(VDataType& dataType);
};

} // namespace ImportDame
