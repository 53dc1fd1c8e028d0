#include <ImportDame/DataTypeTraverser.h>

#include <ImportDame/FormulaDataType.h>
#include <ImportDame/IdentityDataType.h>
#include <ImportDame/LinearDataType.h>
#include <ImportDame/MuxDataType.h>
#include <ImportDame/PacketDataType.h>
#include <ImportDame/PiecewiseLinearDataType.h>
#include <ImportDame/ProcedureDataType.h>
#include <ImportDame/TextTableDataType.h>
#include <ImportDame/ValueTableDataType.h>

namespace ImportDame {

VDataTypeTraverser::~VDataTypeTraverser() = default;

void VDataTypeTraverser::TraverseDataType(VDataType& dataType) {
    dataType.Accept(*this);
}

void VDataTypeTraverser::VisitIdentityDataType(VIdentityDataType& dataType) {
    PreProcessIdentityDataType(dataType);
    DescendIdentityDataType(dataType);
    PostProcessIdentityDataType(dataType);
}

void VDataTypeTraverser::VisitTextTableDataType(VTextTableDataType& dataType) {
    PreProcessTextTableDataType(dataType);
    DescendTextTableDataType(dataType);
    PostProcessTextTableDataType(dataType);
}

void VDataTypeTraverser::VisitLinearDataType(VLinearDataType& dataType) {
    PreProcessLinearDataType(dataType);
    DescendLinearDataType(dataType);
    PostProcessLinearDataType(dataType);
}

void VDataTypeTraverser::VisitPiecewiseLinearDataType(VPiecewiseLinearDataType& dataType) {
    PreProcessPiecewiseLinearDataType(dataType);
    DescendPiecewiseLinearDataType(dataType);
    PostProcessPiecewiseLinearDataType(dataType);
}

void VDataTypeTraverser::VisitValueTableDataType(VValueTableDataType& dataType) {
    PreProcessValueTableDataType(dataType);
    DescendValueTableDataType(dataType);
    PostProcessValueTableDataType(dataType);
}

void VDataTypeTraverser::VisitFormulaDataType(VFormulaDataType& dataType) {
    PreProcessFormulaDataType(dataType);
    DescendFormulaDataType(dataType);
    PostProcessFormulaDataType(dataType);
}

void VDataTypeTraverser::VisitProcedureDataType(VProcedureDataType& dataType) {
    PreProcessProcedureDataType(dataType);
    DescendProcedureDataType(dataType);
    PostProcessProcedureDataType(dataType);
}

void VDataTypeTraverser::VisitPacketDataType(VPacketDataType& dataType) {
    PreProcessPacketDataType(dataType);
    DescendPacketDataType(dataType);
    PostProcessPacketDataType(dataType);
}

void VDataTypeTraverser::VisitMuxDataType(VMuxDataType& dataType) {
    PreProcessMuxDataType(dataType);
    DescendMuxDataType(dataType);
    PostProcessMuxDataType(dataType);
}

void VDataTypeTraverser::VisitInvalidRangeCollection(VInvalidRangeCollection& collection) {
    PreProcessInvalidRangeCollection(collection);
    DescendInvalidRangeCollection(collection);
    PostProcessInvalidRangeCollection(collection);
}

void VDataTypeTraverser::DescendIdentityDataType(VIdentityDataType& dataType) {
    _DescendToInvalidRangeCollection(dataType.InvalidRangeCollection());
}

void VDataTypeTraverser::DescendTextTableDataType(VTextTableDataType& dataType) {
    _DescendToInvalidRangeCollection(dataType.InvalidRangeCollection());
}

void VDataTypeTraverser::DescendLinearDataType(VLinearDataType& dataType) {
    _DescendToInvalidRangeCollection(dataType.InvalidRangeCollection());
}

void VDataTypeTraverser::DescendPiecewiseLinearDataType(VPiecewiseLinearDataType& dataType) {
    _DescendToInvalidRangeCollection(dataType.InvalidRangeCollection());
}

void VDataTypeTraverser::DescendValueTableDataType(VValueTableDataType& dataType) {
    _DescendToInvalidRangeCollection(dataType.InvalidRangeCollection());
}

void VDataTypeTraverser::DescendFormulaDataType(VFormulaDataType& dataType) {
    _DescendToInvalidRangeCollection(dataType.InvalidRangeCollection());
}

void VDataTypeTraverser::DescendProcedureDataType(VProcedureDataType& dataType) {
    _DescendToInvalidRangeCollection(dataType.InvalidRangeCollection());
}

void VDataTypeTraverser::DescendPacketDataType(VPacketDataType& dataType) {
    _DescendToInvalidRangeCollection(dataType.InvalidRangeCollection());
}

void VDataTypeTraverser::DescendMuxDataType(VMuxDataType& dataType) {
    _DescendToInvalidRangeCollection(dataType.InvalidRangeCollection());
}

void VDataTypeTraverser::DescendInvalidRangeCollection(VInvalidRangeCollection&) {}

void VDataTypeTraverser::PreProcessIdentityDataType(VIdentityDataType&) {}

void VDataTypeTraverser::PreProcessTextTableDataType(VTextTableDataType&) {}

void VDataTypeTraverser::PreProcessLinearDataType(VLinearDataType&) {}

void VDataTypeTraverser::PreProcessPiecewiseLinearDataType(VPiecewiseLinearDataType&) {}

void VDataTypeTraverser::PreProcessValueTableDataType(VValueTableDataType&) {}

void VDataTypeTraverser::PreProcessFormulaDataType(VFormulaDataType&) {}

void VDataTypeTraverser::PreProcessProcedureDataType(VProcedureDataType&) {}

void VDataTypeTraverser::PreProcessPacketDataType(VPacketDataType&) {}

void VDataTypeTraverser::PreProcessMuxDataType(VMuxDataType&) {}

void VDataTypeTraverser::PreProcessInvalidRangeCollection(VInvalidRangeCollection&) {}

void VDataTypeTraverser::PostProcessIdentityDataType(VIdentityDataType&) {}

void VDataTypeTraverser::PostProcessTextTableDataType(VTextTableDataType&) {}

void VDataTypeTraverser::PostProcessLinearDataType(VLinearDataType&) {}

void VDataTypeTraverser::PostProcessPiecewiseLinearDataType(VPiecewiseLinearDataType&) {}

void VDataTypeTraverser::PostProcessValueTableDataType(VValueTableDataType&) {}

void VDataTypeTraverser::PostProcessFormulaDataType(VFormulaDataType&) {}

void VDataTypeTraverser::PostProcessProcedureDataType(VProcedureDataType&) {}

void VDataTypeTraverser::PostProcessPacketDataType(VPacketDataType&) {}

void VDataTypeTraverser::PostProcessMuxDataType(VMuxDataType&) {}

void VDataTypeTraverser::PostProcessInvalidRangeCollection(VInvalidRangeCollection&) {}

void VDataTypeTraverser::_DescendToInvalidRangeCollection(VInvalidRangeCollection&) {}

} // namespace ImportDame
