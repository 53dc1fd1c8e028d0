#include "Harness.h"

#include <KoLogging/Logging.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

std::vector<unsigned char> Load(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

class CorpusTest : public testing::TestWithParam<Fuzz::Harness> {
protected:
    CorpusTest() { NArdenaSharedUtil::Logging::VLogging::GetInstance().SetEnabled(false); }

    ~CorpusTest() override { NArdenaSharedUtil::Logging::VLogging::GetInstance().SetEnabled(true); }
};

TEST_P(CorpusTest, NothingIsFound) {
    int count = 0;
    for (const auto& file : std::filesystem::directory_iterator(std::filesystem::path(CORPORA) / GetParam().name)) {
        EXPECT_NO_THROW(GetParam().run(Load(file.path()))) << file.path();
        ++count;
    }
    EXPECT_GT(count, 0);
    EXPECT_NO_THROW(GetParam().run({})) << "the empty input";
}

INSTANTIATE_TEST_SUITE_P(Corpora, CorpusTest, testing::ValuesIn(Fuzz::AllHarnesses()),
                         [](const auto& instance) { return std::string(instance.param.name); });

} // namespace
