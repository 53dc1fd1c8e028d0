#include "support/FailingAllocation.h"

#include <ImportDame/BitField.h>
#include <ImportDame/Case.h>
#include <ImportDame/DataObject.h>
#include <ImportDame/DataTypeCollection.h>
#include <ImportDame/EndMarkerIterDataType.h>
#include <ImportDame/EndOfServiceIterDataType.h>
#include <ImportDame/FormulaDataType.h>
#include <ImportDame/GapObject.h>
#include <ImportDame/IdentityDataType.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/MuxDataType.h>
#include <ImportDame/NumeratorIterDataType.h>
#include <ImportDame/PacketDataType.h>
#include <ImportDame/PhysicalProperties.h>

#include <gtest/gtest.h>

#include <memory>

using namespace ImportDame;
using TestSupport::ForEachFailingAllocation;

namespace {

/// Full collections: the next element makes each of them grow.
struct Model {
    Model() {
        for (VInterchangeableCollection* members : {&mux.InterchangeableCollection(), &mux.GetDefaultCase()}) {
            members->AddNewDataObject();
            members->AddNewGapObject();
        }
        mux.GetCaseCollection().AddNewCase();
        dataObject.SetConstValue(VValue(L"old const value"));
        formula.SetCodedToPhysFormula(L"old formula");
        physical.SetUnit(L"old unit");
    }

    VImportDoc document;
    VDataTypeCollection dataTypes{document};
    VMuxDataType& mux = dataTypes.AddNewMuxDataType();
    VFormulaDataType& formula = dataTypes.AddNewFormulaDataType();
    VNumeratorIterDataType numerator{dataTypes};
    VEndOfServiceIterDataType endOfService{dataTypes};
    VDataObject dataObject{document};
    VPhysicalProperties physical;
    std::unique_ptr<VDataType> unowned = std::make_unique<VPacketDataType>(dataTypes);
};

void ExpectUnchanged(Model& model) {
    ASSERT_EQ(model.dataTypes.Count(), 2U);
    EXPECT_EQ(&*model.dataTypes.Begin(), &model.mux);
    EXPECT_EQ(model.mux.InterchangeableCollection().Count(), 2U);
    EXPECT_EQ(model.mux.GetDefaultCase().Count(), 2U);
    EXPECT_EQ(model.mux.GetCaseCollection().Count(), 1U);
    EXPECT_FALSE(model.mux.HasMuxStartBitPosition());
    EXPECT_FALSE(model.mux.HasSelectorStartBitPosition());
    EXPECT_FALSE(model.numerator.HasContentStartBitPosition());
    EXPECT_FALSE(model.numerator.HasSelectorStartBitPosition());
    EXPECT_FALSE(model.endOfService.HasMaxNumberOfItems());
    EXPECT_FALSE(model.dataObject.HasDefaultValue());
    EXPECT_STREQ(model.dataObject.GetConstValue().Get(), L"old const value");
    EXPECT_STREQ(model.formula.GetCodedToPhysFormula(), L"old formula");
    EXPECT_STREQ(model.formula.GetPhysToCodedFormula(), L"");
    EXPECT_FALSE(model.formula.HasPhysToCodedFormula());
    EXPECT_STREQ(model.physical.GetUnit(), L"old unit");
}

template <class Operation>
std::size_t Survived(Operation operation) {
    return ForEachFailingAllocation([] { return std::make_unique<Model>(); }, operation, ExpectUnchanged);
}

TEST(DataTypesOutOfMemoryTest, AddingADataTypeLeavesTheCollectionAsItWas) {
    EXPECT_GE(Survived([](Model& model) { model.dataTypes.AddNewFormulaDataType(); }), 2U);
    EXPECT_GE(Survived([](Model& model) { model.dataTypes.AddNewIdentityDataType(); }), 2U);
    EXPECT_GE(Survived([](Model& model) { model.dataTypes.AddNewLinearDataType(); }), 2U);
    EXPECT_GE(Survived([](Model& model) { model.dataTypes.AddNewMuxDataType(); }), 2U);
    EXPECT_GE(Survived([](Model& model) { model.dataTypes.AddNewPacketDataType(); }), 2U);
    EXPECT_GE(Survived([](Model& model) { model.dataTypes.AddNewPiecewiseLinearDataType(); }), 2U);
    EXPECT_GE(Survived([](Model& model) { model.dataTypes.AddNewProcedureDataType(); }), 2U);
    EXPECT_GE(Survived([](Model& model) { model.dataTypes.AddNewTextTableDataType(); }), 2U);
    EXPECT_GE(Survived([](Model& model) { model.dataTypes.AddNewValueTableDataType(); }), 2U);
}

TEST(DataTypesOutOfMemoryTest, ADataTypeThatCouldNotBeAppendedStaysTheCallers) {
    const auto survived = Survived([](Model& model) {
        model.dataTypes.AppendDataType(*model.unowned);
        static_cast<void>(model.unowned.release());
    });
    EXPECT_GE(survived, 1U);
}

TEST(DataTypesOutOfMemoryTest, AddingAMemberLeavesTheCollectionAsItWas) {
    EXPECT_GE(Survived([](Model& model) { model.mux.InterchangeableCollection().AddNewDataObject(); }), 2U);
    EXPECT_GE(Survived([](Model& model) { model.mux.InterchangeableCollection().AddNewBitField(); }), 2U);
    EXPECT_GE(Survived([](Model& model) { model.mux.GetDefaultCase().AddNewGapObject(); }), 2U);
}

TEST(DataTypesOutOfMemoryTest, AddingACaseLeavesTheCollectionAsItWas) {
    EXPECT_GE(Survived([](Model& model) { model.mux.GetCaseCollection().AddNewCase(); }), 2U);
}

TEST(DataTypesOutOfMemoryTest, AnOptionalNumberThatCouldNotBeSetIsStillAbsent) {
    EXPECT_GE(Survived([](Model& model) { model.mux.SetMuxStartBitPosition(1); }), 1U);
    EXPECT_GE(Survived([](Model& model) { model.mux.SetSelectorStartBitPosition(1); }), 1U);
    EXPECT_GE(Survived([](Model& model) { model.numerator.SetContentStartBitPosition(1); }), 1U);
    EXPECT_GE(Survived([](Model& model) { model.numerator.SetSelectorStartBitPosition(1); }), 1U);
    EXPECT_GE(Survived([](Model& model) { model.endOfService.SetMaxNumberOfItems(1); }), 1U);
}

TEST(DataTypesOutOfMemoryTest, AValueThatCouldNotBeSetLeavesTheDataObjectAsItWas) {
    VValue value(L"a new value");
    value.AddFieldElement(L"an element");
    EXPECT_GE(Survived([&](Model& model) { model.dataObject.SetDefaultValue(value); }), 2U);
    EXPECT_GE(Survived([&](Model& model) { model.dataObject.SetConstValue(value); }), 2U);
    EXPECT_GE(Survived([](Model& model) { model.dataObject.GetConstValue(); }), 1U);
}

TEST(DataTypesOutOfMemoryTest, ATextThatCouldNotBeSetKeepsTheOldOne) {
    EXPECT_GE(Survived([](Model& model) { model.formula.SetCodedToPhysFormula(L"new"); }), 1U);
    EXPECT_GE(Survived([](Model& model) { model.formula.SetPhysToCodedFormula(L"new"); }), 1U);
    EXPECT_GE(Survived([](Model& model) { model.physical.SetUnit(L"new"); }), 1U);
    EXPECT_GE(Survived([](Model& model) { const VPhysicalProperties copy(model.physical); }), 1U);
}

} // namespace
