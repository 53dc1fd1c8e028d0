#include <ImportDame/FormulaDataType.h>

#include <ImportDame/DataTypeVisitor.h>

namespace ImportDame {

VFormulaDataType::VFormulaDataType(VDataTypeCollection& dataTypeCollection) : VDataType(dataTypeCollection) {}

VFormulaDataType::~VFormulaDataType() = default;

void VFormulaDataType::Accept(VDataTypeVisitor& visitor) {
    visitor.VisitFormulaDataType(*this);
}

VCodedAtomProperties& VFormulaDataType::CodedAtomProperties() {
    return m_codedAtomProperties;
}

VPhysicalAtomProperties& VFormulaDataType::PhysicalAtomProperties() {
    return m_physicalAtomProperties;
}

const wchar_t* VFormulaDataType::GetCodedToPhysFormula() {
    return m_codedToPhysFormula.Get();
}

void VFormulaDataType::SetCodedToPhysFormula(const wchar_t* formula) {
    m_codedToPhysFormula.Set(formula);
}

const wchar_t* VFormulaDataType::GetPhysToCodedFormula() {
    return m_physToCodedFormula.Get();
}

void VFormulaDataType::SetPhysToCodedFormula(const wchar_t* formula) {
    m_physToCodedFormula.Set(formula);
    m_hasPhysToCodedFormula = true;
}

bool VFormulaDataType::HasPhysToCodedFormula() {
    return m_hasPhysToCodedFormula;
}

} // namespace ImportDame
