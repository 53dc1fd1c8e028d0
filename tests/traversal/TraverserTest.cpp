#include "traversal/RecordingTraverser.h"

#include <ImportDame/BaseVariant.h>
#include <ImportDame/Case.h>
#include <ImportDame/CaseCollection.h>
#include <ImportDame/EcuVariantCollection.h>
#include <ImportDame/InvalidRange.h>
#include <ImportDame/TroubleCodeCollectionCollection.h>
#include <ImportDame/UnitCollection.h>

#include <gtest/gtest.h>

#include <type_traits>

using namespace ImportDame;
using TestSupport::Calls;
using TestSupport::Named;
using TestSupport::RecordingDataTypeTraverser;
using TestSupport::RecordingImportDocTraverser;
using TestSupport::RecordingInterchangeableTraverser;

namespace {

static_assert(std::is_abstract_v<VDataTypeTraverser> && std::is_base_of_v<VDataTypeVisitor, VDataTypeTraverser>);
static_assert(std::is_abstract_v<VInterchangeableTraverser>);
static_assert(std::is_base_of_v<VInterchangeableVisitor, VInterchangeableTraverser>);
static_assert(std::is_abstract_v<VImportDocTraverser>);
static_assert(std::is_base_of_v<VDataTypeTraverser, VImportDocTraverser>);
static_assert(std::is_base_of_v<VInterchangeableTraverser, VImportDocTraverser>);
static_assert(std::is_copy_constructible_v<RecordingImportDocTraverser>);
static_assert(std::is_copy_assignable_v<RecordingImportDocTraverser>);

/// One data type of every kind, each called by a letter.
void AddDataTypes(VImportDoc& document) {
    VDataTypeCollection& dataTypes = document.DataTypeCollection();
    Named(dataTypes.AddNewIdentityDataType(), L"I");
    Named(dataTypes.AddNewTextTableDataType(), L"T");
    Named(dataTypes.AddNewLinearDataType(), L"L");
    Named(dataTypes.AddNewPiecewiseLinearDataType(), L"P");
    Named(dataTypes.AddNewValueTableDataType(), L"V");
    Named(dataTypes.AddNewFormulaDataType(), L"F");
    Named(dataTypes.AddNewProcedureDataType(), L"R");
    Named(dataTypes.AddNewPacketDataType(), L"K").InterchangeableCollection().AddNewGapObject();
    VMuxDataType& mux = Named(dataTypes.AddNewMuxDataType(), L"M");
    mux.InterchangeableCollection().AddNewGapObject();
    mux.GetDefaultCase().AddNewGapObject();
    mux.GetCaseCollection().AddNewCase().InterchangeableCollection().AddNewGapObject();
    dataTypes.AppendDataType(Named(document.MakeStaticIterDataType(), L"S"));
    dataTypes.AppendDataType(Named(document.MakeNumeratorIterDataType(), L"N"));
    dataTypes.AppendDataType(Named(document.MakeEndOfServiceIterDataType(), L"O"));
    dataTypes.AppendDataType(Named(document.MakeEndMarkerIterDataType(), L"E"));
    for (VDataType& dataType : dataTypes)
        dataType.InvalidRangeCollection().AddNewInvalidRange();
}

const Calls g_dataTypeCalls{
    L"PreProcessIdentityDataType I",     L"DescendIdentityDataType I",
    L"PostProcessIdentityDataType I",    L"PreProcessTextTableDataType T",
    L"DescendTextTableDataType T",       L"PostProcessTextTableDataType T",
    L"PreProcessLinearDataType L",       L"DescendLinearDataType L",
    L"PostProcessLinearDataType L",      L"PreProcessPiecewiseLinearDataType P",
    L"DescendPiecewiseLinearDataType P", L"PostProcessPiecewiseLinearDataType P",
    L"PreProcessValueTableDataType V",   L"DescendValueTableDataType V",
    L"PostProcessValueTableDataType V",  L"PreProcessFormulaDataType F",
    L"DescendFormulaDataType F",         L"PostProcessFormulaDataType F",
    L"PreProcessProcedureDataType R",    L"DescendProcedureDataType R",
    L"PostProcessProcedureDataType R",   L"PreProcessPacketDataType K",
    L"DescendPacketDataType K",          L"PostProcessPacketDataType K",
    L"PreProcessMuxDataType M",          L"DescendMuxDataType M",
    L"PostProcessMuxDataType M",         L"VisitStaticIterDataType S",
    L"VisitNumeratorIterDataType N",     L"VisitEndOfServiceIterDataType O",
    L"VisitEndMarkerIterDataType E",
};

TEST(VDataTypeTraverserTest, CallsTheThreeHooksOfEachKindAndEntersNothing) {
    VImportDoc document;
    AddDataTypes(document);
    RecordingDataTypeTraverser traverser;
    for (VDataType& dataType : document.DataTypeCollection())
        traverser.TraverseDataType(dataType);
    EXPECT_EQ(traverser.calls, g_dataTypeCalls);
}

TEST(VDataTypeTraverserTest, DispatchingADataTypeTraversesIt) {
    VImportDoc document;
    VLinearDataType& linear = Named(document.DataTypeCollection().AddNewLinearDataType(), L"L");
    RecordingDataTypeTraverser traverser;
    traverser.DispatchDataType(linear);
    EXPECT_EQ(traverser.calls,
              (Calls{L"PreProcessLinearDataType L", L"DescendLinearDataType L", L"PostProcessLinearDataType L"}));
}

TEST(VDataTypeTraverserTest, InvalidRangesAreThereForASubclassToVisit) {
    VImportDoc document;
    VLinearDataType& linear = document.DataTypeCollection().AddNewLinearDataType();
    linear.InvalidRangeCollection().AddNewInvalidRange();
    RecordingDataTypeTraverser traverser;
    traverser.VisitInvalidRangeCollection(linear.InvalidRangeCollection());
    EXPECT_EQ(traverser.calls, (Calls{L"PreProcessInvalidRangeCollection", L"DescendInvalidRangeCollection",
                                      L"PostProcessInvalidRangeCollection"}));
}

/// Members three bit fields deep: `top(before, inner(deep(deepest)), after)`.
void AddNestedBitField(VInterchangeableCollection& collection) {
    VInterchangeableCollection& top = Named(collection.AddNewBitField(), L"top").InterchangeableCollection();
    Named(top.AddNewDataObject(), L"before");
    VInterchangeableCollection& inner = Named(top.AddNewBitField(), L"inner").InterchangeableCollection();
    VInterchangeableCollection& deep = Named(inner.AddNewBitField(), L"deep").InterchangeableCollection();
    Named(deep.AddNewGapObject(), L"deepest");
    Named(top.AddNewGapObject(), L"after");
}

const Calls g_nestedCalls{
    L"PreProcessBitField top",      L"DescendBitField top",          L"PreProcessDataObject before",
    L"DescendDataObject before",    L"PostProcessDataObject before", L"PreProcessBitField inner",
    L"DescendBitField inner",       L"PreProcessBitField deep",      L"DescendBitField deep",
    L"PreProcessGapObject deepest", L"DescendGapObject deepest",     L"PostProcessGapObject deepest",
    L"PostProcessBitField deep",    L"PostProcessBitField inner",    L"PreProcessGapObject after",
    L"DescendGapObject after",      L"PostProcessGapObject after",   L"PostProcessBitField top",
};

TEST(VInterchangeableTraverserTest, VisitsTheMembersOfBitFieldsDepthFirst) {
    VImportDoc document;
    AddNestedBitField(document.InterchangeableCollection());
    RecordingInterchangeableTraverser traverser;
    traverser.TraverseInterchangeable(*document.InterchangeableCollection().Begin());
    EXPECT_EQ(traverser.calls, g_nestedCalls);
}

TEST(VInterchangeableTraverserTest, TraversesTheElementsOfACollectionThroughTheVirtualInterface) {
    struct Counting : RecordingInterchangeableTraverser {
        void TraverseInterchangeable(VInterchangeable& interchangeable) override {
            ++count;
            RecordingInterchangeableTraverser::TraverseInterchangeable(interchangeable);
        }

        int count = 0;
    };

    VImportDoc document;
    VInterchangeableCollection& collection = document.InterchangeableCollection();
    AddNestedBitField(collection);
    Named(collection.AddNewGapObject(), L"gap");
    Counting traverser;
    traverser.TraverseInterchangeableCollection(collection);
    Calls expected = g_nestedCalls;
    expected.insert(expected.end(), {L"PreProcessGapObject gap", L"DescendGapObject gap", L"PostProcessGapObject gap"});
    EXPECT_EQ(traverser.calls, expected);
    EXPECT_EQ(traverser.count, 2) << "members of bit fields are accepted directly";
}

TEST(VInterchangeableTraverserTest, DispatchingAnInterchangeableTraversesIt) {
    VImportDoc document;
    VGapObject& gap = Named(document.InterchangeableCollection().AddNewGapObject(), L"G");
    RecordingInterchangeableTraverser traverser;
    traverser.DispatchInterchangeable(gap);
    EXPECT_EQ(traverser.calls, (Calls{L"PreProcessGapObject G", L"DescendGapObject G", L"PostProcessGapObject G"}));
}

TEST(VInterchangeableTraverserTest, FollowsNeitherDataTypesNorSelectors) {
    VImportDoc document;
    VInterchangeableCollection& collection = document.InterchangeableCollection();
    VDataObject& object = Named(collection.AddNewDataObject(), L"O");
    object.SetDataType(&Named(document.DataTypeCollection().AddNewLinearDataType(), L"L"));
    object.SetSelectorDataObject(Named(document.InterchangeableCollection().AddNewDataObject(), L"selector"));
    RecordingImportDocTraverser traverser;
    traverser.TraverseInterchangeable(object);
    EXPECT_EQ(traverser.calls, (Calls{L"PreProcessDataObject O", L"DescendDataObject O", L"PostProcessDataObject O"}));
}

TEST(VImportDocTraverserTest, AnEmptyDocumentHasTheHooksOfTheDocumentAndItsCollectionsOnly) {
    VImportDoc document;
    RecordingImportDocTraverser traverser;
    traverser.Traverse(document);
    EXPECT_EQ(traverser.calls, (Calls{L"PreProcessImportDoc", L"DescendImportDoc", L"PreProcessDataTypeCollection",
                                      L"DescendDataTypeCollection", L"PostProcessDataTypeCollection",
                                      L"PreProcessInterchangeableCollection", L"DescendInterchangeableCollection",
                                      L"PostProcessInterchangeableCollection", L"PostProcessImportDoc"}));
}

TEST(VImportDocTraverserTest, WalksAWholeDocumentInOrder) {
    VImportDoc document;
    AddDataTypes(document);
    AddNestedBitField(document.InterchangeableCollection());
    document.TroubleCodeCollectionCollection().AppendNew();
    document.GetBaseVariant().GetEcuVariantCollection().AddNewEcuVariant();
    document.UnitCollection().AddNewUnit();
    Calls expected{L"PreProcessImportDoc", L"DescendImportDoc", L"PreProcessDataTypeCollection",
                   L"DescendDataTypeCollection"};
    expected.insert(expected.end(), g_dataTypeCalls.begin(), g_dataTypeCalls.end());
    expected.insert(expected.end(), {L"PostProcessDataTypeCollection", L"PreProcessInterchangeableCollection",
                                     L"DescendInterchangeableCollection"});
    expected.insert(expected.end(), g_nestedCalls.begin(), g_nestedCalls.end());
    expected.insert(expected.end(), {L"PostProcessInterchangeableCollection", L"PostProcessImportDoc"});
    RecordingImportDocTraverser traverser;
    traverser.Traverse(document);
    EXPECT_EQ(traverser.calls, expected);
}

TEST(VImportDocTraverserTest, WalksTwoDataTypesThenADataObjectAndABitFieldWithAGap) {
    VImportDoc document;
    Named(document.DataTypeCollection().AddNewIdentityDataType(), L"D1");
    Named(document.DataTypeCollection().AddNewPacketDataType(), L"D2").InterchangeableCollection().AddNewGapObject();
    Named(document.InterchangeableCollection().AddNewDataObject(), L"I1");
    VBitField& bitField = Named(document.InterchangeableCollection().AddNewBitField(), L"I2");
    Named(bitField.InterchangeableCollection().AddNewGapObject(), L"G");
    RecordingImportDocTraverser traverser;
    document.Accept(traverser);
    EXPECT_EQ(traverser.calls, (Calls{L"PreProcessImportDoc",
                                      L"DescendImportDoc",
                                      L"PreProcessDataTypeCollection",
                                      L"DescendDataTypeCollection",
                                      L"PreProcessIdentityDataType D1",
                                      L"DescendIdentityDataType D1",
                                      L"PostProcessIdentityDataType D1",
                                      L"PreProcessPacketDataType D2",
                                      L"DescendPacketDataType D2",
                                      L"PostProcessPacketDataType D2",
                                      L"PostProcessDataTypeCollection",
                                      L"PreProcessInterchangeableCollection",
                                      L"DescendInterchangeableCollection",
                                      L"PreProcessDataObject I1",
                                      L"DescendDataObject I1",
                                      L"PostProcessDataObject I1",
                                      L"PreProcessBitField I2",
                                      L"DescendBitField I2",
                                      L"PreProcessGapObject G",
                                      L"DescendGapObject G",
                                      L"PostProcessGapObject G",
                                      L"PostProcessBitField I2",
                                      L"PostProcessInterchangeableCollection",
                                      L"PostProcessImportDoc"}));
}

TEST(VImportDocTraverserTest, OneCollectionCanBeVisitedAlone) {
    VImportDoc document;
    Named(document.DataTypeCollection().AddNewLinearDataType(), L"L");
    Named(document.InterchangeableCollection().AddNewGapObject(), L"G");
    RecordingImportDocTraverser traverser;
    traverser.VisitDataTypeCollection(document.DataTypeCollection());
    EXPECT_EQ(traverser.calls,
              (Calls{L"PreProcessDataTypeCollection", L"DescendDataTypeCollection", L"PreProcessLinearDataType L",
                     L"DescendLinearDataType L", L"PostProcessLinearDataType L", L"PostProcessDataTypeCollection"}));
    traverser.calls.clear();
    traverser.VisitInterchangeableCollection(document.InterchangeableCollection());
    EXPECT_EQ(traverser.calls, (Calls{L"PreProcessInterchangeableCollection", L"DescendInterchangeableCollection",
                                      L"PreProcessGapObject G", L"DescendGapObject G", L"PostProcessGapObject G",
                                      L"PostProcessInterchangeableCollection"}));
}

TEST(VImportDocTraverserTest, VisitingADocumentAndTraversingItAreTheSame) {
    VImportDoc document;
    AddDataTypes(document);
    RecordingImportDocTraverser visiting;
    visiting.VisitImportDoc(document);
    RecordingImportDocTraverser traversing;
    traversing.Traverse(document);
    EXPECT_EQ(visiting.calls, traversing.calls);
    EXPECT_EQ(visiting.calls.size(), 9 + g_dataTypeCalls.size());
}

TEST(VImportDocTraverserTest, AcceptsTheElementsOfADocumentDirectly) {
    struct Counting : RecordingImportDocTraverser {
        void TraverseDataType(VDataType&) override { ++count; }

        void DispatchDataType(VDataType&) override { ++count; }

        void TraverseInterchangeable(VInterchangeable&) override { ++count; }

        void TraverseInterchangeableCollection(VInterchangeableCollection&) override { ++count; }

        void DispatchInterchangeable(VInterchangeable&) override { ++count; }

        int count = 0;
    };

    VImportDoc document;
    AddDataTypes(document);
    AddNestedBitField(document.InterchangeableCollection());
    Counting traverser;
    traverser.Traverse(document);
    EXPECT_EQ(traverser.count, 0);
    EXPECT_EQ(traverser.calls.size(), 9 + g_dataTypeCalls.size() + g_nestedCalls.size());
}

} // namespace
