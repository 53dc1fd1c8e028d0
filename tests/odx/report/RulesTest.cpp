#include "OdxImport/Rules.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

using namespace OdxImport;

namespace {

std::string TableRow(const RuleInfo& info) {
    std::ostringstream row;
    row << "| " << info.code << " | " << ToText(info.severity) << " | " << info.summary << " | " << ToText(info.outcome)
        << " | " << info.advice << " |";
    return row.str();
}

std::string RowsOfTheDocument() {
    std::ifstream in(ODX_DOCS_DIR "/diagnostics.md");
    std::string rows;
    for (std::string line; std::getline(in, line);)
        if (line.starts_with("| ODX"))
            rows += line + "\n";
    return rows;
}

} // namespace

TEST(RulesTest, CodesAscendAndAreWellFormed) {
    std::string before = "ODX0000";
    for (const RuleInfo& info : AllRules()) {
        const std::string code = info.code;
        EXPECT_EQ(code.size(), 7u);
        EXPECT_TRUE(code.starts_with("ODX"));
        EXPECT_LT(before, code);
        before = code;
    }
}

TEST(RulesTest, EveryRuleSaysWhatItIsAndWhatToDo) {
    for (const RuleInfo& info : AllRules()) {
        EXPECT_STRNE(info.summary, "") << info.code;
        EXPECT_STRNE(info.advice, "") << info.code;
    }
}

TEST(RulesTest, CodesAreStable) {
    EXPECT_STREQ(InfoOf(Rule::InputNotFound).code, "ODX0101");
    EXPECT_STREQ(InfoOf(Rule::NotXml).code, "ODX0201");
    EXPECT_STREQ(InfoOf(Rule::LinkDangling).code, "ODX0305");
    EXPECT_STREQ(InfoOf(Rule::BaseVariantChoice).code, "ODX0407");
    EXPECT_STREQ(InfoOf(Rule::NumberHexPrefix).code, "ODX0502");
    EXPECT_STREQ(InfoOf(Rule::StructureCycle).code, "ODX0607");
    EXPECT_STREQ(InfoOf(Rule::RecordColumnsTooMany).code, "ODX0706");
}

TEST(RulesTest, TheDocumentListsExactlyTheTable) {
    std::string rows;
    for (const RuleInfo& info : AllRules())
        rows += TableRow(info) + "\n";
    EXPECT_EQ(RowsOfTheDocument(), rows);
}
