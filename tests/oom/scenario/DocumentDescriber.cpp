#include "oom/scenario/Description.h"
#include "oom/scenario/World.h"

using namespace ImportDame;

namespace Scenario {

namespace {

using Number = unsigned long long;

/// Adds what the kinds of objects have beyond what they share.
class Describer : public VDataTypeVisitor,
                  public VInterchangeableVisitor,
                  public VVariantVisitor,
                  public VDiagCommVisitor {
public:
    explicit Describer(Description& description) : m_description(description) {}

    void DescribeDocument(VImportDoc& document) {
        for (const wchar_t* text : {document.GetLanguage(), document.GetEcuName(), document.GetKDIVersion()})
            m_description.Add(text);
        m_description.Add(document.IsConstructed());
        m_description.Add(document.TroubleCodeCollectionCollection().Count());
        for (VTroubleCodeCollection& codes : document.TroubleCodeCollectionCollection())
            m_description.Add(codes);
        m_description.Add(document.DataTypeCollection().Count());
        for (VDataType& dataType : document.DataTypeCollection())
            DescribeDataType(dataType);
        DescribeMembers(document.InterchangeableCollection());
        DispatchVariant(document.GetBaseVariant());
        m_description.Add(document.UnitCollection().Count());
        for (VUnit& unit : document.UnitCollection()) {
            m_description.Add(static_cast<VQualified&>(unit));
            m_description.Add(unit.GetDisplayName());
        }
    }

    void DescribeDataType(VDataType& dataType) {
        m_description.Add(dataType);
        DispatchDataType(dataType);
    }

private:
    void DescribeMembers(VInterchangeableCollection& members) {
        m_description.Add(members.Count());
        for (VInterchangeable& member : members) {
            m_description.Add(static_cast<VQualified&>(member));
            DispatchInterchangeable(member);
        }
    }

    void VisitDataObject(VDataObject& object) override {
        m_description.Add(L"DataObject");
        m_description.Add(object.GetDataType() ? object.GetDataType()->GetQualifier() : L"none");
        m_description.Add(object.HasSelectorDataObject());
        if (object.HasDefaultValue()) {
            VValue value = object.GetDefaultValue();
            m_description.Add(value);
        }
        if (object.HasConstValue()) {
            VValue value = object.GetConstValue();
            m_description.Add(value);
        }
    }

    void VisitBitField(VBitField& bitField) override {
        m_description.Add(L"BitField");
        DescribeMembers(bitField.InterchangeableCollection());
    }

    void VisitGapObject(VGapObject& gap) override {
        m_description.Add(L"Gap");
        m_description.Add(Number{gap.GetBitLength()});
    }

    void VisitIdentityDataType(VIdentityDataType& dataType) override {
        m_description.Add(L"Identity");
        m_description.Add(dataType.PhysicalDisplayProperties().GetUnit());
    }

    void VisitTextTableDataType(VTextTableDataType& dataType) override {
        m_description.Add(L"TextTable");
        m_description.Add(dataType.TextTableRowCollection());
    }

    void VisitLinearDataType(VLinearDataType& dataType) override {
        m_description.Add(L"Linear");
        m_description.Add(dataType.PhysicalAtomProperties().GetUnit());
        m_description.Add(dataType.LinearConversion());
    }

    void VisitPiecewiseLinearDataType(VPiecewiseLinearDataType& dataType) override {
        m_description.Add(L"PiecewiseLinear");
        m_description.Add(dataType.LinearConversionCollection());
    }

    void VisitValueTableDataType(VValueTableDataType& dataType) override {
        m_description.Add(L"ValueTable");
        m_description.Add(dataType.ValueTableRowCollection());
    }

    void VisitFormulaDataType(VFormulaDataType& dataType) override {
        m_description.Add(L"Formula");
        m_description.Add(dataType.GetCodedToPhysFormula());
        m_description.Add(dataType.GetPhysToCodedFormula());
        m_description.Add(dataType.HasPhysToCodedFormula());
    }

    void VisitProcedureDataType(VProcedureDataType& dataType) override {
        m_description.Add(L"Procedure");
        m_description.Add(dataType.PhysicalProperties().GetUnit());
        m_description.Add(dataType.CodedToPhysFunctionCollection());
        m_description.Add(dataType.PhysToCodedFunctionCollection());
    }

    void VisitPacketDataType(VPacketDataType& dataType) override {
        m_description.Add(L"Packet");
        DescribeMembers(dataType.InterchangeableCollection());
    }

    void VisitMuxDataType(VMuxDataType& dataType) override {
        m_description.Add(L"Mux");
        m_description.Add(dataType.HasSelectorDataType());
        m_description.Add(Number{dataType.HasMuxStartBitPosition() ? dataType.GetMuxStartBitPosition() : 99});
        m_description.Add(Number{dataType.HasSelectorStartBitPosition() ? dataType.GetSelectorStartBitPosition() : 99});
        DescribeMembers(dataType.InterchangeableCollection());
        DescribeMembers(dataType.GetDefaultCase());
        m_description.Add(dataType.GetCaseCollection().Count());
        for (VCase& muxCase : dataType.GetCaseCollection()) {
            m_description.Add(static_cast<VQualified&>(muxCase));
            m_description.Add(muxCase.Range());
            DescribeMembers(muxCase.InterchangeableCollection());
        }
    }

    void VisitStaticIterDataType(VStaticIterDataType& dataType) override {
        m_description.Add(L"StaticIter");
        m_description.Add(Number{dataType.GetNumOfItems()});
        DescribeMembers(dataType.InterchangeableCollection());
    }

    void VisitNumeratorIterDataType(VNumeratorIterDataType& dataType) override {
        m_description.Add(L"NumeratorIter");
        m_description.Add(dataType.HasContentStartBitPosition());
        m_description.Add(dataType.HasSelectorStartBitPosition());
        DescribeMembers(dataType.InterchangeableCollection());
    }

    void VisitEndOfServiceIterDataType(VEndOfServiceIterDataType& dataType) override {
        m_description.Add(L"EndOfServiceIter");
        m_description.Add(Number{dataType.HasMaxNumberOfItems() ? dataType.GetMaxNumberOfItems() : 99});
        DescribeMembers(dataType.InterchangeableCollection());
    }

    void VisitEndMarkerIterDataType(VEndMarkerIterDataType& dataType) override {
        m_description.Add(L"EndMarkerIter");
        m_description.Add(dataType.TerminationValue());
        DescribeMembers(dataType.InterchangeableCollection());
    }

    void DescribeVariant(VVariant& variant) {
        m_description.Add(static_cast<VQualified&>(variant));
        m_description.Add(variant.GetTargetVariantQualifier());
        m_description.Add(variant.GetReferenceFromVariantQualifier());
        m_description.Add(variant.DiagCommCollection().Count());
        for (const wchar_t* name : {L"ReadSpeed", L"Calibrate", L"CalibrateAll", L""})
            m_description.Add(variant.DiagCommCollection().GetFromCache(name) != nullptr);
        for (VDiagComm& diagComm : variant.DiagCommCollection()) {
            m_description.Add(static_cast<VQualified&>(diagComm));
            DispatchDiagComm(diagComm);
        }
    }

    void VisitBaseVariant(VBaseVariant& variant) override {
        DescribeVariant(variant);
        m_description.Add(variant.GetEcuVariantCollection().Count());
        for (VEcuVariant& each : variant.GetEcuVariantCollection())
            DispatchVariant(each);
    }

    void VisitEcuVariant(VEcuVariant& variant) override { DescribeVariant(variant); }

    void VisitDiagJob(VDiagJob&) override { m_description.Add(L"Job"); }

    void VisitDiagService(VDiagService& service) override {
        m_description.Add(L"Service");
        m_description.Add(Number{service.GetServiceId()});
        m_description.Add(service.GetSemantic());
        m_description.Add(service.GetFunctClass());
        m_description.Add(service.DiagServiceShapeCollection().GetFromCache(L"Positive") != nullptr);
        m_description.Add(service.DiagServiceShapeCollection().Count());
        for (VDiagServiceShape& shape : service.DiagServiceShapeCollection()) {
            m_description.Add(static_cast<VQualified&>(shape));
            m_description.Add(Number{shape.GetSubValue()});
        }
    }

    Description& m_description;
};

} // namespace

std::wstring Describe(World& world) {
    Description description;
    Describer describer(description);
    for (const auto& document : {world.document.get(), world.target.get()}) {
        description.Add(VImportDoc::IsLiving(document));
        if (document)
            describer.DescribeDocument(*document);
    }
    description.Add(VImportDoc::IsLiving(world.destroyed));
    description.Add(world.mapping.GetContent());
    description.Add(world.otherTemplate);
    description.Add(world.mappingOfService);
    description.Add(world.value);
    if (world.item)
        description.Add(world.item->Text());
    if (world.made)
        describer.DescribeDataType(*world.made);
    if (world.madeCode)
        description.Add(*world.madeCode);
    if (world.madeCodes)
        description.Add(*world.madeCodes);
    description.Add(world.madeAttribute != nullptr);
    if (world.madeAttributes)
        description.Add(*world.madeAttributes);
    return description.Text();
}

} // namespace Scenario
