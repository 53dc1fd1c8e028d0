#include "document/Kinds.h"

namespace Fuzz {

using namespace ImportDame;

namespace {

struct InvalidRangeKind : SortedKind<VInvalidRangeCollection, VInvalidRange, 102000> {
    static std::unique_ptr<Collection> MakeOther(VImportDoc&, Collection& collection) {
        return std::make_unique<Collection>(collection.GetDataType());
    }

    static Element& Add(VImportDoc&, Collection& collection, Bytes&) { return collection.AddNewInvalidRange(); }

    static std::wstring NameOf(Element& element) { return element.GetAssignedText(); }

    static std::wstring Rename(Element& element, const std::wstring& name) {
        element.SetAssignedText(name.c_str());
        return name;
    }
};

struct LinearConversionKind : SortedKind<VLinearConversionCollection, VLinearConversion, 102001> {
    static Element& Add(VImportDoc&, Collection& collection, Bytes&) { return collection.AddNewLinearConversion(); }

    static std::wstring NameOf(Element& element) { return std::to_wstring(element.GetFactorDenominator()); }

    static std::wstring Rename(Element& element, const std::wstring& name) {
        element.SetFactorDenominator(static_cast<unsigned int>(name.size()));
        return std::to_wstring(name.size());
    }
};

struct AdditionalFileKind : SortedKind<VAdditionalFileCollection, VAdditionalFile, 101048> {
    static Element& Add(VImportDoc&, Collection& collection, Bytes&) { return collection.AddNewAdditionalFile(); }

    static std::wstring NameOf(Element& element) { return element.GetPath(); }

    static std::wstring Rename(Element& element, const std::wstring& name) {
        element.SetPath(name.c_str());
        return name;
    }
};

struct FunctionKind : SortedKind<VFunctionCollection, VFunction, 101072> {
    static Element& Add(VImportDoc&, Collection& collection, Bytes&) { return collection.AddNewFunction(); }

    static std::wstring NameOf(Element& element) { return element.GetEntryPoint(); }

    static std::wstring Rename(Element& element, const std::wstring& name) {
        element.SetEntryPoint(name.c_str());
        return name;
    }

    static Shadows ChildrenOf(VImportDoc& document, Element& element) {
        Shadows children;
        children.push_back(MakeShadow<AdditionalFileKind>(document, element.AdditionalFileCollection()));
        return children;
    }
};

struct TextTableRowKind : PlainKind<VTextTableRowCollection, VTextTableRow, 0> {
    static Element& Add(VImportDoc&, Collection& collection, Bytes&) { return collection.AddNewTextTableRow(); }

    static std::wstring NameOf(Element& element) { return element.GetMappedValue(); }

    static std::wstring Rename(Element& element, const std::wstring& name) {
        element.SetMappedValue(name.c_str());
        return name;
    }
};

struct ValueTableRowKind : PlainKind<VValueTableRowCollection, VValueTableRow, 0> {
    static Element& Add(VImportDoc&, Collection& collection, Bytes&) { return collection.AddNewValueTableRow(); }

    static std::wstring NameOf(Element& element) { return std::to_wstring(element.GetCodedValue()); }

    static std::wstring Rename(Element& element, const std::wstring& name) {
        element.SetCodedValue(static_cast<double>(name.size()));
        return std::to_wstring(static_cast<double>(name.size()));
    }
};

struct CaseKind : QualifiedKind<VCaseCollection, VCase, 0> {
    static Element& Add(VImportDoc&, Collection& collection, Bytes&) { return collection.AddNewCase(); }

    static Shadows ChildrenOf(VImportDoc& document, Element& element) {
        Shadows children = AttributesOf(document, element);
        children.push_back(MakeShadow<InterchangeableKind>(document, element.InterchangeableCollection()));
        return children;
    }
};

/// Adds the shadows of what each kind of data type holds.
class ContentCollector : public VDataTypeDefaultVisitor {
public:
    ContentCollector(VImportDoc& document, Shadows& children) : m_document(document), m_children(children) {}

    void VisitPiecewiseLinearDataType(VPiecewiseLinearDataType& dataType) override {
        Add<LinearConversionKind>(dataType.LinearConversionCollection());
    }

    void VisitTextTableDataType(VTextTableDataType& dataType) override {
        Add<TextTableRowKind>(dataType.TextTableRowCollection());
    }

    void VisitValueTableDataType(VValueTableDataType& dataType) override {
        Add<ValueTableRowKind>(dataType.ValueTableRowCollection());
    }

    void VisitProcedureDataType(VProcedureDataType& dataType) override {
        Add<FunctionKind>(dataType.CodedToPhysFunctionCollection());
        Add<FunctionKind>(dataType.PhysToCodedFunctionCollection());
    }

    void VisitMuxDataType(VMuxDataType& dataType) override {
        Add<InterchangeableKind>(dataType.GetDefaultCase());
        Add<CaseKind>(dataType.GetCaseCollection());
    }

    void VisitDataType(VDataType&) override {}

private:
    template <class Kind>
    void Add(typename Kind::Collection& collection) {
        m_children.push_back(MakeShadow<Kind>(m_document, collection));
    }

    VImportDoc& m_document;
    Shadows& m_children;
};

template <class DataType>
DataType& Append(VDataTypeCollection& collection, DataType& dataType) {
    collection.AppendDataType(dataType);
    return dataType;
}

} // namespace

VDataType& DataTypeKind::Add(VImportDoc& document, Collection& collection, Bytes& bytes) {
    switch (bytes.Below(13)) {
    case 0:
        return collection.AddNewFormulaDataType();
    case 1:
        return collection.AddNewIdentityDataType();
    case 2:
        return collection.AddNewLinearDataType();
    case 3:
        return collection.AddNewMuxDataType();
    case 4:
        return collection.AddNewPacketDataType();
    case 5:
        return collection.AddNewPiecewiseLinearDataType();
    case 6:
        return collection.AddNewProcedureDataType();
    case 7:
        return collection.AddNewTextTableDataType();
    case 8:
        return collection.AddNewValueTableDataType();
    case 9:
        return Append(collection, document.MakeStaticIterDataType());
    case 10:
        return Append(collection, document.MakeNumeratorIterDataType());
    case 11:
        return Append(collection, document.MakeEndMarkerIterDataType());
    default:
        return Append(collection, document.MakeEndOfServiceIterDataType());
    }
}

Shadows DataTypeKind::ChildrenOf(VImportDoc& document, VDataType& element) {
    Shadows children = AttributesOf(document, element);
    children.push_back(MakeShadow<InvalidRangeKind>(document, element.InvalidRangeCollection()));
    if (auto* const packet = dynamic_cast<VBasePacketDataType*>(&element))
        children.push_back(MakeShadow<InterchangeableKind>(document, packet->InterchangeableCollection()));
    ContentCollector collector(document, children);
    element.Accept(collector);
    return children;
}

} // namespace Fuzz
