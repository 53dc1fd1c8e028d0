#include <ImportDame/DataTypePropertiesVisitor.h>

#include <ImportDame/FormulaDataType.h>
#include <ImportDame/IdentityDataType.h>
#include <ImportDame/LinearDataType.h>
#include <ImportDame/PiecewiseLinearDataType.h>
#include <ImportDame/ProcedureDataType.h>
#include <ImportDame/TextTableDataType.h>
#include <ImportDame/ValueTableDataType.h>

namespace ImportDame {

namespace {

template <class Properties>
bool IsAtom(const Properties& properties) {
    return properties.GetQuantity() == VProperties::atomic;
}

} // namespace

VDataTypePropertiesVisitor::~VDataTypePropertiesVisitor() = default;

void VDataTypePropertiesVisitor::EvaluateProperties(VDataType& dataType) {
    DispatchDataType(dataType);
}

bool VDataTypePropertiesVisitor::IsCodedAtom() {
    return m_isCodedAtom;
}

bool VDataTypePropertiesVisitor::IsCodedText() {
    return m_isCodedText;
}

void VDataTypePropertiesVisitor::Answer(bool isCodedAtom, bool isPhysicalAtom, bool isCodedText, bool isPhysicalText) {
    m_isCodedAtom = isCodedAtom;
    m_isPhysicalAtom = isPhysicalAtom;
    m_isCodedText = isCodedText;
    m_isPhysicalText = isPhysicalText;
}

void VDataTypePropertiesVisitor::VisitIdentityDataType(VIdentityDataType& dataType) {
    const VCodedProperties& coded = dataType.CodedProperties();
    Answer(IsAtom(coded), IsAtom(coded), coded.IsText(), coded.IsText());
}

void VDataTypePropertiesVisitor::VisitTextTableDataType(VTextTableDataType& dataType) {
    const VCodedProperties& coded = dataType.CodedProperties();
    Answer(IsAtom(coded), IsAtom(coded), coded.IsText(), coded.IsText());
}

void VDataTypePropertiesVisitor::VisitLinearDataType(VLinearDataType& dataType) {
    const bool isText = dataType.CodedAtomProperties().IsText();
    Answer(true, true, isText, isText);
}

void VDataTypePropertiesVisitor::VisitPiecewiseLinearDataType(VPiecewiseLinearDataType& dataType) {
    const bool isText = dataType.CodedAtomProperties().IsText();
    Answer(true, true, isText, isText);
}

void VDataTypePropertiesVisitor::VisitValueTableDataType(VValueTableDataType& dataType) {
    const bool isText = dataType.CodedAtomProperties().IsText();
    Answer(true, true, isText, isText);
}

void VDataTypePropertiesVisitor::VisitFormulaDataType(VFormulaDataType& dataType) {
    Answer(true, true, dataType.CodedAtomProperties().IsText(), dataType.PhysicalAtomProperties().IsText());
}

void VDataTypePropertiesVisitor::VisitProcedureDataType(VProcedureDataType& dataType) {
    const VCodedProperties& coded = dataType.CodedProperties();
    const VPhysicalProperties& physical = dataType.PhysicalProperties();
    Answer(IsAtom(coded), IsAtom(physical), coded.IsText(), physical.IsText());
}

void VDataTypePropertiesVisitor::VisitPacketDataType(VPacketDataType&) {}

void VDataTypePropertiesVisitor::VisitMuxDataType(VMuxDataType&) {}

void VDataTypePropertiesVisitor::VisitStaticIterDataType(VStaticIterDataType&) {}

void VDataTypePropertiesVisitor::VisitNumeratorIterDataType(VNumeratorIterDataType&) {}

void VDataTypePropertiesVisitor::VisitEndOfServiceIterDataType(VEndOfServiceIterDataType&) {}

void VDataTypePropertiesVisitor::VisitEndMarkerIterDataType(VEndMarkerIterDataType&) {}

} // namespace ImportDame
