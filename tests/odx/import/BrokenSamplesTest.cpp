#include "support/Imports.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

using namespace OdxImport;
using OdxTests::Imported;

namespace {

/// A file of the folder and the codes of the diagnostics expected of it.
struct BrokenSample {
    std::string file;
    std::string codes;
};

void PrintTo(const BrokenSample& sample, std::ostream* out) {
    *out << sample.file;
}

const std::filesystem::path& Folder() {
    static const std::filesystem::path folder(ODX_BROKEN_SAMPLES_DIR);
    return folder;
}

std::vector<BrokenSample> Samples() {
    std::vector<BrokenSample> samples;
    std::ifstream in(Folder() / "expected.txt");
    for (std::string line; std::getline(in, line);) {
        const std::size_t end = std::min(line.find(' '), line.size());
        samples.push_back({line.substr(0, end), end < line.size() ? line.substr(end + 1) : ""});
    }
    return samples;
}

std::string Narrowed(const ::testing::TestParamInfo<BrokenSample>& info) {
    std::string name;
    for (const char c : info.param.file)
        name += std::isalnum(static_cast<unsigned char>(c)) != 0 ? c : '_';
    return name;
}

} // namespace

class BrokenSampleTest : public ::testing::TestWithParam<BrokenSample> {};

TEST_P(BrokenSampleTest, IsReportedAsExpectedWithItsPlaceAndTheLedgerAddsUp) {
    Imported imported(Folder() / GetParam().file);
    EXPECT_EQ(imported.Codes(), GetParam().codes);
    EXPECT_TRUE(imported.ledger.AddsUp());
    for (const Diagnostic& diagnostic : imported.diagnostics.Kept()) {
        EXPECT_FALSE(diagnostic.message.empty());
        if (diagnostic.severity != Severity::Fatal) {
            EXPECT_NE(diagnostic.where.file, "");
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Samples, BrokenSampleTest, ::testing::ValuesIn(Samples()), Narrowed);

TEST(BrokenSamplesTest, TheTableNamesExactlyTheFilesOfTheFolder) {
    std::set<std::string> listed, present;
    for (const BrokenSample& sample : Samples())
        listed.insert(sample.file);
    for (const auto& entry : std::filesystem::directory_iterator(Folder()))
        if (entry.path().extension() == ".odx-d")
            present.insert(entry.path().filename().string());
    EXPECT_EQ(listed, present);
    EXPECT_GE(listed.size(), 60u);
}

TEST(BrokenSamplesTest, EveryRuleAboutDocumentsAndLaterHasASample) {
    std::string all;
    for (const BrokenSample& sample : Samples())
        all += sample.codes + " ";
    // These need several documents, an option, or far more special data than a sample should have.
    const std::set<std::string> elsewhere{"ODX0212", "ODX0306", "ODX0311", "ODX0406", "ODX0706", "ODX0707"};
    for (const RuleInfo& info : AllRules()) {
        if (std::string_view(info.code) > "ODX0200" && !elsewhere.contains(info.code)) {
            EXPECT_NE(all.find(info.code), std::string::npos) << info.code;
        }
    }
}

TEST(BrokenSamplesTest, EveryCutOfTheWholeSampleIsReportedAndNothingElseHappens) {
    std::ifstream in(Folder() / "overlapping-cases.odx-d", std::ios::binary);
    const std::string whole((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    for (std::size_t size = 0; size + 2 < whole.size(); size += 37) {
        const OdxTests::TemporaryFile cut("cut.odx-d", std::string_view(whole).substr(0, size));
        EXPECT_EQ(Imported(cut.Path()).Codes(), "ODX0201 ODX0103") << size;
    }
}
