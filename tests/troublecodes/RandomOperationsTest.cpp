#include "troublecodes/TroubleCodeTraits.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <vector>

using namespace ImportDame;

namespace {

/// An element that counts the living ones of its kind.
template <class Element>
class Counted : public Element {
public:
    Counted(VImportDoc& importDoc, int& count) : Element(importDoc), m_count(count) { ++m_count; }

    ~Counted() override { --m_count; }

private:
    int& m_count;
};

/// Performs random operations on a collection and on a vector alike.
template <class Collection>
class RandomOperationsTest : public testing::Test {
protected:
    using Traits = TestSupport::CollectionTraits<Collection>;
    using Element = typename Traits::Element;
    using Place = std::ptrdiff_t;

    struct Entry {
        Element* element;
        bool isCounted;
    };

    void Step() {
        const Place place = static_cast<Place>(m_random() % (m_model.size() + 1));
        switch (m_random() % 12) {
        case 0:
            return Insert(End(), m_collection.AppendNew(), false);
        case 1:
            return Insert(place, m_collection.InsertNew(At(place)), false);
        case 2:
            return m_model.empty() ? void() : Insert(End(), m_collection.AppendCopy(Any()), false);
        case 3:
            return m_model.empty() ? void() : Insert(place, m_collection.InsertCopy(At(place), Any()), false);
        case 4:
        case 5:
            return AppendCounted();
        case 6:
            return InsertCounted(place);
        case 7:
        case 8:
            return RemoveElement(place);
        case 9:
        case 10:
            return RemovePosition(place);
        default:
            if (m_random() % 20 == 0) {
                m_collection.Clear();
                m_model.clear();
            }
        }
    }

    void ExpectModel() {
        ASSERT_EQ(m_collection.Count(), m_model.size());
        auto position = m_collection.Begin();
        for (const Entry& entry : m_model) {
            ASSERT_EQ(&*position, entry.element);
            ASSERT_TRUE(m_collection.Find(*entry.element) == position);
            ASSERT_EQ(&entry.element->ImportDoc(), &m_owner.document);
            ++position;
        }
        ASSERT_TRUE(position == m_collection.End());
        ASSERT_EQ(m_count, std::count_if(m_model.begin(), m_model.end(), [](Entry entry) { return entry.isCounted; }));
    }

    [[nodiscard]] const std::vector<Entry>& Model() const { return m_model; }

private:
    typename Collection::iterator At(Place place) {
        return typename Collection::iterator(m_collection.Begin().Unwrap() + place);
    }

    [[nodiscard]] Place End() const { return static_cast<Place>(m_model.size()); }

    Element& Any() { return *m_model[m_random() % m_model.size()].element; }

    void Insert(Place place, Element& element, bool isCounted) {
        m_model.insert(m_model.begin() + place, Entry{&element, isCounted});
    }

    void AppendCounted() {
        auto& element = *std::make_unique<Counted<Element>>(m_owner.document, m_count).release();
        m_collection.Append(element);
        Insert(End(), element, true);
    }

    void InsertCounted(Place place) {
        auto& element = *std::make_unique<Counted<Element>>(m_owner.document, m_count).release();
        m_collection._Insert(At(place).Unwrap(), element);
        Insert(place, element, true);
    }

    void RemoveElement(Place place) {
        if (place == End())
            return;
        m_collection.Remove(*m_model[static_cast<std::size_t>(place)].element);
        m_model.erase(m_model.begin() + place);
    }

    void RemovePosition(Place place) {
        if (place == End())
            return;
        m_collection.Remove(At(place));
        m_model.erase(m_model.begin() + place);
    }

    int m_count = 0;
    typename Traits::Owner m_owner;
    decltype(m_owner.collection)& m_collection = m_owner.collection;
    std::vector<Entry> m_model;
    std::mt19937 m_random{2024};
};

using Collections = testing::Types<VTroubleCodeCollection, VTroubleCodeCollectionCollection>;
TYPED_TEST_SUITE(RandomOperationsTest, Collections);

TYPED_TEST(RandomOperationsTest, TheCollectionHoldsWhatAVectorHolds) {
    std::size_t largest = 0;
    for (int step = 0; step < 5000; ++step) {
        this->Step();
        ASSERT_NO_FATAL_FAILURE(this->ExpectModel()) << "after step " << step;
        largest = std::max(largest, this->Model().size());
    }
    EXPECT_GT(largest, 20U);
}

} // namespace
