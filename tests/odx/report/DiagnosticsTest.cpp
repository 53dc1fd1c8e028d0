#include "OdxImport/Diagnostics.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace OdxImport;

namespace {

Diagnostic HexPrefix() {
    return {Rule::NumberHexPrefix,
            Severity::Warning,
            Outcome::ValueRepaired,
            {"ecu.pdx!base.odx-d", 12, 5, "/Container/Engine/Speed"},
            "BIT-LENGTH is written \"0x08\"; read as 8"};
}

Diagnostic Of(Rule rule, Severity severity) {
    Diagnostic diagnostic;
    diagnostic.rule = rule;
    diagnostic.severity = severity;
    return diagnostic;
}

} // namespace

TEST(DiagnosticsTest, TextHasPlaceSeverityCodeMessageOutcomePathAndAdvice) {
    EXPECT_EQ(FormatText(HexPrefix()),
              "ecu.pdx!base.odx-d:12:5: warning ODX0502: BIT-LENGTH is written \"0x08\"; read as 8 (value repaired)\n"
              "    at /Container/Engine/Speed\n"
              "    Write the number in decimal digits.\n");
}

TEST(DiagnosticsTest, TextWithoutPlaceBeginsWithTheSeverity) {
    EXPECT_EQ(FormatText(Of(Rule::NothingToRead, Severity::Fatal)),
              "fatal ODX0103: no ODX document was found in the inputs\n"
              "    Give a PDX archive, an ODX document or a folder that holds some.\n");
}

TEST(DiagnosticsTest, LineBreaksOfTheInputDoNotForgeLinesOfTheText) {
    Diagnostic diagnostic = HexPrefix();
    diagnostic.message = "a\nb\rc\x1b[31m";
    diagnostic.where.path = "/x\ny";
    EXPECT_EQ(FormatText(diagnostic), "ecu.pdx!base.odx-d:12:5: warning ODX0502: a b c [31m (value repaired)\n"
                                      "    at /x y\n"
                                      "    Write the number in decimal digits.\n");
}

TEST(DiagnosticsTest, JsonHasEveryFieldOnOneLine) {
    EXPECT_EQ(FormatJson(HexPrefix()),
              "{\"code\":\"ODX0502\",\"severity\":\"warning\",\"file\":\"ecu.pdx!base.odx-d\",\"line\":12,\"column\":5,"
              "\"path\":\"/Container/Engine/Speed\",\"message\":\"BIT-LENGTH is written \\\"0x08\\\"; read as 8\","
              "\"outcome\":\"value repaired\",\"advice\":\"Write the number in decimal digits.\"}");
}

TEST(DiagnosticsTest, JsonEscapesControlsAndReplacesBytesThatAreNoUtf8) {
    Diagnostic diagnostic = Of(Rule::EntryNotRead, Severity::Info);
    diagnostic.message = "a\\b\"c\n\t\r\x01\x7f \xC3\xA4 \xF0\x9F\x9A\x97 \xFF";
    EXPECT_NE(FormatJson(diagnostic)
                  .find("\"message\":\"a\\\\b\\\"c\\n\\t\\r\\u0001\\u007f \xC3\xA4 \xF0\x9F\x9A\x97 \xEF\xBF\xBD\""),
              std::string::npos);
}

TEST(DiagnosticCollectorTest, KeepsTheOrderAndCountsPerSeverity) {
    DiagnosticCollector collector;
    collector.Report(Of(Rule::NotXml, Severity::Error));
    collector.Report(Of(Rule::EntryNotRead, Severity::Info));
    collector.Report(Of(Rule::IdTwice, Severity::Warning));
    ASSERT_EQ(collector.Kept().size(), 3u);
    EXPECT_EQ(collector.Kept()[0].rule, Rule::NotXml);
    EXPECT_EQ(collector.Kept()[2].rule, Rule::IdTwice);
    EXPECT_EQ(collector.Count(Severity::Info), 1u);
    EXPECT_EQ(collector.Count(Severity::Warning), 1u);
    EXPECT_EQ(collector.Count(Severity::Error), 1u);
    EXPECT_EQ(collector.Count(Severity::Fatal), 0u);
    EXPECT_TRUE(collector.HasErrors());
}

TEST(DiagnosticCollectorTest, WarningsAloneAreNoErrors) {
    DiagnosticCollector collector;
    collector.Report(Of(Rule::IdTwice, Severity::Warning));
    EXPECT_FALSE(collector.HasErrors());
}

TEST(DiagnosticCollectorTest, StrictMakesWarningsErrorsAndLeavesTheRest) {
    DiagnosticCollector collector(true);
    collector.Report(Of(Rule::IdTwice, Severity::Warning));
    collector.Report(Of(Rule::EntryNotRead, Severity::Info));
    collector.Report(Of(Rule::BaseVariantMissing, Severity::Fatal));
    EXPECT_EQ(collector.Kept()[0].severity, Severity::Error);
    EXPECT_EQ(collector.Kept()[1].severity, Severity::Info);
    EXPECT_EQ(collector.Kept()[2].severity, Severity::Fatal);
    EXPECT_EQ(collector.Count(Severity::Warning), 0u);
    EXPECT_EQ(collector.Count(Severity::Error), 1u);
}

TEST(DiagnosticCollectorTest, BeyondTheLimitOfOneRuleProblemsAreCountedButNotKept) {
    DiagnosticCollector collector(false, 2);
    for (int i = 0; i < 5; ++i)
        collector.Report(Of(Rule::IdTwice, Severity::Warning));
    collector.Report(Of(Rule::NotXml, Severity::Error));
    EXPECT_EQ(collector.Kept().size(), 3u);
    EXPECT_EQ(collector.Count(Rule::IdTwice), 5u);
    EXPECT_EQ(collector.NotKept(Rule::IdTwice), 3u);
    EXPECT_EQ(collector.NotKept(Rule::NotXml), 0u);
    EXPECT_EQ(collector.Count(Severity::Warning), 5u);
}

TEST(DiagnosticCollectorTest, TextEndsWithWhatWasNotKept) {
    DiagnosticCollector collector(false, 0);
    collector.Report(Of(Rule::IdTwice, Severity::Warning));
    std::ostringstream out;
    WriteText(out, collector);
    EXPECT_EQ(out.str(), "... and 1 more of ODX0302: an ID is used twice in one document\n");
}

TEST(DiagnosticCollectorTest, JsonDocumentHasDiagnosticsRestAndCounts) {
    DiagnosticCollector collector(false, 1);
    for (int i = 0; i < 3; ++i)
        collector.Report(Of(Rule::NothingToRead, Severity::Fatal));
    std::ostringstream out;
    WriteJson(out, collector);
    EXPECT_EQ(out.str(),
              "{\"diagnostics\":[\n"
              "{\"code\":\"ODX0103\",\"severity\":\"fatal\",\"file\":\"\",\"line\":0,\"column\":0,\"path\":\"\","
              "\"message\":\"no ODX document was found in the inputs\",\"outcome\":\"\","
              "\"advice\":\"Give a PDX archive, an ODX document or a folder that holds some.\"}],\n"
              "\"notListed\":[\n{\"code\":\"ODX0103\",\"count\":2}],\n"
              "\"counts\":{\"info\":0,\"warning\":0,\"error\":0,\"fatal\":3}}\n");
}

TEST(DiagnosticCollectorTest, JsonOfNothingIsStillADocument) {
    std::ostringstream out;
    WriteJson(out, DiagnosticCollector());
    EXPECT_EQ(out.str(), "{\"diagnostics\":[],\n\"notListed\":[],\n"
                         "\"counts\":{\"info\":0,\"warning\":0,\"error\":0,\"fatal\":0}}\n");
}
