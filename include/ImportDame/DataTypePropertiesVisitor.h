#pragma once

#include <ImportDame/DataTypeVisitor.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>

namespace ImportDame {

/// Tells of any data type whether its coded and its physical value are a single atom and whether they are text.
class IMPORTDAME_API VDataTypePropertiesVisitor : public VDataTypeVisitor {
public:
    VDataTypePropertiesVisitor() = default;
    VDataTypePropertiesVisitor(const VDataTypePropertiesVisitor&) = default;
    VDataTypePropertiesVisitor& operator=(const VDataTypePropertiesVisitor&) = default;
    ~VDataTypePropertiesVisitor() override;

    /// Looks at a data type. A packet, a multiplexer or a repetition leaves the answers as they were.
    void EvaluateProperties(VDataType& dataType);

    /// @name The answers of the last evaluation; all false before the first
    /// @{
    bool IsCodedAtom(); ///< Whether the coded value is a single one.

    bool IsPhysicalAtom() { return m_isPhysicalAtom; } ///< Whether the physical value is a single one.

    bool IsCodedText(); ///< Whether the coded value is text.

    bool IsPhysicalText() { return m_isPhysicalText; } ///< Whether the physical value is text.

    /// @}

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
    void VisitStaticIterDataType(VStaticIterDataType& dataType) override;
    void VisitNumeratorIterDataType(VNumeratorIterDataType& dataType) override;
    void VisitEndOfServiceIterDataType(VEndOfServiceIterDataType& dataType) override;
    void VisitEndMarkerIterDataType(VEndMarkerIterDataType& dataType) override;

private:
    void Answer(bool isCodedAtom, bool isPhysicalAtom, bool isCodedText, bool isPhysicalText);

    bool m_isCodedAtom = false;
    bool m_isPhysicalAtom = false;
    bool m_isCodedText = false;
    bool m_isPhysicalText = false;
};

} // namespace ImportDame
