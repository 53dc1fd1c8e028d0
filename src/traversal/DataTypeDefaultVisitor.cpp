#include <ImportDame/DataTypeDefaultVisitor.h>

#include <ImportDame/EndMarkerIterDataType.h>
#include <ImportDame/EndOfServiceIterDataType.h>
#include <ImportDame/FormulaDataType.h>
#include <ImportDame/IdentityDataType.h>
#include <ImportDame/LinearDataType.h>
#include <ImportDame/MuxDataType.h>
#include <ImportDame/NumeratorIterDataType.h>
#include <ImportDame/PacketDataType.h>
#include <ImportDame/PiecewiseLinearDataType.h>
#include <ImportDame/ProcedureDataType.h>
#include <ImportDame/StaticIterDataType.h>
#include <ImportDame/TextTableDataType.h>
#include <ImportDame/ValueTableDataType.h>

namespace ImportDame {

VDataTypeDefaultVisitor::~VDataTypeDefaultVisitor() = default;

void VDataTypeDefaultVisitor::VisitIdentityDataType(VIdentityDataType& dataType) {
    VisitDataType(dataType);
}

void VDataTypeDefaultVisitor::VisitTextTableDataType(VTextTableDataType& dataType) {
    VisitDataType(dataType);
}

void VDataTypeDefaultVisitor::VisitLinearDataType(VLinearDataType& dataType) {
    VisitDataType(dataType);
}

void VDataTypeDefaultVisitor::VisitPiecewiseLinearDataType(VPiecewiseLinearDataType& dataType) {
    VisitDataType(dataType);
}

void VDataTypeDefaultVisitor::VisitValueTableDataType(VValueTableDataType& dataType) {
    VisitDataType(dataType);
}

void VDataTypeDefaultVisitor::VisitFormulaDataType(VFormulaDataType& dataType) {
    VisitDataType(dataType);
}

void VDataTypeDefaultVisitor::VisitProcedureDataType(VProcedureDataType& dataType) {
    VisitDataType(dataType);
}

void VDataTypeDefaultVisitor::VisitPacketDataType(VPacketDataType& dataType) {
    VisitDataType(dataType);
}

void VDataTypeDefaultVisitor::VisitMuxDataType(VMuxDataType& dataType) {
    VisitDataType(dataType);
}

void VDataTypeDefaultVisitor::VisitStaticIterDataType(VStaticIterDataType& dataType) {
    VisitDataType(dataType);
}

void VDataTypeDefaultVisitor::VisitNumeratorIterDataType(VNumeratorIterDataType& dataType) {
    VisitDataType(dataType);
}

void VDataTypeDefaultVisitor::VisitEndOfServiceIterDataType(VEndOfServiceIterDataType& dataType) {
    VisitDataType(dataType);
}

void VDataTypeDefaultVisitor::VisitEndMarkerIterDataType(VEndMarkerIterDataType& dataType) {
    VisitDataType(dataType);
}

} // namespace ImportDame
