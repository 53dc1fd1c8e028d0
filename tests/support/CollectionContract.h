/// @file
/// The rules that every owning collection keeps, stated once.
///
/// A collection joins by a specialisation of `CollectionTraits` beside its own tests and
/// `INSTANTIATE_TYPED_TEST_SUITE_P(Name, CollectionContract, TheCollection);`. The specialisation has
///   - `Element`, and `struct Owner` with a member `collection` (of a class derived from the collection that makes its
///     protected `_Remove` public, where there is one) and whatever the collection needs to live;
///   - `static Element& AddNew(collection&)`, which creates elements that differ in whatever `Remove` goes by;
///   - `ordered`: whether elements stand in the order in which they were added (otherwise in that of their addresses);
///   - `removeDeletes`: whether `Remove` deletes the element (otherwise the caller owns it again);
///   - `removeAbsent`, `removeAtEnd`, `removePositionAtEnd`: the checks that fail, or no value where nothing is
///   reported.
#pragma once

#include "support/FailedCheck.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <concepts>
#include <functional>
#include <iterator>
#include <memory>
#include <optional>
#include <random>
#include <ranges>
#include <type_traits>
#include <vector>

namespace TestSupport {

template <class Collection>
struct CollectionTraits;

template <class Collection>
class CollectionContract : public testing::Test {
protected:
    using Traits = CollectionTraits<Collection>;
    using Element = typename Traits::Element;
    using Owner = typename Traits::Owner;

    /// The elements as the collection is expected to hand them out.
    std::vector<Element*> Expected() const {
        std::vector<Element*> expected = m_model;
        if (!Traits::ordered)
            std::sort(expected.begin(), expected.end(), std::less<>());
        return expected;
    }

    static std::vector<Element*> Elements(Owner& owner) {
        std::vector<Element*> elements;
        for (auto position = owner.collection.Begin(); position != owner.collection.End(); ++position)
            elements.push_back(&*position);
        return elements;
    }

    void Add(int count = 1) {
        for (int i = 0; i < count; ++i)
            m_model.push_back(&Traits::AddNew(m_owner->collection));
    }

    void Remove(Element& element) {
        m_model.erase(std::find(m_model.begin(), m_model.end(), &element));
        m_owner->collection.Remove(element);
        if constexpr (!Traits::removeDeletes)
            delete &element;
    }

    void ExpectModel() {
        EXPECT_EQ(Elements(*m_owner), Expected());
        EXPECT_EQ(m_owner->collection.Count(), m_model.size());
        EXPECT_EQ(m_owner->collection.IsEmpty(), m_model.empty());
    }

    std::unique_ptr<Owner> m_owner = std::make_unique<Owner>();
    std::vector<Element*> m_model;
};

TYPED_TEST_SUITE_P(CollectionContract);

TYPED_TEST_P(CollectionContract, IsEmptyAtFirst) {
    this->ExpectModel();
    EXPECT_TRUE(this->m_owner->collection.Begin() == this->m_owner->collection.End());
}

TYPED_TEST_P(CollectionContract, HandsOutEveryElementAsTheObjectThatWasCreated) {
    this->Add(20);
    this->ExpectModel();
}

TYPED_TEST_P(CollectionContract, HasIteratorsOfTheStandardLibrary) {
    using Iterator = typename TypeParam::iterator;
    static_assert(std::forward_iterator<Iterator>);
    static_assert(std::is_same_v<std::iter_reference_t<Iterator>, typename TestFixture::Element&>);
    static_assert(std::has_virtual_destructor_v<Iterator>);
    this->Add(3);
    auto& collection = this->m_owner->collection;
    std::vector<typename TestFixture::Element*> walked;
    for (auto& element : collection)
        walked.push_back(&element);
    EXPECT_EQ(walked, this->Expected());
    EXPECT_EQ(std::distance(collection.begin(), collection.end()), 3);
    auto position = collection.Begin();
    EXPECT_EQ(&*position++, walked[0]);
    EXPECT_EQ(position.operator->(), walked[1]);
    EXPECT_EQ(&*++position, walked[2]);
    EXPECT_TRUE(++position == collection.End());
    EXPECT_FALSE(position != collection.End());
    EXPECT_TRUE(Iterator() == Iterator());
}

TYPED_TEST_P(CollectionContract, IsARangeOfTheStandardLibrary) {
    using Iterator = typename TypeParam::iterator;
    using Walker = decltype(this->m_owner->collection.begin());
    static_assert(std::forward_iterator<Walker>);
    static_assert(std::ranges::common_range<TypeParam>);
    static_assert(std::convertible_to<Walker, Iterator> && std::convertible_to<Iterator, Walker>);
    // Nobody moves a walker without its knowledge: it reads ahead of its place.
    static_assert(std::is_same_v<Walker, Iterator> || !std::is_convertible_v<Walker&, Iterator&>);
    auto& collection = this->m_owner->collection;
    for (std::size_t count = 0; count <= 20; ++count, this->Add()) { // fewer and more than are fetched ahead
        const auto expected = this->Expected();
        std::vector<typename TestFixture::Element*> walked;
        for (auto position = collection.begin(); position != collection.End();)
            walked.push_back(&*position++);
        ASSERT_EQ(walked, expected);
        ASSERT_EQ(std::ranges::distance(collection), static_cast<std::ptrdiff_t>(count));
    }
    const auto expected = this->Expected();
    const auto found =
        std::find_if(collection.begin(), collection.end(), [&](auto& element) { return &element == expected[12]; });
    EXPECT_EQ(&*Iterator(found), expected[12]);
    Walker walker = ++collection.begin();
    walker = collection.Begin(); // one from elsewhere, which walks just the same
    EXPECT_EQ(std::distance(walker, collection.end()), 21);
    EXPECT_TRUE(collection.Begin() == collection.begin());
    EXPECT_TRUE(collection.begin() != collection.End());
    EXPECT_EQ(collection.begin().operator->(), expected[0]);
    EXPECT_TRUE(Walker() == Walker());
}

TYPED_TEST_P(CollectionContract, FindsTheVeryObjectOnly) {
    if constexpr (requires(typename TestFixture::Owner & owner, typename TestFixture::Element & element) {
                      owner.collection.Find(element);
                  }) {
        this->Add(5);
        auto& collection = this->m_owner->collection;
        for (auto* element : this->m_model) {
            const auto found = collection.Find(*element);
            ASSERT_TRUE(found != collection.End());
            EXPECT_EQ(&*found, element);
        }
        typename TestFixture::Owner other;
        auto& foreign = TestFixture::Traits::AddNew(other.collection);
        EXPECT_TRUE(collection.Find(foreign) == collection.End());
    } else {
        this->Add(1); // no look-up by identity: walking is the only way to an element
        EXPECT_EQ(&*this->m_owner->collection.Begin(), this->m_model[0]);
    }
}

TYPED_TEST_P(CollectionContract, KeepsTheOrderWhenElementsAreRemoved) {
    this->Add(7);
    for (const std::size_t index : {3U, 0U, 4U, 1U, 1U, 0U, 0U}) { // middle, first, last, …, the only one
        this->Remove(*this->m_model[index]);
        this->ExpectModel();
    }
    this->Add(2);
    this->ExpectModel();
}

TYPED_TEST_P(CollectionContract, LeavesEverythingAsItWasWhenTheElementIsNotHeld) {
    this->Add(3);
    typename TestFixture::Owner other;
    auto& foreign = TestFixture::Traits::AddNew(other.collection);
    const auto remove = [&] { this->m_owner->collection.Remove(foreign); };
    if (TestFixture::Traits::removeAbsent)
        ExpectFailedCheck(*TestFixture::Traits::removeAbsent, remove);
    else
        EXPECT_NO_THROW(remove());
    this->ExpectModel();
    EXPECT_EQ(&*other.collection.Begin(), &foreign);
}

TYPED_TEST_P(CollectionContract, RefusesToRemoveTheEnd) {
    this->Add(3);
    auto& collection = this->m_owner->collection;
    if constexpr (requires { collection.Remove(collection.End()); })
        ExpectFailedCheck(*TestFixture::Traits::removeAtEnd, [&] { collection.Remove(collection.End()); });
    else
        EXPECT_FALSE(TestFixture::Traits::removeAtEnd.has_value());
    if constexpr (requires { collection._Remove(collection.End().Unwrap()); })
        ExpectFailedCheck(*TestFixture::Traits::removePositionAtEnd,
                          [&] { collection._Remove(collection.End().Unwrap()); });
    else
        EXPECT_FALSE(TestFixture::Traits::removePositionAtEnd.has_value());
    this->ExpectModel();
}

TYPED_TEST_P(CollectionContract, RemovesAtAnIterator) {
    this->Add(3);
    auto& collection = this->m_owner->collection;
    if constexpr (requires { collection.Remove(collection.Begin()); }) {
        collection.Remove(std::next(collection.Begin()));
        this->m_model.erase(this->m_model.begin() + 1);
        this->ExpectModel();
        collection._Remove(collection.Begin().Unwrap());
        this->m_model.erase(this->m_model.begin());
    }
    this->ExpectModel();
}

TYPED_TEST_P(CollectionContract, KeepsIteratorsInFrontOfARemovedElement) {
    this->Add(3);
    const auto expected = this->Expected();
    auto position = this->m_owner->collection.Begin();
    this->Remove(*expected[2]);
    EXPECT_EQ(&*position, expected[0]);
    EXPECT_EQ(&*++position, expected[1]);
    EXPECT_TRUE(++position == this->m_owner->collection.End());
}

TYPED_TEST_P(CollectionContract, ClearsAsOftenAsOneLikes) {
    auto& collection = this->m_owner->collection;
    collection.Clear();
    this->ExpectModel();
    this->Add(5);
    collection.Clear();
    this->m_model.clear();
    this->ExpectModel();
    collection.Clear();
    this->Add(2);
    this->ExpectModel();
}

TYPED_TEST_P(CollectionContract, CountsImportedElements) {
    auto& collection = this->m_owner->collection;
    if constexpr (requires(typename TestFixture::Element & element) {
                      collection.ImportedCount();
                      element.IsImported(true);
                  }) {
        EXPECT_EQ(collection.ImportedCount(), 0U);
        this->Add(3);
        for (auto* element : this->m_model)
            element->IsImported(true);
        EXPECT_EQ(collection.ImportedCount(), 3U);
        this->m_model[1]->IsImported(false);
        EXPECT_EQ(collection.ImportedCount(), 2U);
        static_assert(std::is_same_v<decltype(collection.ImportedCount()), unsigned int>);
    }
    static_assert(std::is_same_v<decltype(collection.Count()), unsigned long long>);
}

TYPED_TEST_P(CollectionContract, BehavesAsAVectorUnderRandomOperations) {
    std::mt19937 random(20240229);
    for (int step = 0; step < 2000; ++step) {
        const auto choice = random() % 100;
        if (choice < 55 || this->m_model.empty())
            this->Add();
        else if (choice < 70)
            this->Remove(*this->m_model.front());
        else if (choice < 99)
            this->Remove(*this->m_model[random() % this->m_model.size()]);
        else {
            this->m_owner->collection.Clear();
            this->m_model.clear();
        }
        this->ExpectModel();
        if (this->HasFailure())
            return;
    }
}

REGISTER_TYPED_TEST_SUITE_P(CollectionContract, IsEmptyAtFirst, HandsOutEveryElementAsTheObjectThatWasCreated,
                            HasIteratorsOfTheStandardLibrary, IsARangeOfTheStandardLibrary, FindsTheVeryObjectOnly,
                            KeepsTheOrderWhenElementsAreRemoved, LeavesEverythingAsItWasWhenTheElementIsNotHeld,
                            RefusesToRemoveTheEnd, RemovesAtAnIterator, KeepsIteratorsInFrontOfARemovedElement,
                            ClearsAsOftenAsOneLikes, CountsImportedElements, BehavesAsAVectorUnderRandomOperations);

} // namespace TestSupport
