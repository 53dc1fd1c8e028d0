#include "values/ValueCollectionTraits.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <type_traits>
#include <vector>

using namespace ImportDame;

namespace TestSupport {

using ValueCollections =
    testing::Types<VInvalidRangeCollection, VUnitCollection, VLinearConversionCollection, VTextTableRowCollection,
                   VValueTableRowCollection, VFunctionCollection, VAdditionalFileCollection>;
INSTANTIATE_TYPED_TEST_SUITE_P(Values, CollectionContract, ValueCollections);

} // namespace TestSupport

namespace {

template <class Collection>
class ComparableCollectionTest : public testing::Test {
protected:
    using Traits = TestSupport::CollectionTraits<Collection>;

    static auto& Add(Collection& collection) { return Traits::AddNew(collection); }
};

using ComparableCollections = testing::Types<VLinearConversionCollection, VTextTableRowCollection,
                                             VValueTableRowCollection, VFunctionCollection, VAdditionalFileCollection>;
TYPED_TEST_SUITE(ComparableCollectionTest, ComparableCollections);

TYPED_TEST(ComparableCollectionTest, EmptyCollectionsAreEqual) {
    TypeParam left;
    TypeParam right;
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
    this->Add(right);
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
    right.Clear();
    EXPECT_TRUE(left == right);
}

TYPED_TEST(ComparableCollectionTest, EqualElementsDoNotMakeCollectionsEqual) {
    TypeParam left;
    TypeParam right;
    this->Add(left);
    this->Add(right);
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
}

TYPED_TEST(ComparableCollectionTest, ACollectionEqualsItself) {
    TypeParam collection;
    this->Add(collection);
    this->Add(collection);
    EXPECT_TRUE(collection == collection);
    EXPECT_FALSE(collection != collection);
}

TYPED_TEST(ComparableCollectionTest, IsNeitherCopiedNorAssigned) {
    static_assert(!std::is_copy_constructible_v<TypeParam> && !std::is_copy_assignable_v<TypeParam>);
    static_assert(std::has_virtual_destructor_v<TypeParam>);
    TypeParam collection;
    EXPECT_TRUE(collection.IsEmpty());
}

TYPED_TEST(ComparableCollectionTest, ARemovedElementIsTheCallersAndStaysAlive) {
    TypeParam collection;
    auto& element = this->Add(collection);
    this->Add(collection);
    collection.Remove(element);
    const std::unique_ptr<std::remove_reference_t<decltype(element)>> owner(&element);
    EXPECT_EQ(collection.Count(), 1U);
    EXPECT_NE(&*collection.Begin(), owner.get());
    EXPECT_FALSE(collection == TypeParam());
}

TEST(VInvalidRangeCollectionTest, KnowsItsDataType) {
    TestSupport::InvalidRangeOwner owner;
    EXPECT_EQ(static_cast<void*>(&owner.collection.GetDataType()), static_cast<void*>(owner.storage));
    static_assert(!std::is_copy_constructible_v<VInvalidRangeCollection>);
    static_assert(std::has_virtual_destructor_v<VInvalidRangeCollection>);
}

TEST(VInvalidRangeCollectionTest, NewRangesAreDefaultRanges) {
    TestSupport::InvalidRangeOwner owner;
    VInvalidRange& range = owner.collection.AddNewInvalidRange();
    EXPECT_TRUE(range == VInvalidRange());
}

TEST(VInvalidRangeCollectionTest, ARemovedRangeKeepsItsContentAndCanBeRemovedOnce) {
    TestSupport::InvalidRangeOwner owner;
    const std::unique_ptr<VInvalidRange> range(&owner.collection.AddNewInvalidRange());
    range->SetRange(L"1", L"2");
    owner.collection.Remove(*range);
    EXPECT_STREQ(range->GetStartValue().Get(), L"1");
    EXPECT_TRUE(owner.collection.IsEmpty());
    TestSupport::ExpectFailedCheck({102000, "false", "InvalidRangeCollection.cpp", 92},
                                   [&] { owner.collection.Remove(*range); });
}

TEST(VTextTableRowCollectionTest, TheDefaultValueIsNotComparedAndNotCleared) {
    VTextTableRowCollection left;
    VTextTableRowCollection right;
    EXPECT_STREQ(left.DefaultValue().GetText(), L"");
    left.DefaultValue().SetText(L"unknown");
    left.DefaultValue().SetTextId(L"ID");
    EXPECT_TRUE(left == right);
    left.Clear();
    EXPECT_STREQ(left.DefaultValue().GetText(), L"unknown");
    EXPECT_STREQ(left.DefaultValue().GetTextId(), L"ID");
    EXPECT_STREQ(right.DefaultValue().GetText(), L"");
}

TEST(VTextTableRowCollectionTest, RowsThatAreEqualAreStillTwoRows) {
    VTextTableRowCollection rows;
    const std::unique_ptr<VTextTableRow> first(&rows.AddNewTextTableRow());
    VTextTableRow& second = rows.AddNewTextTableRow();
    EXPECT_TRUE(*first == second);
    rows.Remove(*first);
    rows.Remove(*first); // no longer held: nothing happens
    ASSERT_EQ(rows.Count(), 1U);
    EXPECT_EQ(&*rows.Begin(), &second);
}

TEST(VUnitCollectionContractTest, IsNeitherCopiedNorAssigned) {
    static_assert(!std::is_copy_constructible_v<VUnitCollection> && !std::is_copy_assignable_v<VUnitCollection>);
    static_assert(std::has_virtual_destructor_v<VUnitCollection>);
    static_assert(!std::is_base_of_v<VImportDocChild, VUnitCollection>);
}

TEST(VLinearConversionCollectionTest, IteratesInTheOrderOfAddresses) {
    VLinearConversionCollection conversions;
    std::vector<const VLinearConversion*> expected;
    for (int i = 0; i < 100; ++i)
        expected.push_back(&conversions.AddNewLinearConversion());
    std::sort(expected.begin(), expected.end(), std::less<>());
    std::vector<const VLinearConversion*> walked;
    for (const VLinearConversion& conversion : conversions)
        walked.push_back(&conversion);
    EXPECT_EQ(walked, expected);
}

} // namespace
