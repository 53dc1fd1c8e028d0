#include "datatypes/DataTypeTraits.h"

#include <ImportDame/FormulaDataType.h>
#include <ImportDame/LinearDataType.h>
#include <ImportDame/MuxDataType.h>
#include <ImportDame/PacketDataType.h>
#include <ImportDame/PiecewiseLinearDataType.h>
#include <ImportDame/ProcedureDataType.h>
#include <ImportDame/StaticIterDataType.h>
#include <ImportDame/TextTableDataType.h>
#include <ImportDame/ValueTableDataType.h>

#include <functional>
#include <typeinfo>

using namespace ImportDame;

namespace TestSupport {

INSTANTIATE_TYPED_TEST_SUITE_P(DataTypes, CollectionContract, VDataTypeCollection);

} // namespace TestSupport

namespace {

using Exposed = TestSupport::CollectionTraits<VDataTypeCollection>::Exposed;

/// Reports its death, and what it sees of its collection then.
class DyingDataType : public VPacketDataType {
public:
    DyingDataType(VDataTypeCollection& dataTypes, std::function<void(DyingDataType&)> onDeath)
        : VPacketDataType(dataTypes), m_onDeath(std::move(onDeath)) {}

    ~DyingDataType() override { m_onDeath(*this); }

private:
    std::function<void(DyingDataType&)> m_onDeath;
};

class VDataTypeCollectionTest : public testing::Test {
protected:
    std::vector<VDataType*> Elements() {
        std::vector<VDataType*> elements;
        for (VDataType& dataType : m_dataTypes)
            elements.push_back(&dataType);
        return elements;
    }

    VDataType& AppendNumbered(int number) {
        auto dataType =
            std::make_unique<DyingDataType>(m_dataTypes, [=, this](DyingDataType&) { m_deaths.push_back(number); });
        m_dataTypes.AppendDataType(*dataType);
        return *dataType.release();
    }

    std::vector<int> m_deaths;
    VImportDoc m_document;
    Exposed m_dataTypes{m_document};
};

TEST_F(VDataTypeCollectionTest, CreatesEveryKindAtTheEndAgainstItself) {
    const std::vector<VDataType*> created = {
        &m_dataTypes.AddNewFormulaDataType(),    &m_dataTypes.AddNewIdentityDataType(),
        &m_dataTypes.AddNewLinearDataType(),     &m_dataTypes.AddNewMuxDataType(),
        &m_dataTypes.AddNewPacketDataType(),     &m_dataTypes.AddNewPiecewiseLinearDataType(),
        &m_dataTypes.AddNewProcedureDataType(),  &m_dataTypes.AddNewTextTableDataType(),
        &m_dataTypes.AddNewValueTableDataType(),
    };
    const std::vector<const std::type_info*> kinds = {
        &typeid(VFormulaDataType),   &typeid(VIdentityDataType),  &typeid(VLinearDataType),
        &typeid(VMuxDataType),       &typeid(VPacketDataType),    &typeid(VPiecewiseLinearDataType),
        &typeid(VProcedureDataType), &typeid(VTextTableDataType), &typeid(VValueTableDataType),
    };
    EXPECT_EQ(Elements(), created);
    for (std::size_t i = 0; i < created.size(); ++i) {
        const VDataType& dataType = *created[i];
        EXPECT_TRUE(typeid(dataType) == *kinds[i]);
        EXPECT_EQ(&created[i]->DataTypeCollection(), &m_dataTypes);
        EXPECT_EQ(&created[i]->ImportDoc(), &m_document);
    }
}

TEST_F(VDataTypeCollectionTest, TakesOverEveryKindAtTheEnd) {
    auto& formula = *std::make_unique<VFormulaDataType>(m_dataTypes).release();
    auto& identity = *std::make_unique<VIdentityDataType>(m_dataTypes).release();
    auto& linear = *std::make_unique<VLinearDataType>(m_dataTypes).release();
    auto& packet = *std::make_unique<VPacketDataType>(m_dataTypes).release();
    auto& piecewiseLinear = *std::make_unique<VPiecewiseLinearDataType>(m_dataTypes).release();
    auto& procedure = *std::make_unique<VProcedureDataType>(m_dataTypes).release();
    auto& textTable = *std::make_unique<VTextTableDataType>(m_dataTypes).release();
    auto& valueTable = *std::make_unique<VValueTableDataType>(m_dataTypes).release();
    auto& mux = *std::make_unique<VMuxDataType>(m_dataTypes).release();
    auto& repetition = *std::make_unique<VStaticIterDataType>(m_dataTypes).release();
    EXPECT_TRUE(m_dataTypes.IsEmpty());
    m_dataTypes.AppendFormulaDataType(formula);
    m_dataTypes.AppendIdentityDataType(identity);
    m_dataTypes.AppendLinearDataType(linear);
    m_dataTypes.AppendPacketDataType(packet);
    m_dataTypes.AppendPiecewiseLinearDataType(piecewiseLinear);
    m_dataTypes.AppendProcedureDataType(procedure);
    m_dataTypes.AppendTextTableDataType(textTable);
    m_dataTypes.AppendValueTableDataType(valueTable);
    m_dataTypes.AppendDataType(mux);
    m_dataTypes.AppendDataType(repetition);
    EXPECT_EQ(Elements(), (std::vector<VDataType*>{&formula, &identity, &linear, &packet, &piecewiseLinear, &procedure,
                                                   &textTable, &valueTable, &mux, &repetition}));
}

TEST_F(VDataTypeCollectionTest, InsertsBeforeAPosition) {
    VDataType& first = m_dataTypes.AddNewIdentityDataType();
    VDataType& last = m_dataTypes.AddNewIdentityDataType();
    auto& middle = *std::make_unique<VIdentityDataType>(m_dataTypes).release();
    auto& front = *std::make_unique<VIdentityDataType>(m_dataTypes).release();
    auto& back = *std::make_unique<VIdentityDataType>(m_dataTypes).release();
    m_dataTypes._Insert(m_dataTypes.Find(last).Unwrap(), middle);
    m_dataTypes._Insert(m_dataTypes.Begin().Unwrap(), front);
    m_dataTypes._Insert(m_dataTypes.End().Unwrap(), back);
    EXPECT_EQ(Elements(), (std::vector<VDataType*>{&front, &first, &middle, &last, &back}));
}

TEST_F(VDataTypeCollectionTest, FindByIdentityIgnoresEqualContent) {
    m_dataTypes.AddNewIdentityDataType().SetQualifier(L"Same");
    VIdentityDataType& second = m_dataTypes.AddNewIdentityDataType();
    second.SetQualifier(L"Same");
    VQualified& asQualified = second;
    EXPECT_EQ(&*m_dataTypes.Find(second), &second);
    EXPECT_EQ(&*m_dataTypes.Find(asQualified), &second);
    VIdentityDataType outside(m_dataTypes);
    outside.SetQualifier(L"Same");
    VQualified& outsideAsQualified = outside;
    EXPECT_TRUE(m_dataTypes.Find(outside) == m_dataTypes.End());
    EXPECT_TRUE(m_dataTypes.Find(outsideAsQualified) == m_dataTypes.End());
}

TEST_F(VDataTypeCollectionTest, SetsTheImportedFlagAndItsReasonOfEveryDataType) {
    m_dataTypes.SetIsImportedDataTypes(true, VDataType::usedByDiagComm); // nothing to do
    EXPECT_EQ(m_dataTypes.ImportedCount(), 0U);
    VDataType* const dataTypes[] = {&m_dataTypes.AddNewIdentityDataType(), &m_dataTypes.AddNewPacketDataType(),
                                    &m_dataTypes.AddNewMuxDataType()};
    m_dataTypes.SetIsImportedDataTypes(false, VDataType::usedByDataType);
    EXPECT_EQ(m_dataTypes.ImportedCount(), 0U);
    for (VDataType* dataType : dataTypes)
        EXPECT_EQ(dataType->ReasonForIsImported(), VDataType::usedByDataType);
    m_dataTypes.SetIsImportedDataTypes(true, VDataType::usedByDiagComm);
    EXPECT_EQ(m_dataTypes.ImportedCount(), 3U);
    for (VDataType* dataType : dataTypes) {
        EXPECT_TRUE(dataType->IsImported());
        EXPECT_EQ(dataType->ReasonForIsImported(), VDataType::usedByDiagComm);
    }
}

TEST_F(VDataTypeCollectionTest, SetsTheFlagThroughTheVirtualOperationAndThenTheReason) {
    struct Watching : VPacketDataType {
        using VPacketDataType::VPacketDataType;

        void IsImported(bool isImported) override {
            VPacketDataType::IsImported(isImported);
            reasonsBefore.push_back(ReasonForIsImported());
        }

        bool IsImported() override { return VPacketDataType::IsImported(); }

        std::vector<VReasonForIsImported> reasonsBefore;
    };

    auto& watching = *std::make_unique<Watching>(m_dataTypes).release();
    m_dataTypes.AppendDataType(watching);
    m_dataTypes.SetIsImportedDataTypes(false, VDataType::usedByDiagComm);
    m_dataTypes.SetIsImportedDataTypes(true, VDataType::usedByDataType);
    EXPECT_EQ(watching.reasonsBefore,
              (std::vector<VDataType::VReasonForIsImported>{VDataType::noReason, VDataType::usedByDiagComm}));
    EXPECT_EQ(watching.ReasonForIsImported(), VDataType::usedByDataType);
}

TEST_F(VDataTypeCollectionTest, SetsTheFlagOfOneDataTypeAfterTheOther) {
    struct Watching : VPacketDataType {
        Watching(VDataTypeCollection& dataTypes, std::vector<VDataType*>& calls)
            : VPacketDataType(dataTypes), order(calls) {}

        void IsImported(bool isImported) override {
            order.push_back(this);
            VPacketDataType::IsImported(isImported);
        }

        bool IsImported() override { return VPacketDataType::IsImported(); }

        std::vector<VDataType*>& order;
    };

    std::vector<VDataType*> order;
    for (int i = 0; i < 3; ++i)
        m_dataTypes.AppendDataType(*std::make_unique<Watching>(m_dataTypes, order).release());
    m_dataTypes.SetIsImportedDataTypes(true, VDataType::selectedForImport);
    EXPECT_EQ(order, Elements());
}

TEST_F(VDataTypeCollectionTest, RemoveDestroysTheDataTypeAndKeepsTheOrderOfTheOthers) {
    VDataType& first = AppendNumbered(1);
    VDataType& second = AppendNumbered(2);
    VDataType& third = AppendNumbered(3);
    m_dataTypes.Remove(second);
    EXPECT_EQ(m_deaths, std::vector<int>{2});
    EXPECT_EQ(Elements(), (std::vector<VDataType*>{&first, &third}));
}

TEST_F(VDataTypeCollectionTest, ClearDestroysInTheOrderOfInsertion) {
    for (const int number : {1, 2, 3, 4})
        AppendNumbered(number);
    m_dataTypes.Clear();
    EXPECT_EQ(m_deaths, (std::vector<int>{1, 2, 3, 4}));
    EXPECT_TRUE(m_dataTypes.IsEmpty());
}

TEST_F(VDataTypeCollectionTest, TheDestructorDestroysInTheOrderOfInsertion) {
    {
        VDataTypeCollection dataTypes(m_document);
        for (const int number : {1, 2, 3})
            dataTypes.AppendDataType(*std::make_unique<DyingDataType>(dataTypes, [=, this](auto&) {
                                          m_deaths.push_back(number);
                                      }).release());
    }
    EXPECT_EQ(m_deaths, (std::vector<int>{1, 2, 3}));
}

TEST_F(VDataTypeCollectionTest, PacketsOfADocumentDieWithItInTheOrderOfInsertion) {
    {
        VImportDoc document;
        VDataTypeCollection& dataTypes = document.DataTypeCollection();
        for (const int number : {1, 2, 3})
            dataTypes.AppendPacketDataType(*std::make_unique<DyingDataType>(dataTypes, [=, this](auto&) {
                                                m_deaths.push_back(number);
                                            }).release());
    }
    EXPECT_EQ(m_deaths, (std::vector<int>{1, 2, 3}));
}

TEST_F(VDataTypeCollectionTest, ADyingDataTypeIsAlreadyOutOfTheCollection) {
    std::vector<unsigned long long> counts;
    for (int i = 0; i < 3; ++i)
        m_dataTypes.AppendDataType(*std::make_unique<DyingDataType>(m_dataTypes, [&](DyingDataType& dying) {
                                        counts.push_back(m_dataTypes.Count());
                                        EXPECT_TRUE(m_dataTypes.Find(dying) == m_dataTypes.End());
                                    }).release());
    m_dataTypes.Remove(m_dataTypes.Begin());
    m_dataTypes.Clear();
    EXPECT_EQ(counts, (std::vector<unsigned long long>{2, 1, 0}));
}

TEST_F(VDataTypeCollectionTest, ClearFollowsADyingDataTypeThatRemovesAndAppendsOthers) {
    m_dataTypes.AppendDataType(*std::make_unique<DyingDataType>(m_dataTypes, [this](DyingDataType&) {
                                    m_deaths.push_back(1);
                                    m_dataTypes.Remove(m_dataTypes.Begin());
                                    AppendNumbered(4);
                                }).release());
    AppendNumbered(2);
    AppendNumbered(3);
    m_dataTypes.Clear();
    EXPECT_EQ(m_deaths, (std::vector<int>{1, 2, 3, 4}));
    EXPECT_TRUE(m_dataTypes.IsEmpty());
}

TEST_F(VDataTypeCollectionTest, AMemberOfAnotherCollectionIsNotRemoved) {
    VDataTypeCollection other(m_document);
    VDataType& foreign = other.AddNewIdentityDataType();
    m_dataTypes.AddNewIdentityDataType();
    TestSupport::ExpectFailedCheck({101057, "iter != End()", "DataTypeCollection.cpp", 147},
                                   [&] { m_dataTypes.Remove(foreign); });
    EXPECT_EQ(m_dataTypes.Count(), 1U);
    EXPECT_EQ(&*other.Find(foreign), &foreign);
}

TEST_F(VDataTypeCollectionTest, IsNotCopied) {
    static_assert(!std::is_copy_constructible_v<VDataTypeCollection>);
    static_assert(!std::is_copy_assignable_v<VDataTypeCollection>);
    static_assert(std::is_base_of_v<VImportDocChild, VDataTypeCollection>);
    EXPECT_EQ(&m_dataTypes.ImportDoc(), &m_document);
}

} // namespace
