#include "support/Imports.h"

#include <gtest/gtest.h>

#include <algorithm>

using OdxTests::BaseVariant;
using OdxTests::Imported;
using OdxTests::TemporaryFile;

namespace {

std::string Dtc(const std::string& name, int number, const std::string& id) {
    return "<DTC ID='dtc." + id + "'><SHORT-NAME>" + name + "</SHORT-NAME><TROUBLE-CODE>" + std::to_string(number) +
           "</TROUBLE-CODE><TEXT>t</TEXT></DTC>";
}

std::string Link(const std::string& target, const std::string& excluded = {}) {
    std::string xml = "<LINKED-DTC-DOP>";
    if (!excluded.empty())
        xml += "<NOT-INHERITED-DTC-SNREFS><NOT-INHERITED-DTC-SNREF SHORT-NAME='" + excluded +
               "'/></NOT-INHERITED-DTC-SNREFS>";
    return xml + "<DTC-DOP-REF ID-REF='" + target + "'/></LINKED-DTC-DOP>";
}

std::string DtcDop(const std::string& id, const std::string& dtcs, const std::string& links) {
    return "<DTC-DOP ID='" + id + "'><SHORT-NAME>" + id +
           "</SHORT-NAME><DIAG-CODED-TYPE xsi:type='STANDARD-LENGTH-TYPE' BASE-DATA-TYPE='A_UINT32'>"
           "<BIT-LENGTH>24</BIT-LENGTH></DIAG-CODED-TYPE><DTCS>" +
           dtcs + "</DTCS><LINKED-DTC-DOPS>" + links + "</LINKED-DTC-DOPS></DTC-DOP>";
}

/// The codes of every collection, "A: 1 2; B: 3".
std::string CodesOf(const std::string& dtcDops, const std::string& diagnostics = "") {
    const TemporaryFile file("b.odx-d", BaseVariant("<DIAG-DATA-DICTIONARY-SPEC><DTC-DOPS>" + dtcDops +
                                                    "</DTC-DOPS></DIAG-DATA-DICTIONARY-SPEC>"));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), diagnostics);
    std::string text;
    for (ImportDame::VTroubleCodeCollection& codes : imported.document.TroubleCodeCollectionCollection()) {
        const std::wstring name = codes.GetSourceName();
        text += (text.empty() ? "" : "; ") + std::string(name.begin(), name.end()) + ":";
        for (ImportDame::VTroubleCode& code : codes)
            text += " " + std::to_string(code.GetCode());
    }
    return text;
}

} // namespace

TEST(LinkedCodesTest, CodesComeFromHoweverManyStepsAway) {
    EXPECT_EQ(CodesOf(DtcDop("A", Dtc("a", 1, "a"), Link("B")) + DtcDop("B", Dtc("b", 2, "b"), Link("C")) +
                      DtcDop("C", Dtc("c", 3, "c"), "")),
              "A: 1 2 3; B: 2 3; C: 3");
}

TEST(LinkedCodesTest, AnExclusionHoldsForAllThatComesThroughItsLink) {
    EXPECT_EQ(CodesOf(DtcDop("A", "", Link("B", "c")) + DtcDop("B", Dtc("b", 2, "b"), Link("C")) +
                      DtcDop("C", Dtc("c", 3, "c"), "")),
              "A: 2; B: 2 3; C: 3");
}

TEST(LinkedCodesTest, AnExclusionHoldsForItsOwnLinkOnly) {
    const std::string b = DtcDop("B", Dtc("b1", 11, "b1") + Dtc("b2", 12, "b2"), "");
    EXPECT_EQ(CodesOf(DtcDop("A", Dtc("a", 1, "a"), Link("B", "b1") + Link("C")) + b +
                      DtcDop("C", Dtc("c", 21, "c"), Link("B"))),
              "A: 1 12 21 11; B: 11 12; C: 21 11 12");
    EXPECT_EQ(CodesOf(DtcDop("A", "", Link("B", "b1") + Link("B", "b2")) + b), "A: 12 11; B: 11 12");
    EXPECT_EQ(CodesOf(DtcDop("A", "", Link("B", "b1") + Link("C", "b1")) + b + DtcDop("C", "", Link("B"))),
              "A: 12; B: 11 12; C: 11 12");
}

TEST(LinkedCodesTest, AnOwnCodeComesBeforeALinkedOneOfItsName) {
    EXPECT_EQ(CodesOf(DtcDop("A", Dtc("x", 1, "a"), Link("B")) + DtcDop("B", Dtc("x", 2, "b"), "")), "A: 1; B: 2");
}

TEST(LinkedCodesTest, CodesOfOneNameThroughSeveralLinksAreReported) {
    const std::string c = DtcDop("C", Dtc("same", 21, "c"), "");
    EXPECT_EQ(CodesOf(DtcDop("A", "", Link("B") + Link("C")) + DtcDop("B", Dtc("same", 11, "b"), "") + c, "ODX0404"),
              "A: 11; B: 11; C: 21");
    EXPECT_EQ(CodesOf(DtcDop("A", "", Link("B") + Link("C")) + DtcDop("B", Dtc("same", 21, "b"), "") + c),
              "A: 21; B: 21; C: 21");
    EXPECT_EQ(CodesOf(DtcDop("A", "", Link("B")) + DtcDop("B", Dtc("same", 11, "b"), Link("C")) + c),
              "A: 11; B: 11; C: 21"); // B overrides it
}

TEST(LinkedCodesTest, AnExclusionOfWhatTheLinkDoesNotHaveIsReportedOnce) {
    EXPECT_EQ(
        CodesOf(DtcDop("A", "", Link("B")) + DtcDop("B", "", Link("C", "none")) + DtcDop("C", Dtc("c", 3, "c"), ""),
                "ODX0405"),
        "A: 3; B: 3; C: 3");
    EXPECT_EQ(CodesOf(DtcDop("A", "", Link("B", "c")) + DtcDop("B", "", Link("C")) + DtcDop("C", Dtc("c", 3, "c"), "")),
              "A:; B: 3; C: 3");
}

TEST(LinkedCodesTest, CodesOfOneNameInOneDtcDopAreReportedAndBothTaken) {
    EXPECT_EQ(CodesOf(DtcDop("A", "", Link("B")) + DtcDop("B", Dtc("x", 5, "b1") + Dtc("x", 6, "b2"), ""), "ODX0304"),
              "A: 5 6; B: 5 6");
}

TEST(LinkedCodesTest, CodesWithoutNamesAreReportedAndAllTaken) {
    const std::string plain = "<DTC><TROUBLE-CODE>4</TROUBLE-CODE></DTC>",
                      other = "<DTC ID='o'><TROUBLE-CODE>5</TROUBLE-CODE><TEXT>t</TEXT></DTC>";
    EXPECT_EQ(CodesOf(DtcDop("A", "", Link("B")) + DtcDop("B", plain + other, ""), "ODX0303 ODX0301 ODX0509 ODX0303"),
              "A: 4 5; B: 4 5");
}

TEST(LinkedCodesTest, WhatIsReachedOnTwoWaysIsTakenOnce) {
    EXPECT_EQ(CodesOf(DtcDop("A", "", Link("B") + Link("C")) + DtcDop("B", "", Link("D")) + DtcDop("C", "", Link("D")) +
                      DtcDop("D", Dtc("d", 4, "d"), "")),
              "A: 4; B: 4; C: 4; D: 4");
}

TEST(LinkedCodesTest, ACircleIsReportedOnceAndCut) {
    EXPECT_EQ(CodesOf(DtcDop("A", Dtc("a", 1, "a"), Link("B")) + DtcDop("B", Dtc("b", 2, "b"), Link("A")), "ODX0607"),
              "A: 1 2; B: 2 1");
    EXPECT_EQ(CodesOf(DtcDop("A", Dtc("a", 1, "a"), Link("A")), "ODX0607"), "A: 1");
}

TEST(LinkedCodesTest, ALinkToAnotherKindIsReportedOnce) {
    EXPECT_EQ(CodesOf(DtcDop("A", "", Link("B")) + DtcDop("B", Dtc("b", 2, "b"), Link("dtc.b")), "ODX0307"),
              "A: 2; B: 2");
}

TEST(LinkedCodesTest, WhatLiesInACircleHasAllCodesOfIt) {
    EXPECT_EQ(CodesOf(DtcDop("A", Dtc("a", 1, "a"), Link("B") + Link("C")) + DtcDop("B", Dtc("b", 2, "b"), Link("C")) +
                          DtcDop("C", Dtc("c", 3, "c"), Link("B")),
                      "ODX0607"),
              "A: 1 2 3; B: 2 3; C: 3 2");
}

TEST(LinkedCodesTest, ManyWaysWithExclusionsAreWalkedOnce) {
    constexpr int count = 60;
    std::string dtcDops, unknown;
    for (int i = 0; i < count; ++i) {
        const std::string name = std::to_string(i), next = "D" + std::to_string(i + 1);
        const int excluded = count - 1 - i; // comes through the second link
        dtcDops += DtcDop("D" + name, Dtc("t" + name, i, name),
                          i == count - 1 ? "" : Link(next, "t" + std::to_string(excluded)) + Link(next, "t59"));
        if (i < count - 1 && excluded <= i)
            unknown += (unknown.empty() ? "" : " ") + std::string("ODX0405");
    }
    const std::string codes = CodesOf(dtcDops, unknown), first = codes.substr(0, codes.find(';'));
    EXPECT_EQ(std::count(first.begin(), first.end(), ' '), count - 1) << first; // both links exclude t59
}
