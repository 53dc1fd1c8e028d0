#include "support/OrderOfDeath.h"

#include <ImportDame/Attribute.h>
#include <ImportDame/BaseVariant.h>
#include <ImportDame/DiagJob.h>
#include <ImportDame/DiagService.h>
#include <ImportDame/DiagServiceShape.h>
#include <ImportDame/EcuVariant.h>
#include <ImportDame/EcuVariantCollection.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/ServiceMapping.h>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

using namespace ImportDame;
using TestSupport::OrderOfDeath;
using TestSupport::SeenAtDeath;

namespace {

using Objects = std::vector<const void*>;
using Order = std::vector<std::size_t>;

VEcuVariant& AddNew(VEcuVariantCollection& variants) {
    return variants.AddNewEcuVariant();
}

VDiagComm& AddNew(VDiagCommCollection& diagComms) {
    return diagComms.AddNewDiagService();
}

VDiagServiceShape& AddNew(VDiagServiceShapeCollection& shapes) {
    return shapes.AddNewDiagServiceShape();
}

template <class Collection>
class DiagDestructionOrderTest : public testing::Test {
protected:
    Objects AddThree() {
        Objects objects;
        for (int i = 0; i < 3; ++i)
            objects.push_back(&AddNew(*m_collection));
        return objects;
    }

    /// The number of elements that the collection has while its first element dies.
    template <class Operation>
    auto CountAtDeathOfFirst(Operation operation) {
        const void* const partOfIt = &m_collection->Begin()->Attributes().AddNewAttribute();
        return SeenAtDeath(partOfIt, operation, [this] { return m_collection->Count(); });
    }

    VImportDoc m_document;
    std::unique_ptr<Collection> m_collection = std::make_unique<Collection>(m_document);
};

using Collections = testing::Types<VEcuVariantCollection, VDiagCommCollection, VDiagServiceShapeCollection>;
TYPED_TEST_SUITE(DiagDestructionOrderTest, Collections);

TYPED_TEST(DiagDestructionOrderTest, ClearedElementsDieInTheOrderOfInsertion) {
    const Objects objects = this->AddThree();
    EXPECT_EQ(OrderOfDeath(objects, [this] { this->m_collection->Clear(); }), (Order{0, 1, 2}));
}

TYPED_TEST(DiagDestructionOrderTest, ElementsDieInTheOrderOfInsertionWithTheirCollection) {
    const Objects objects = this->AddThree();
    EXPECT_EQ(OrderOfDeath(objects, [this] { this->m_collection.reset(); }), (Order{0, 1, 2}));
}

TYPED_TEST(DiagDestructionOrderTest, ARemovedElementDiesAtOnceAndAlone) {
    const Objects objects = this->AddThree();
    auto& collection = *this->m_collection;
    EXPECT_EQ(OrderOfDeath(objects, [&] { collection.Remove(*std::next(collection.Begin())); }), Order{1});
    EXPECT_EQ(OrderOfDeath(objects, [&] { collection.Remove(collection.Begin()); }), Order{0});
}

TYPED_TEST(DiagDestructionOrderTest, AnElementIsOutOfItsCollectionBeforeItDies) {
    this->AddThree();
    auto& collection = *this->m_collection;
    EXPECT_EQ(this->CountAtDeathOfFirst([&] { collection.Remove(*collection.Begin()); }), 2U);
    EXPECT_EQ(this->CountAtDeathOfFirst([&] { collection.Remove(collection.Begin()); }), 1U);
    EXPECT_EQ(this->CountAtDeathOfFirst([&] { collection.Clear(); }), 0U);
}

TEST(VariantsDestructionOrderTest, ABaseVariantTakesItsEcuVariantsAndEverythingInThemAlong) {
    VImportDoc document;
    auto baseVariant = std::make_unique<VBaseVariant>(document);
    VEcuVariant& ecuVariant = baseVariant->GetEcuVariantCollection().AddNewEcuVariant();
    VDiagService& ofEcuVariant = ecuVariant.DiagCommCollection().AddNewDiagService();
    VDiagJob& own = baseVariant->DiagCommCollection().AddNewDiagJob();
    const Objects objects = {&ofEcuVariant.DiagServiceShapeCollection().AddNewDiagServiceShape(), &ofEcuVariant,
                             &ecuVariant, &own, baseVariant.get()};
    EXPECT_EQ(OrderOfDeath(objects, [&] { baseVariant.reset(); }), (Order{0, 1, 2, 3, 4}));
}

TEST(VariantsDestructionOrderTest, AnUnsetPoolTypeIsFreedAtOnce) {
    VServiceMapping mapping;
    mapping.SetDtcPoolType(VServiceMapping::mirrorMemory);
    const Objects objects = {&mapping.GetDtcPoolType()};
    EXPECT_EQ(OrderOfDeath(objects, [&] { mapping.UnsetDtcPoolType(); }), Order{0});
}

} // namespace
