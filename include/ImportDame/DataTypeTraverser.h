#pragma once

#include <ImportDame/DataTypeVisitor.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>

namespace ImportDame {

/// Walks data types: for each one the pre-process hook, the descend hook and the post-process hook of its kind. The
/// hooks are there to be overridden and enter nothing by themselves: neither invalid ranges nor the contents of
/// packets. The four repetition kinds are left to the subclass.
class IMPORTDAME_API VDataTypeTraverser : public VDataTypeVisitor {
public:
    VDataTypeTraverser() = default;
    VDataTypeTraverser(const VDataTypeTraverser&) = default;
    VDataTypeTraverser& operator=(const VDataTypeTraverser&) = default;
    ~VDataTypeTraverser() override = 0;

    /// Lets the data type call the visit operation of its kind, which calls the three hooks.
    virtual void TraverseDataType(VDataType& dataType);

protected:
    void VisitIdentityDataType(VIdentityDataType& dataType) override;
    void VisitTextTableDataType(VTextTableDataType& dataType) override;
    void VisitLinearDataType(VLinearDataType& dataType) override;
    void VisitPiecewiseLinearDataType(VPiecewiseLinearDataType& dataType) override;
    void VisitValueTableDataType(VValueTableDataType& dataType) override;
    void VisitFormulaDataType(VFormulaDataType& dataType) override;
    void VisitProcedureDataType(VProcedureDataType& dataType) override;
    void VisitPacketDataType(VPacketDataType& dataType) override;
    void VisitMuxDataType(VMuxDataType& dataType) override;

    /// Walks the invalid ranges' three hooks. No default hook calls it.
    virtual void VisitInvalidRangeCollection(VInvalidRangeCollection& collection);

    virtual void DescendIdentityDataType(VIdentityDataType& dataType);
    virtual void DescendTextTableDataType(VTextTableDataType& dataType);
    virtual void DescendLinearDataType(VLinearDataType& dataType);
    virtual void DescendPiecewiseLinearDataType(VPiecewiseLinearDataType& dataType);
    virtual void DescendValueTableDataType(VValueTableDataType& dataType);
    virtual void DescendFormulaDataType(VFormulaDataType& dataType);
    virtual void DescendProcedureDataType(VProcedureDataType& dataType);
    virtual void DescendPacketDataType(VPacketDataType& dataType);
    virtual void DescendMuxDataType(VMuxDataType& dataType);
    virtual void DescendInvalidRangeCollection(VInvalidRangeCollection& collection);

    virtual void PreProcessIdentityDataType(VIdentityDataType& dataType);
    virtual void PreProcessTextTableDataType(VTextTableDataType& dataType);
    virtual void PreProcessLinearDataType(VLinearDataType& dataType);
    virtual void PreProcessPiecewiseLinearDataType(VPiecewiseLinearDataType& dataType);
    virtual void PreProcessValueTableDataType(VValueTableDataType& dataType);
    virtual void PreProcessFormulaDataType(VFormulaDataType& dataType);
    virtual void PreProcessProcedureDataType(VProcedureDataType& dataType);
    virtual void PreProcessPacketDataType(VPacketDataType& dataType);
    virtual void PreProcessMuxDataType(VMuxDataType& dataType);
    virtual void PreProcessInvalidRangeCollection(VInvalidRangeCollection& collection);

    virtual void PostProcessIdentityDataType(VIdentityDataType& dataType);
    virtual void PostProcessTextTableDataType(VTextTableDataType& dataType);
    virtual void PostProcessLinearDataType(VLinearDataType& dataType);
    virtual void PostProcessPiecewiseLinearDataType(VPiecewiseLinearDataType& dataType);
    virtual void PostProcessValueTableDataType(VValueTableDataType& dataType);
    virtual void PostProcessFormulaDataType(VFormulaDataType& dataType);
    virtual void PostProcessProcedureDataType(VProcedureDataType& dataType);
    virtual void PostProcessPacketDataType(VPacketDataType& dataType);
    virtual void PostProcessMuxDataType(VMuxDataType& dataType);
    virtual void PostProcessInvalidRangeCollection(VInvalidRangeCollection& collection);

    /// Where the default descend hooks of the data types lead: nowhere.
    void _DescendToInvalidRangeCollection(VInvalidRangeCollection& collection);
};

} // namespace ImportDame
