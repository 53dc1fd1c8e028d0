#include "datatypes/RecordingVisitors.h"

#include <ImportDame/DataTypeCollection.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/IterDataType.h>

#include <gtest/gtest.h>

#include <type_traits>

using namespace ImportDame;
using TestSupport::RecordingDataTypeVisitor;
using TestSupport::RecordingInterchangeableVisitor;
using TestSupport::Visit;

namespace {

template <class DataType>
void ExpectVisitOf(const char* kind) {
    VImportDoc document;
    VDataTypeCollection dataTypes(document);
    DataType dataType(dataTypes);
    RecordingDataTypeVisitor visitor;
    dataType.Accept(visitor);
    EXPECT_EQ(visitor.visits, (std::vector<Visit>{{kind, &dataType}}));
    visitor.DispatchDataType(dataType);
    EXPECT_EQ(visitor.visits, (std::vector<Visit>{{kind, &dataType}, {kind, &dataType}}));
}

TEST(VDataTypeVisitorTest, EveryKindCallsTheOneOperationOfItsKind) {
    ExpectVisitOf<VIdentityDataType>("Identity");
    ExpectVisitOf<VTextTableDataType>("TextTable");
    ExpectVisitOf<VLinearDataType>("Linear");
    ExpectVisitOf<VPiecewiseLinearDataType>("PiecewiseLinear");
    ExpectVisitOf<VValueTableDataType>("ValueTable");
    ExpectVisitOf<VFormulaDataType>("Formula");
    ExpectVisitOf<VProcedureDataType>("Procedure");
    ExpectVisitOf<VPacketDataType>("Packet");
    ExpectVisitOf<VMuxDataType>("Mux");
    ExpectVisitOf<VStaticIterDataType>("StaticIter");
    ExpectVisitOf<VNumeratorIterDataType>("NumeratorIter");
    ExpectVisitOf<VEndOfServiceIterDataType>("EndOfServiceIter");
    ExpectVisitOf<VEndMarkerIterDataType>("EndMarkerIter");
}

TEST(VDataTypeVisitorTest, IsACopyableInterface) {
    static_assert(std::is_abstract_v<VDataTypeVisitor>);
    static_assert(std::has_virtual_destructor_v<VDataTypeVisitor>);
    static_assert(std::is_copy_constructible_v<RecordingDataTypeVisitor>);
    static_assert(std::is_copy_assignable_v<RecordingDataTypeVisitor>);
    static_assert(sizeof(VDataTypeVisitor) == sizeof(void*));
    static_assert(std::is_abstract_v<VInterchangeableVisitor>);
    static_assert(std::has_virtual_destructor_v<VInterchangeableVisitor>);
    static_assert(std::is_copy_constructible_v<RecordingInterchangeableVisitor>);
    static_assert(std::is_copy_assignable_v<RecordingInterchangeableVisitor>);
    static_assert(sizeof(VInterchangeableVisitor) == sizeof(void*));
}

TEST(VDataTypeVisitorTest, AcceptDoesNotDescend) {
    VImportDoc document;
    VDataTypeCollection dataTypes(document);
    VMuxDataType mux(dataTypes);
    mux.InterchangeableCollection().AddNewDataObject().SetDataType(&dataTypes.AddNewIdentityDataType());
    mux.SetSelectorDataType(dataTypes.AddNewIdentityDataType());
    RecordingDataTypeVisitor visitor;
    mux.Accept(visitor);
    EXPECT_EQ(visitor.visits, (std::vector<Visit>{{"Mux", &mux}}));
}

TEST(VInterchangeableVisitorTest, EveryKindCallsTheOneOperationOfItsKind) {
    VImportDoc document;
    VDataObject dataObject(document);
    VBitField bitField(document);
    VGapObject gapObject(document);
    bitField.InterchangeableCollection().AddNewDataObject(); // not descended into
    RecordingInterchangeableVisitor visitor;
    dataObject.Accept(visitor);
    bitField.Accept(visitor);
    gapObject.Accept(visitor);
    visitor.DispatchInterchangeable(gapObject);
    visitor.DispatchInterchangeable(bitField);
    visitor.DispatchInterchangeable(dataObject);
    EXPECT_EQ(visitor.visits, (std::vector<Visit>{{"DataObject", &dataObject},
                                                  {"BitField", &bitField},
                                                  {"GapObject", &gapObject},
                                                  {"GapObject", &gapObject},
                                                  {"BitField", &bitField},
                                                  {"DataObject", &dataObject}}));
}

TEST(VDataTypeVisitorTest, DispatchingMayBeOverridden) {
    struct Counting : RecordingDataTypeVisitor {
        void DispatchDataType(VDataType& dataType) override {
            ++dispatched;
            RecordingDataTypeVisitor::DispatchDataType(dataType);
        }

        int dispatched = 0;
    };

    VImportDoc document;
    VDataTypeCollection dataTypes(document);
    Counting visitor;
    static_cast<VDataTypeVisitor&>(visitor).DispatchDataType(dataTypes.AddNewPacketDataType());
    EXPECT_EQ(visitor.dispatched, 1);
    EXPECT_EQ(visitor.visits.size(), 1U);
}

} // namespace
