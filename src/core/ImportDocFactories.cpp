#include <ImportDame/ImportDoc.h>

#include <ImportDame/Attribute.h>
#include <ImportDame/AttributeCollection.h>
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
#include <ImportDame/TroubleCode.h>
#include <ImportDame/TroubleCodeCollection.h>
#include <ImportDame/ValueTableDataType.h>

#include <memory>

namespace ImportDame {

namespace {

/// The object belongs to nobody until a collection takes it over.
template <class T, class Origin>
T& Make(Origin& origin) {
    return *std::make_unique<T>(origin).release();
}

} // namespace

VAttribute& VImportDoc::MakeAttribute() {
    return Make<VAttribute>(*this);
}

VAttributeCollection& VImportDoc::MakeAttributeCollection() {
    return Make<VAttributeCollection>(*this);
}

VTroubleCode& VImportDoc::MakeTroubleCode() {
    return Make<VTroubleCode>(*this);
}

VTroubleCodeCollection& VImportDoc::MakeTroubleCodeCollection() {
    return Make<VTroubleCodeCollection>(*this);
}

VFormulaDataType& VImportDoc::MakeFormulaDataType() {
    return Make<VFormulaDataType>(DataTypeCollection());
}

VIdentityDataType& VImportDoc::MakeIdentityDataType() {
    return Make<VIdentityDataType>(DataTypeCollection());
}

VLinearDataType& VImportDoc::MakeLinearDataType() {
    return Make<VLinearDataType>(DataTypeCollection());
}

VPiecewiseLinearDataType& VImportDoc::MakePiecewiseLinearDataType() {
    return Make<VPiecewiseLinearDataType>(DataTypeCollection());
}

VProcedureDataType& VImportDoc::MakeProcedureDataType() {
    return Make<VProcedureDataType>(DataTypeCollection());
}

VTextTableDataType& VImportDoc::MakeTextTableDataType() {
    return Make<VTextTableDataType>(DataTypeCollection());
}

VValueTableDataType& VImportDoc::MakeValueTableDataType() {
    return Make<VValueTableDataType>(DataTypeCollection());
}

VMuxDataType& VImportDoc::MakeMuxDataType() {
    return Make<VMuxDataType>(DataTypeCollection());
}

VPacketDataType& VImportDoc::MakePacketDataType() {
    return Make<VPacketDataType>(DataTypeCollection());
}

VEndMarkerIterDataType& VImportDoc::MakeEndMarkerIterDataType() {
    return Make<VEndMarkerIterDataType>(DataTypeCollection());
}

VEndOfServiceIterDataType& VImportDoc::MakeEndOfServiceIterDataType() {
    return Make<VEndOfServiceIterDataType>(DataTypeCollection());
}

VNumeratorIterDataType& VImportDoc::MakeNumeratorIterDataType() {
    return Make<VNumeratorIterDataType>(DataTypeCollection());
}

VStaticIterDataType& VImportDoc::MakeStaticIterDataType() {
    return Make<VStaticIterDataType>(DataTypeCollection());
}

} // namespace ImportDame
