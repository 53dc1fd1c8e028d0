#include <ImportDame/FormulaDataType.h>

#include <ImportDame/DataTypeVisitor.h>

namespace ImportDame {

VFormulaDataType::VFormulaDataType(VDataTypeCollection& dataTypeCollection) : VDataType(dataTypeCollection) {}

VFormulaDataType::~VFormulaDataType() = default;

void VFormulaDataType::Accept(VDataTypeVisitor& visitor) {
    visitor.VisitFormulaDataType(*this);
}

void VFormulaDataType::SetCodedToPhysFormula(const wchar_t* formula) {
    m_codedToPhysFormula.Set(formula);
}

void VFormulaDataType::SetPhysToCodedFormula(const wchar_t* formula) {
    m_physToCodedFormula.Set(formula);
    m_hasPhysToCodedFormula = true;
}

} // namespace ImportDame
