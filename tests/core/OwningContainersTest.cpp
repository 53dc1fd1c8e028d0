/// The containers behind the collections, with elements that look at their container when they die.

#include <ImportDame/detail/OwningArray.h>
#include <ImportDame/detail/OwningList.h>
#include <ImportDame/detail/OwningSet.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <random>
#include <vector>

using namespace ImportDame::detail;

namespace {

struct Watcher {
    explicit Watcher(int itsNumber = 0, std::function<void(Watcher&)> itsLastWords = {})
        : number(itsNumber), lastWords(std::move(itsLastWords)) {}

    Watcher(const Watcher&) = delete;
    Watcher& operator=(const Watcher&) = delete;

    ~Watcher() {
        if (lastWords)
            lastWords(*this);
    }

    int number;
    std::function<void(Watcher&)> lastWords;
};

template <class Container>
class OrderedContainerTest : public testing::Test {
protected:
    /// Elements that note their number, how many are left, and whether they are still inside.
    void AddNoting(int count) {
        for (int i = 0; i < count; ++i)
            m_container.AppendNew(i, [this](Watcher& dying) {
                m_died.push_back(dying.number);
                m_left.push_back(m_container.Count());
                m_sawItself |= m_container.Find(dying) != m_container.End();
            });
    }

    std::vector<int> Numbers() const {
        std::vector<int> numbers;
        for (auto position = m_container.Begin(); position != m_container.End(); ++position)
            numbers.push_back((*position)->number);
        return numbers;
    }

    std::vector<int> m_died;
    std::vector<std::size_t> m_left;
    bool m_sawItself = false;
    Container m_container; // dies first
};

using OrderedContainers = testing::Types<OwningArray<Watcher>, OwningList<Watcher>>;
TYPED_TEST_SUITE(OrderedContainerTest, OrderedContainers);

TYPED_TEST(OrderedContainerTest, ElementsDieInInsertionOrderAndOutsideTheContainerOnClear) {
    this->AddNoting(4);
    this->m_container.Clear();
    EXPECT_EQ(this->m_died, (std::vector<int>{0, 1, 2, 3}));
    EXPECT_EQ(this->m_left, (std::vector<std::size_t>{3, 2, 1, 0}));
    EXPECT_FALSE(this->m_sawItself);
}

TYPED_TEST(OrderedContainerTest, ElementsDieInInsertionOrderOnDestruction) {
    std::vector<int> died;
    {
        TypeParam container;
        for (int i = 0; i < 3; ++i)
            container.AppendNew(i, [&](Watcher& dying) { died.push_back(dying.number); });
    }
    EXPECT_EQ(died, (std::vector<int>{0, 1, 2}));
}

TYPED_TEST(OrderedContainerTest, ClearTakesWhatADyingElementAppends) {
    this->m_container.AppendNew(1, [this](Watcher&) { this->AddNoting(2); });
    this->m_container.AppendNew(2);
    this->m_container.Clear();
    EXPECT_TRUE(this->m_container.IsEmpty());
    EXPECT_EQ(this->m_died, (std::vector<int>{0, 1}));
}

TYPED_TEST(OrderedContainerTest, ClearBearsThatADyingElementRemovesOthers) {
    this->m_container.AppendNew(1, [this](Watcher&) {
        while (!this->m_container.IsEmpty())
            this->m_container.TakeOut(this->m_container.Begin());
    });
    this->AddNoting(3);
    this->m_container.Clear();
    EXPECT_TRUE(this->m_container.IsEmpty());
    EXPECT_EQ(this->m_died, (std::vector<int>{0, 1, 2}));
}

TYPED_TEST(OrderedContainerTest, TakingOutHandsTheElementOver) {
    this->AddNoting(3);
    auto second = this->m_container.Begin();
    ++second;
    const auto element = this->m_container.TakeOut(second);
    EXPECT_EQ(element->number, 1);
    EXPECT_TRUE(this->m_died.empty());
    EXPECT_EQ(this->Numbers(), (std::vector<int>{0, 2}));
}

TYPED_TEST(OrderedContainerTest, AHundredThousandElementsAreClearedFromTheFront) {
    for (int i = 0; i < 100000; ++i)
        this->m_container.AppendNew(i);
    for (int i = 0; i < 50000; ++i)
        EXPECT_EQ(this->m_container.TakeOut(this->m_container.Begin())->number, i);
    EXPECT_EQ((*this->m_container.Begin())->number, 50000);
    this->m_container.Clear();
    EXPECT_TRUE(this->m_container.IsEmpty());
}

using ArrayTest = OrderedContainerTest<OwningArray<Watcher>>;

TEST_F(ArrayTest, InsertsBeforeAnyPosition) {
    m_container.InsertNew(m_container.Begin(), 5);
    m_container.InsertNew(m_container.Begin(), 1);
    m_container.InsertNew(m_container.Begin() + 1, 3);
    m_container.InsertNew(m_container.End(), 9);
    EXPECT_EQ(Numbers(), (std::vector<int>{1, 3, 5, 9}));
    EXPECT_EQ(m_container[2].number, 5);
    EXPECT_EQ(m_container.Last()->number, 9);
}

TEST_F(ArrayTest, AnEmptyOneHasNoLastElement) {
    EXPECT_EQ(m_container.Last(), nullptr);
    EXPECT_TRUE(m_container.Begin() == m_container.End());
}

TEST_F(ArrayTest, ExchangesItsFirstElement) {
    Watcher other(7);
    Watcher& first = m_container.AppendNew(1);
    EXPECT_EQ(m_container.ExchangeFirst(&other), &first);
    EXPECT_EQ(Numbers(), (std::vector<int>{7}));
    EXPECT_EQ(m_container.ExchangeFirst(&first), &other);
}

TEST_F(ArrayTest, StaysAVectorUnderRandomInsertionsAndRemovals) {
    std::mt19937 random(4711);
    std::vector<int> model;
    for (int step = 0; step < 20000; ++step) {
        const auto place = static_cast<std::ptrdiff_t>(random() % (model.size() + 1));
        if (random() % 100 < 52 || model.empty()) {
            m_container.InsertNew(m_container.Begin() + place, step);
            model.insert(model.begin() + place, step);
        } else {
            const auto from = random() % 2 == 0 ? 0 : std::min<std::ptrdiff_t>(place, std::ssize(model) - 1);
            EXPECT_EQ(m_container.TakeOut(m_container.Begin() + from)->number, model[static_cast<std::size_t>(from)]);
            model.erase(model.begin() + from);
        }
        ASSERT_EQ(Numbers(), model);
    }
}

TEST_F(ArrayTest, AQueueOfConstantLengthDoesNotGrow) {
    for (int i = 0; i < 100; ++i)
        m_container.AppendNew(i);
    for (int i = 0; i < 100000; ++i) {
        m_container.AppendNew(100 + i);
        ASSERT_EQ(m_container.TakeOut(m_container.Begin())->number, i);
    }
    EXPECT_EQ(m_container.Count(), 100U);
}

TEST_F(ArrayTest, AHundredThousandElementsAreInsertedBeforeTheFirst) {
    for (int i = 0; i < 100000; ++i)
        m_container.InsertNew(m_container.Begin(), i);
    for (int i = 0; i < 50000; ++i)
        EXPECT_EQ(m_container.TakeOut(m_container.Begin())->number, 99999 - i);
    EXPECT_EQ(m_container[0].number, 49999);
    EXPECT_EQ(m_container.Last()->number, 0);
}

TEST_F(ArrayTest, RoomAtTheOtherEndIsUsedBeforeTheArrayGrows) {
    for (int i = 0; i < 40; ++i)
        m_container.AppendNew(i);
    while (m_container.Count() > 4)
        m_container.TakeOut(m_container.End() - 1);
    m_container.InsertNew(m_container.Begin(), 7);
    m_container.InsertNew(m_container.Begin(), 8);
    m_container.InsertNew(m_container.Begin() + 1, 9);
    EXPECT_EQ(Numbers(), (std::vector<int>{8, 9, 7, 0, 1, 2, 3}));
    m_container.AppendNew(5);
    EXPECT_EQ(Numbers(), (std::vector<int>{8, 9, 7, 0, 1, 2, 3, 5}));
}

using ListTest = OrderedContainerTest<OwningList<Watcher>>;

TEST_F(ListTest, CountsThroughRemovalsAnywhere) {
    for (int i = 0; i < 5; ++i)
        m_container.AppendNew(i);
    m_container.TakeOut(m_container.Begin());
    EXPECT_EQ(m_container.Count(), 4U);
    m_container.TakeOut(++m_container.Begin());
    EXPECT_EQ(m_container.Count(), 3U);
    m_container.TakeOut(m_container.FindIf([](const Watcher& element) { return element.number == 4; }));
    EXPECT_EQ(Numbers(), (std::vector<int>{1, 3}));
    EXPECT_EQ(m_container.Count(), 2U);
    m_container.AppendNew(6);
    m_container.TakeOut(m_container.Begin());
    m_container.TakeOut(m_container.Begin());
    EXPECT_EQ(m_container.Count(), 1U);
    m_container.TakeOut(m_container.Begin());
    EXPECT_EQ(m_container.Count(), 0U);
    EXPECT_TRUE(m_container.IsEmpty());
    m_container.AppendNew(7);
    EXPECT_EQ(m_container.Count(), 1U);
}

TEST(OwningSetTest, HoldsItsElementsInTheOrderOfTheirAddresses) {
    OwningSet<Watcher> set;
    std::vector<Watcher*> expected;
    for (int i = 0; i < 50; ++i)
        expected.push_back(&set.InsertNew(i));
    std::sort(expected.begin(), expected.end(), std::less<>());
    std::vector<Watcher*> found;
    for (auto position = set.Begin(); position != set.End(); ++position)
        found.push_back(*position);
    EXPECT_EQ(found, expected);
}

TEST(OwningSetTest, TheEndIsTheSamePlaceBeforeTheFirstInsertionAndAfterTheLastRemoval) {
    OwningSet<Watcher> set;
    const auto end = set.End();
    EXPECT_EQ(set.Begin(), end);
    Watcher& element = set.InsertNew(1);
    EXPECT_EQ(*set.Begin(), &element);
    EXPECT_EQ(++set.Begin(), end);
    EXPECT_NE(set.Find(element), end);
    set.Clear();
    EXPECT_EQ(set.Begin(), end);
    EXPECT_EQ(set.End(), end);
}

TEST(OwningSetTest, AnEmptiedSetEqualsOneThatNeverHeldAnything) {
    OwningSet<Watcher> emptied;
    emptied.InsertNew(1);
    OwningSet<Watcher> empty;
    EXPECT_FALSE(emptied == empty);
    EXPECT_FALSE(empty == emptied);
    emptied.Clear();
    EXPECT_TRUE(emptied == empty);
    EXPECT_TRUE(empty == emptied);
}

TEST(OwningSetTest, APlaceOutlivesWhatHappensToOthers) {
    OwningSet<Watcher> set;
    for (int i = 0; i < 3; ++i)
        set.InsertNew(i);
    auto second = ++set.Begin();
    Watcher* const element = *second;
    Watcher* const third = *++set.Find(*element);
    set.TakeOut(set.Begin());
    for (int i = 0; i < 100; ++i)
        set.InsertNew(i);
    EXPECT_EQ(*second, element);
    EXPECT_EQ(second, set.Find(*element));
    while (*set.Begin() != element)
        set.TakeOut(set.Begin());
    while (*++set.Find(*element) != third)
        set.TakeOut(++set.Find(*element));
    EXPECT_EQ(*++second, third);
}

TEST(OwningSetTest, AnElementOfAnotherOneIsNotFound) {
    OwningSet<Watcher> set;
    const Watcher& first = set.InsertNew(1);
    OwningSet<Watcher> others;
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(set.Find(others.InsertNew(i)), set.End());
    EXPECT_EQ(others.Find(first), others.End());
    EXPECT_EQ(*set.Find(first), &first);
}

TEST(OwningSetTest, ElementsTakenOutBeforeAndBehindTheOthersAreNotFound) {
    OwningSet<Watcher> set;
    set.InsertNew();
    set.InsertNew();
    set.InsertNew();
    const auto first = set.TakeOut(set.Begin());
    auto position = set.Begin();
    Watcher& middle = **position;
    const auto last = set.TakeOut(++position);
    EXPECT_TRUE(set.Find(*first) == set.End());
    EXPECT_TRUE(set.Find(middle) == set.Begin());
    EXPECT_TRUE(set.Find(*last) == set.End());
}

TEST(OwningSetTest, ElementsDieOutsideTheSet) {
    std::size_t left = 99;
    bool sawItself = false;
    OwningSet<Watcher> set;
    set.InsertNew(1, [&](Watcher& dying) {
        left = set.Count();
        sawItself = set.Find(dying) != set.End();
    });
    set.Clear();
    EXPECT_EQ(left, 0U);
    EXPECT_FALSE(sawItself);
}

TEST(OwningSetTest, ComparesTheObjectsThemselves) {
    OwningSet<Watcher> left;
    OwningSet<Watcher> right;
    EXPECT_TRUE(left == right);
    left.InsertNew(1);
    right.InsertNew(1);
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left == left);
}

} // namespace
