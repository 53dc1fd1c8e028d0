// What of the interface only a derived class, an object of its own or a look at an address reaches; everything else is
// called by the tests of its own.
#include <ImportDame/ImportDame.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace ImportDame;

namespace {

/// Shows itself to whoever asks, as a kind of its own that no visitor knows.
class HostInterchangeable : public VInterchangeable {
public:
    explicit HostInterchangeable(VImportDoc& document) : VInterchangeable(document) {}

    void Accept(VInterchangeableVisitor&) override { ++visits; }

    int visits = 0;
};

class HostDataObject : public VBaseDataObject {
public:
    explicit HostDataObject(VImportDoc& document) : VBaseDataObject(document) {}

    void Accept(VInterchangeableVisitor&) override {}
};

class HostPacketDataType : public VBasePacketDataType {
public:
    explicit HostPacketDataType(VDataTypeCollection& dataTypes) : VBasePacketDataType(dataTypes) {}

    void Accept(VDataTypeVisitor&) override {}
};

class HostVariant : public VVariant {
public:
    using VVariant::VVariant;

    HostVariant(const HostVariant&) = default;

    void Accept(VVariantVisitor&) override {}
};

class HostQualified : public VQualified {
public:
    using VQualified::VQualified;

    HostQualified(const HostQualified& other, VImportDoc& document) : VQualified(other, document) {}
};

class HostProperties : public VProperties {};

class HostPropertiesVisitor : public VDataTypePropertiesVisitor {
public:
    using VDataTypePropertiesVisitor::VisitEndMarkerIterDataType;
    using VDataTypePropertiesVisitor::VisitEndOfServiceIterDataType;
    using VDataTypePropertiesVisitor::VisitFormulaDataType;
    using VDataTypePropertiesVisitor::VisitIdentityDataType;
    using VDataTypePropertiesVisitor::VisitLinearDataType;
    using VDataTypePropertiesVisitor::VisitMuxDataType;
    using VDataTypePropertiesVisitor::VisitNumeratorIterDataType;
    using VDataTypePropertiesVisitor::VisitPacketDataType;
    using VDataTypePropertiesVisitor::VisitPiecewiseLinearDataType;
    using VDataTypePropertiesVisitor::VisitProcedureDataType;
    using VDataTypePropertiesVisitor::VisitStaticIterDataType;
    using VDataTypePropertiesVisitor::VisitTextTableDataType;
    using VDataTypePropertiesVisitor::VisitValueTableDataType;
};

class HostTraverser : public VDataTypeTraverser {
public:
    void VisitStaticIterDataType(VStaticIterDataType&) override {}

    void VisitNumeratorIterDataType(VNumeratorIterDataType&) override {}

    void VisitEndOfServiceIterDataType(VEndOfServiceIterDataType&) override {}

    void VisitEndMarkerIterDataType(VEndMarkerIterDataType&) override {}

    void PreProcessInvalidRangeCollection(VInvalidRangeCollection&) override { ++invalidRangeCollections; }

    using VDataTypeTraverser::_DescendToInvalidRangeCollection;

    int invalidRangeCollections = 0;
};

/// Counts what it is shown.
class CountingVisitor : public VVariantVisitor, public VDiagCommVisitor {
public:
    void VisitBaseVariant(VBaseVariant&) override { ++baseVariants; }

    void VisitEcuVariant(VEcuVariant&) override { ++ecuVariants; }

    void VisitDiagService(VDiagService&) override { ++services; }

    void VisitDiagJob(VDiagJob&) override { ++jobs; }

    int baseVariants = 0;
    int ecuVariants = 0;
    int services = 0;
    int jobs = 0;
};

TEST(InterfaceTest, AHostCanDeriveInterchangeablesDataTypesAndVariantsOfItsOwn) {
    VImportDoc document;
    HostInterchangeable interchangeable(document);
    EXPECT_TRUE(interchangeable.IsImported());
    HostDataObject object(document);
    EXPECT_EQ(object.GetSemantics(), static_cast<VBaseDataObject::VSemantics>(0));
    HostPacketDataType packet(document.DataTypeCollection());
    EXPECT_FALSE(packet.NeedsSelector());
    HostVariant variant(document);
    variant.SetVariantIsLockedInTarget(true);
    const HostVariant copy(variant);
    EXPECT_TRUE(copy.GetVariantIsLockedInTarget());
    [[maybe_unused]] const HostProperties properties;
}

TEST(InterfaceTest, AnInterchangeableOfAHostIsVisitedByItsOwnAccept) {
    class Traverser : public VInterchangeableTraverser {};

    VImportDoc document;
    HostInterchangeable interchangeable(document);
    Traverser traverser;
    traverser.TraverseInterchangeable(interchangeable);
    traverser.DispatchInterchangeable(interchangeable);
    EXPECT_EQ(interchangeable.visits, 2);
}

TEST(InterfaceTest, AHostCanCopyItsQualifiedObjectsAndAttributesToAnotherDocument) {
    VImportDoc document;
    VImportDoc other;
    HostQualified source(document);
    source.SetQualifier(L"Q");
    source.Attributes().AddNewAttribute().SetValue(L"V");
    HostQualified copy(source, other);
    EXPECT_STREQ(copy.GetQualifier(), L"Q");
    EXPECT_EQ(&copy.Attributes().Begin()->ImportDoc(), &other);
    const VAttribute attribute(*source.Attributes().Begin(), other);
    EXPECT_STREQ(attribute.GetValue(), L"V");
    EXPECT_EQ(&attribute.ImportDoc(), &other);
}

TEST(InterfaceTest, AHostCanCallEveryOperationOfThePropertiesVisitor) {
    VImportDoc document;
    VDataTypeCollection& dataTypes = document.DataTypeCollection();
    HostPropertiesVisitor visitor;
    VStaticIterDataType staticIter(dataTypes);
    visitor.VisitStaticIterDataType(staticIter);
    VNumeratorIterDataType numeratorIter(dataTypes);
    visitor.VisitNumeratorIterDataType(numeratorIter);
    VEndOfServiceIterDataType endOfServiceIter(dataTypes);
    visitor.VisitEndOfServiceIterDataType(endOfServiceIter);
    VEndMarkerIterDataType endMarkerIter(dataTypes);
    visitor.VisitEndMarkerIterDataType(endMarkerIter);
    visitor.VisitPacketDataType(dataTypes.AddNewPacketDataType());
    visitor.VisitMuxDataType(dataTypes.AddNewMuxDataType());
    EXPECT_FALSE(visitor.IsCodedAtom());
    visitor.VisitIdentityDataType(dataTypes.AddNewIdentityDataType());
    EXPECT_TRUE(visitor.IsCodedAtom());
    visitor.VisitTextTableDataType(dataTypes.AddNewTextTableDataType());
    visitor.VisitLinearDataType(dataTypes.AddNewLinearDataType());
    visitor.VisitPiecewiseLinearDataType(dataTypes.AddNewPiecewiseLinearDataType());
    visitor.VisitValueTableDataType(dataTypes.AddNewValueTableDataType());
    visitor.VisitFormulaDataType(dataTypes.AddNewFormulaDataType());
    VProcedureDataType& procedure = dataTypes.AddNewProcedureDataType();
    procedure.CodedProperties().SetEncoding(VProperties::asciiText);
    visitor.VisitProcedureDataType(procedure);
    EXPECT_TRUE(visitor.IsCodedText());
    EXPECT_FALSE(visitor.IsPhysicalText());
}

TEST(InterfaceTest, TheWayToTheInvalidRangesOfADataTypeLeadsNowhere) {
    VImportDoc document;
    VLinearDataType dataType(document.DataTypeCollection());
    dataType.InvalidRangeCollection().AddNewInvalidRange();
    HostTraverser traverser;
    traverser._DescendToInvalidRangeCollection(dataType.InvalidRangeCollection());
    traverser.TraverseDataType(dataType);
    EXPECT_EQ(traverser.invalidRangeCollections, 0);
}

TEST(InterfaceTest, ObjectsOutsideOfCollectionsAreAsGoodAsThoseInside) {
    VImportDoc document;
    CountingVisitor visitor;
    VBaseVariant baseVariant(document);
    baseVariant.Accept(visitor);
    VEcuVariant ecuVariant(document);
    ecuVariant.Accept(visitor);
    VDiagService service(document);
    service.Accept(visitor);
    service.InitCache();
    VDiagJob job(document);
    job.Accept(visitor);
    EXPECT_EQ(visitor.baseVariants + visitor.ecuVariants, 2);
    EXPECT_EQ(visitor.services + visitor.jobs, 2);
    VCase muxCase(document);
    EXPECT_TRUE(muxCase.InterchangeableCollection().IsEmpty());
    VLinearDataType selector(document.DataTypeCollection());
    VMuxDataType mux(document.DataTypeCollection());
    mux.SetSelectorDataType(selector);
    EXPECT_EQ(&mux.GetSelectorDataType(), &selector);
    VNumeratorIterDataType numerator(document.DataTypeCollection());
    numerator.SetSelectorDataType(selector);
    EXPECT_EQ(&numerator.GetSelectorDataType(), &selector);
}

/// Builds an object in a place of the host's.
template <class Class, class... Arguments>
void BuildInPlace(Arguments&... arguments) {
    alignas(Class) unsigned char place[sizeof(Class)];
    Class* const object = new (place) Class(arguments...);
    EXPECT_EQ(static_cast<void*>(object), static_cast<void*>(place));
    object->~Class();
}

TEST(InterfaceTest, AHostCanBuildObjectsInAPlaceOfItsOwn) {
    VImportDoc document;
    BuildInPlace<VText>();
    BuildInPlace<VAttribute>(document);
    BuildInPlace<VTroubleCode>(document);
    BuildInPlace<VTroubleCodeCollection>(document);
    BuildInPlace<VRecordItem>();
    BuildInPlace<VValue>();
    BuildInPlace<VInvalidRange>();
    BuildInPlace<VLinearConversion>();
    BuildInPlace<VValueTableRow>();
    BuildInPlace<VAdditionalFile>();
    BuildInPlace<VFunction>();
    BuildInPlace<VServiceMapping>();
    alignas(VImportDoc) unsigned char place[sizeof(VImportDoc)];
    auto* const placed = new (place) VImportDoc;
    EXPECT_TRUE(placed->IsConstructed());
    placed->~VImportDoc();
    EXPECT_FALSE(VImportDoc::IsLiving(placed));
}

/// What a host's own class throws.
struct HostFailure {};

/// A class of the host that cannot be built, although its base can.
template <class Class>
struct Unbuildable : Class {
    template <class... Arguments>
    explicit Unbuildable(Arguments&... arguments) : Class(arguments...) {
        throw HostFailure();
    }
};

/// The heap would notice if the place were given back to it.
template <class Class, class... Arguments>
void FailToBuildInPlace(Arguments&... arguments) {
    alignas(Unbuildable<Class>) unsigned char place[sizeof(Unbuildable<Class>)];
    EXPECT_THROW(new (place) Unbuildable<Class>(arguments...), HostFailure);
}

TEST(InterfaceTest, APlaceOfTheHostStaysItsOwnWhenAnObjectCannotBeBuiltInIt) {
    VImportDoc document;
    FailToBuildInPlace<VText>();
    FailToBuildInPlace<VAttribute>(document);
    FailToBuildInPlace<VRecordItem>();
    FailToBuildInPlace<VValue>();
    FailToBuildInPlace<VInvalidRange>();
    FailToBuildInPlace<VLinearConversion>();
    FailToBuildInPlace<VValueTableRow>();
    FailToBuildInPlace<VAdditionalFile>();
    FailToBuildInPlace<VFunction>();
    FailToBuildInPlace<VServiceMapping>();
    FailToBuildInPlace<VImportDoc>();
    EXPECT_TRUE(document.IsConstructed());
}

TEST(InterfaceTest, ConstantsHaveAddresses) {
    const int* const bitPosition = &VServiceMapping::siDefaultBitPosition;
    const unsigned int* const bitMask = &VCodedAtomProperties::c_neutralBitMask;
    EXPECT_EQ(*bitPosition, 0);
    EXPECT_EQ(*bitMask, 0xFFFFFFFFU);
    const std::wstring* const separator = &VValue::c_separator;
    EXPECT_EQ(*separator, L" ");
}

TEST(InterfaceTest, AHostCanThrowTheExceptionOfTheLibraryItself) {
    try {
        throw VLgAssertException("condition", 1);
    } catch (const VLgAssertException& exception) {
        EXPECT_STREQ(exception.GetExpression(), "condition");
        EXPECT_EQ(exception.GetErrorCode(), 1);
    }
}

} // namespace
