#include <ImportDame/Attribute.h>
#include <ImportDame/AttributeCollection.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/TroubleCode.h>
#include <ImportDame/TroubleCodeCollection.h>
#include <ImportDame/TroubleCodeCollectionCollection.h>

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <memory>
#include <string>
#include <thread>

using namespace ImportDame;

namespace {

constexpr unsigned int g_count = 2000;

void SetTexts(VTroubleCodeCollection& codes, const std::wstring& text) {
    for (VTroubleCode& troubleCode : codes) {
        troubleCode.SetErrorText(text.c_str());
        (*troubleCode.Attributes().Begin()).SetValue(text.c_str());
    }
}

VTroubleCodeCollection& Fill(VImportDoc& document, const std::wstring& text) {
    auto& codes = document.TroubleCodeCollectionCollection().AppendNew();
    for (unsigned int code = 0; code < g_count; ++code) {
        auto& troubleCode = codes.AppendNew();
        troubleCode.SetCode(code);
        troubleCode.Attributes().AddNewAttribute();
    }
    SetTexts(codes, text);
    return codes;
}

/// The number of codes that hold what they were filled with.
unsigned int CountIntact(VTroubleCodeCollection& codes, const std::wstring& text) {
    unsigned int intact = 0;
    unsigned int code = 0;
    for (VTroubleCode& troubleCode : codes)
        intact += troubleCode.GetCode() == code++ && troubleCode.GetErrorText() == text &&
                          (*troubleCode.Attributes().Begin()).GetValue() == text
                      ? 1
                      : 0;
    return intact;
}

/// Runs the operation in two threads at the same time. Without `std::barrier`, in which threads may hang under Wine.
template <class Operation>
void RunInTwoThreads(Operation operation) {
    std::atomic<int> missing = 2;
    const auto run = [&](unsigned int index) {
        --missing;
        while (missing > 0)
            std::this_thread::yield();
        operation(index);
    };
    std::thread other(run, 1);
    run(0);
    other.join();
}

TEST(TwoThreadsTest, EachChangesADocumentOfItsOwn) {
    const std::array<std::wstring, 2> texts{L"of the first thread", L"of the second thread, and longer"};
    std::array<VImportDoc, 2> documents;
    for (VImportDoc& document : documents)
        Fill(document, std::wstring());
    std::array<unsigned int, 2> intact{};
    RunInTwoThreads([&](unsigned int index) {
        auto& codes = *documents[index].TroubleCodeCollectionCollection().Begin();
        for (int round = 0; round < 5; ++round) {
            SetTexts(codes, L"something else");
            SetTexts(codes, texts[index]);
            intact[index] += CountIntact(codes, texts[index]);
        }
    });
    EXPECT_EQ(intact, (std::array<unsigned int, 2>{10000, 10000}));
}

TEST(TwoThreadsTest, WalkTwoDocumentsThatAnotherThreadBuilt) {
    const std::wstring text = L"built before";
    std::array<VImportDoc, 2> documents;
    for (VImportDoc& document : documents)
        Fill(document, text);
    std::array<unsigned int, 2> intact{};
    RunInTwoThreads([&](unsigned int index) {
        intact[index] = CountIntact(*documents[index].TroubleCodeCollectionCollection().Begin(), text);
    });
    EXPECT_EQ(intact, (std::array<unsigned int, 2>{2000, 2000}));
}

TEST(TwoThreadsTest, ADocumentMayBeDestroyedByAnotherThreadThanBuiltIt) {
    auto document = std::make_unique<VImportDoc>();
    Fill(*document, L"handed over");
    std::thread([&] { document.reset(); }).join();
    VImportDoc next;
    EXPECT_EQ(CountIntact(Fill(next, L"afterwards"), L"afterwards"), 2000U);
}

} // namespace
