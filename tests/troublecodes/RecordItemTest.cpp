#include "troublecodes/TroubleCodeTraits.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <iterator>
#include <memory>
#include <random>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

using namespace ImportDame;

namespace TestSupport {

using TroubleCodeCollections =
    testing::Types<VRecordItemCollection, VTroubleCodeCollection, VTroubleCodeCollectionCollection>;
INSTANTIATE_TYPED_TEST_SUITE_P(TroubleCodes, CollectionContract, TroubleCodeCollections);

} // namespace TestSupport

namespace {

TEST(VRecordItemTest, ANewItemIsAnEmptyFreeText) {
    VRecordItem item;
    EXPECT_STREQ(item.Text().GetText(), L"");
    EXPECT_FALSE(item.Text().HasTextId());
    EXPECT_FALSE(item.IsEnumRecordItem());
    EXPECT_EQ(item.GetEnumIndex(), 0);
    static_assert(std::has_virtual_destructor_v<VRecordItem>);
}

TEST(VRecordItemTest, SettingAnIndexMakesItAnEnumeratedText) {
    VRecordItem item;
    item.SetEnumIndex(0);
    EXPECT_TRUE(item.IsEnumRecordItem());
    EXPECT_EQ(item.GetEnumIndex(), 0);
    item.SetEnumIndex(0xFFFF);
    EXPECT_TRUE(item.IsEnumRecordItem());
    EXPECT_EQ(item.GetEnumIndex(), 0xFFFF);
}

VRecordItem& Fill(VRecordItem& item, const wchar_t* text) {
    item.Text().SetText(text);
    item.Text().SetTextId(L"ID");
    item.SetEnumIndex(7);
    return item;
}

void ExpectFilled(VRecordItem& item, const wchar_t* text) {
    EXPECT_STREQ(item.Text().GetText(), text);
    EXPECT_STREQ(item.Text().GetTextId(), L"ID");
    EXPECT_TRUE(item.IsEnumRecordItem());
    EXPECT_EQ(item.GetEnumIndex(), 7);
}

TEST(VRecordItemTest, CopiesTakeAllThreeFields) {
    VRecordItem item;
    Fill(item, L"on");
    VRecordItem copy(item);
    ExpectFilled(copy, L"on");
    VRecordItem assigned;
    EXPECT_EQ(&(assigned = item), &assigned);
    ExpectFilled(assigned, L"on");
    item = VRecordItem(); // also takes the flag away
    EXPECT_FALSE(item.IsEnumRecordItem());
    EXPECT_EQ(item.GetEnumIndex(), 0);
    ExpectFilled(copy, L"on");
}

TEST(VRecordItemTest, ACloneIsTheCallers) {
    VRecordItem item;
    const VRecordItem& constant = Fill(item, L"on");
    const std::unique_ptr<VRecordItem> clone(&constant.Clone());
    EXPECT_NE(clone.get(), &item);
    item.Text().SetText(L"off");
    ExpectFilled(*clone, L"on");
}

class VRecordItemCollectionTest : public testing::Test {
protected:
    using Texts = std::vector<std::wstring>;

    static void Add(VRecordItemCollection& record, std::initializer_list<const wchar_t*> texts) {
        for (const wchar_t* text : texts)
            record.AddNewRecordItem().Text().SetText(text);
    }

    static Texts TextsOf(VRecordItemCollection& record) {
        Texts texts;
        for (VRecordItem& item : record)
            texts.emplace_back(item.Text().GetText());
        return texts;
    }

    TestSupport::ExposedRecord m_record;
};

TEST_F(VRecordItemCollectionTest, TakesOverAnItemThatIsAppended) {
    auto& item = *new VRecordItem; // the record's after the next line
    m_record.AppendRecordItem(item);
    EXPECT_EQ(&*m_record.Begin(), &item);
    EXPECT_EQ(m_record.Count(), 1U);
}

TEST_F(VRecordItemCollectionTest, FindLooksForTheObjectAndNotForItsText) {
    Add(m_record, {L"a", L"a"});
    VRecordItem& second = *std::next(m_record.Begin());
    EXPECT_TRUE(m_record.Find(second) == std::next(m_record.Begin()));
    VRecordItem outside;
    outside.Text().SetText(L"a");
    EXPECT_TRUE(m_record.Find(outside) == m_record.End());
}

TEST_F(VRecordItemCollectionTest, FindByIndexYieldsThePositionOfTheItem) {
    Add(m_record, {L"a", L"b", L"c"});
    auto expected = m_record.Begin();
    for (unsigned int index = 0; index < 3; ++index, ++expected)
        EXPECT_TRUE(m_record.FindByIndex(index) == expected);
    EXPECT_TRUE(m_record.FindByIndex(3) == m_record.End());
    EXPECT_TRUE(m_record.FindByIndex(4) == m_record.End());
    EXPECT_TRUE(m_record.FindByIndex(0xFFFFFFFF) == m_record.End());
    m_record.Clear();
    EXPECT_TRUE(m_record.FindByIndex(0) == m_record.End());
    EXPECT_TRUE(TestSupport::ExposedRecord().FindByIndex(0) == VRecordItemCollection::iterator());
}

TEST_F(VRecordItemCollectionTest, InsertsBeforeAPosition) {
    Add(m_record, {L"b", L"c"});
    for (const auto& [index, text] : {std::pair{0U, L"a"}, {3U, L"e"}, {3U, L"d"}}) {
        auto item = std::make_unique<VRecordItem>();
        item->Text().SetText(text);
        m_record._Insert((index < m_record.Count() ? m_record.FindByIndex(index) : m_record.End()).Unwrap(), *item);
        item.release(); // the record's from now on
    }
    EXPECT_EQ(TextsOf(m_record), (Texts{L"a", L"b", L"c", L"d", L"e"}));
}

TEST_F(VRecordItemCollectionTest, ACopyHasClonesOfItsOwn) {
    Fill(m_record.AddNewRecordItem(), L"x");
    Fill(m_record.AddNewRecordItem(), L"y");
    VRecordItemCollection copy(m_record);
    ASSERT_EQ(copy.Count(), 2U);
    ExpectFilled(*copy.FindByIndex(0), L"x");
    ExpectFilled(*copy.FindByIndex(1), L"y");
    EXPECT_NE(&*copy.Begin(), &*m_record.Begin());
    m_record.Clear();
    ExpectFilled(*copy.FindByIndex(0), L"x");
}

TEST_F(VRecordItemCollectionTest, AssignmentAppendsToWhatIsThere) {
    Add(m_record, {L"1", L"2"});
    VRecordItem& first = *m_record.Begin();
    VRecordItemCollection source;
    Add(source, {L"a", L"b", L"c"});
    VRecordItemCollection& record = m_record;
    EXPECT_EQ(&(record = source), &record);
    EXPECT_EQ(TextsOf(m_record), (Texts{L"1", L"2", L"a", L"b", L"c"}));
    EXPECT_EQ(&*m_record.Begin(), &first);
    EXPECT_NE(&*m_record.FindByIndex(2), &*source.Begin());
    record = VRecordItemCollection();
    EXPECT_EQ(m_record.Count(), 5U);
}

TEST_F(VRecordItemCollectionTest, AssigningARecordToItselfDoublesIt) {
    Add(m_record, {L"a", L"b", L"c"});
    VRecordItemCollection& record = m_record;
    VRecordItemCollection& same = m_record;
    record = same;
    EXPECT_EQ(TextsOf(m_record), (Texts{L"a", L"b", L"c", L"a", L"b", L"c"}));
}

/// Counts its living objects, and tells the record from which it dies.
struct CountedItem : VRecordItem {
    explicit CountedItem(int& count, std::vector<int>* deaths = nullptr, int number = 0)
        : m_count(count), m_deaths(deaths), m_number(number) {
        ++m_count;
    }

    CountedItem(const CountedItem& other)
        : VRecordItem(other), m_count(other.m_count), m_deaths(other.m_deaths), m_number(other.m_number) {
        ++m_count;
    }

    ~CountedItem() override {
        --m_count;
        if (m_deaths)
            m_deaths->push_back(m_number);
    }

    VRecordItem& Clone() const override { return *std::make_unique<CountedItem>(*this).release(); }

    int& m_count;
    std::vector<int>* m_deaths;
    int m_number;
};

TEST_F(VRecordItemCollectionTest, CopiesItemsThroughTheirClone) {
    int count = 0;
    {
        m_record.AppendRecordItem(*std::make_unique<CountedItem>(count).release());
        const VRecordItemCollection copy(m_record);
        EXPECT_EQ(count, 2);
        VRecordItemCollection assigned;
        assigned = copy;
        EXPECT_EQ(count, 3);
    }
    EXPECT_EQ(count, 1);
    m_record.Remove(m_record.Begin());
    EXPECT_EQ(count, 0);
}

TEST_F(VRecordItemCollectionTest, ItemsDieInOrder) {
    int count = 0;
    std::vector<int> deaths;
    {
        TestSupport::ExposedRecord record;
        for (int number = 0; number < 4; ++number)
            record.AppendRecordItem(*std::make_unique<CountedItem>(count, &deaths, number).release());
        record.Remove(*record.FindByIndex(2));
        EXPECT_EQ(deaths, std::vector<int>{2});
    }
    EXPECT_EQ(deaths, (std::vector<int>{2, 0, 1, 3}));
}

TEST_F(VRecordItemCollectionTest, ADyingItemIsAlreadyOut) {
    struct Witness : VRecordItem {
        explicit Witness(VRecordItemCollection& record) : m_record(record) {}

        ~Witness() override {
            EXPECT_TRUE(m_record.IsEmpty());
            EXPECT_TRUE(m_record.Find(*this) == m_record.End());
        }

        VRecordItemCollection& m_record;
    };

    m_record.AppendRecordItem(*std::make_unique<Witness>(m_record).release());
    m_record.Remove(m_record.Begin());
    m_record.AppendRecordItem(*std::make_unique<Witness>(m_record).release());
    m_record.Clear();
}

TEST_F(VRecordItemCollectionTest, BehavesAsAVectorOfTexts) {
    std::mt19937 random(5);
    Texts model;
    for (int step = 0; step < 3000; ++step) {
        const std::wstring text = std::to_wstring(step);
        const std::size_t place = model.empty() ? 0 : random() % model.size();
        switch (random() % 6) {
        case 0:
        case 1:
            Add(m_record, {text.c_str()});
            model.push_back(text);
            break;
        case 2: {
            auto item = std::make_unique<VRecordItem>();
            item->Text().SetText(text.c_str());
            m_record._Insert(m_record.Begin().Unwrap() + place, *item);
            item.release(); // the record's from now on
            model.insert(model.begin() + static_cast<std::ptrdiff_t>(place), text);
            break;
        }
        case 3:
        case 4:
            if (!model.empty()) {
                m_record.Remove(m_record.FindByIndex(static_cast<unsigned int>(place)));
                model.erase(model.begin() + static_cast<std::ptrdiff_t>(place));
            }
            break;
        default:
            if (model.size() < 50) {
                VRecordItemCollection& record = m_record;
                record = VRecordItemCollection(m_record);
                const Texts half = model;
                model.insert(model.end(), half.begin(), half.end());
            }
        }
        ASSERT_EQ(TextsOf(m_record), model);
    }
}

} // namespace
