#pragma once

#include <ImportDame/CodedAtomProperties.h>
#include <ImportDame/DataType.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/PhysicalAtomProperties.h>
#include <ImportDame/detail/Text.h>

namespace ImportDame {

/// A data type whose physical value follows from the coded one by a formula. The formulas are stored unread; texts
/// passed in are copied and must not be null, texts handed out are valid until that formula changes or the type dies.
class IMPORTDAME_API VFormulaDataType : public VDataType {
public:
    explicit VFormulaDataType(VDataTypeCollection& dataTypeCollection);
    ~VFormulaDataType() override;

    void Accept(VDataTypeVisitor& visitor) override;

    VCodedAtomProperties& CodedAtomProperties() { return m_codedAtomProperties; }

    VPhysicalAtomProperties& PhysicalAtomProperties() { return m_physicalAtomProperties; }

    /// The formula for the physical value, as the importer wrote it.
    const wchar_t* GetCodedToPhysFormula() { return m_codedToPhysFormula.Get(); }

    void SetCodedToPhysFormula(const wchar_t* formula);

    const wchar_t* GetPhysToCodedFormula() { return m_physToCodedFormula.Get(); }

    /// From now on the type has this formula, also when it is empty.
    void SetPhysToCodedFormula(const wchar_t* formula);

    bool HasPhysToCodedFormula() { return m_hasPhysToCodedFormula; }

private:
    VCodedAtomProperties m_codedAtomProperties;
    VPhysicalAtomProperties m_physicalAtomProperties;
    detail::Text m_codedToPhysFormula;
    detail::Text m_physToCodedFormula;
    bool m_hasPhysToCodedFormula = false;
};

} // namespace ImportDame
