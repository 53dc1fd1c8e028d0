#include "links/LinkIndex.h"

#include "support/Corpora.h"

#include <gtest/gtest.h>

using OdxImport::Element;
using OdxTests::TextCorpus;

namespace {

/// The ID of the element in which the followed link ends; "" for none.
std::string TargetOf(TextCorpus& corpus, std::string_view link) {
    const Element target = corpus.corpus.Links().Follow(corpus.ById(link).FirstChild());
    return target ? std::string(target.ShortName()) : "";
}

std::string Layer(std::string_view name, std::string_view content, std::string_view kind = "PROTOCOL") {
    std::string tag(kind);
    return "<" + tag + "S><" + tag + " ID='l." + std::string(name) + "'><SHORT-NAME>" + std::string(name) +
           "</SHORT-NAME>" + std::string(content) + "</" + tag + "></" + tag + "S>";
}

std::string Named(std::string_view id, std::string_view name) {
    return "<X ID='" + std::string(id) + "'><SHORT-NAME>" + std::string(name) + "</SHORT-NAME></X>";
}

} // namespace

TEST(LinkIndexTest, AnIdIsFoundInTheSameLayerThenInTheSameContainer) {
    TextCorpus corpus;
    corpus.AddContainer("C", Named("shared", "OfContainer") +
                                 Layer("P", Named("own", "Own") + "<L ID='a'><R ID-REF='own'/></L>"
                                                                  "<L ID='b'><R ID-REF='shared'/></L>"
                                                                  "<L ID='c'><R ID-REF='other'/></L>") +
                                 Layer("Q", Named("other", "OfOtherLayer")));
    EXPECT_EQ(TargetOf(corpus, "a"), "Own");
    EXPECT_EQ(TargetOf(corpus, "b"), "OfContainer");
    EXPECT_EQ(TargetOf(corpus, "c"), "OfOtherLayer");
    EXPECT_EQ(corpus.Codes(), "");
}

TEST(LinkIndexTest, WhereTwoLayersOfAFileHaveAnIdEachFindsItsOwn) {
    TextCorpus corpus;
    corpus.AddContainer("C", Layer("P", Named("x", "OfP") + "<L ID='a'><R ID-REF='x'/></L>") +
                                 Layer("Q", Named("x", "OfQ") + "<L ID='b'><R ID-REF='x'/></L>"));
    EXPECT_EQ(TargetOf(corpus, "a"), "OfP");
    EXPECT_EQ(TargetOf(corpus, "b"), "OfQ");
    EXPECT_EQ(corpus.Codes(), "");
}

TEST(LinkIndexTest, DocrefAndDoctypeLeadIntoOtherDocuments) {
    TextCorpus corpus;
    corpus.AddContainer("C", Layer("P", Named("x", "OfP")));
    corpus.AddContainer("D", Layer("Q", Named("x", "OfQ")));
    corpus.AddContainer("E", Layer("R", "<L ID='a'><R ID-REF='x' DOCREF='Q' DOCTYPE='LAYER'/></L>"
                                        "<L ID='b'><R ID-REF='x' DOCREF='C' DOCTYPE='CONTAINER'/></L>"));
    EXPECT_EQ(TargetOf(corpus, "a"), "OfQ");
    EXPECT_EQ(TargetOf(corpus, "b"), "OfP");
    EXPECT_EQ(corpus.Codes(), "");
}

TEST(LinkIndexTest, AnUnknownDocrefIsReportedAndTheIdUsedAlone) {
    TextCorpus corpus;
    corpus.AddContainer("C",
                        Layer("P", Named("x", "OfP") + "<L ID='a'><R ID-REF='x' DOCREF='Gone' DOCTYPE='LAYER'/></L>"));
    EXPECT_EQ(TargetOf(corpus, "a"), "OfP");
    EXPECT_EQ(corpus.Codes(), "ODX0308");
}

TEST(LinkIndexTest, ADocrefWithAWrongDoctypeOrNoneStillChoosesTheDocument) {
    TextCorpus corpus;
    corpus.AddContainer("C", Layer("P", Named("x", "OfP")));
    corpus.AddContainer("D", Layer("Q", Named("x", "OfQ") + Named("y", "Only")));
    corpus.AddContainer("E", Layer("R", "<L ID='a'><R ID-REF='x' DOCREF='D' DOCTYPE='LAYER'/></L>"
                                        "<L ID='b'><R ID-REF='x' DOCREF='Q'/></L>"
                                        "<L ID='c'><R ID-REF='x' DOCREF='Gone' DOCTYPE='LAYER'/></L>"
                                        "<L ID='d'><R ID-REF='y' DOCREF='C' DOCTYPE='LAYER'/></L>"));
    EXPECT_EQ(TargetOf(corpus, "a"), "OfQ");
    EXPECT_EQ(corpus.corpus.Links().Peek(corpus.ById("a").FirstChild()).ShortName(), "OfQ");
    EXPECT_EQ(TargetOf(corpus, "b"), "OfQ");
    EXPECT_EQ(corpus.Codes(), "ODX0308 ODX0308");
    EXPECT_EQ(TargetOf(corpus, "c"), "OfP");
    EXPECT_EQ(TargetOf(corpus, "d"), "Only");
    EXPECT_EQ(corpus.Codes(), "ODX0308 ODX0308 ODX0306 ODX0308");
}

TEST(LinkIndexTest, ALinkWithoutDocrefIntoAnotherDocumentIsReported) {
    TextCorpus corpus;
    corpus.AddContainer("C", Layer("P", Named("x", "OfP")));
    corpus.AddContainer("D", Layer("Q", "<L ID='a'><R ID-REF='x'/></L>"));
    EXPECT_EQ(TargetOf(corpus, "a"), "OfP");
    EXPECT_EQ(corpus.Codes(), "ODX0311");
}

TEST(LinkIndexTest, ALinkThatFitsSeveralDocumentsIsAmbiguousAndTakesTheFirst) {
    TextCorpus corpus;
    corpus.AddContainer("C", Layer("P", Named("x", "OfP")));
    corpus.AddContainer("D", Layer("Q", Named("x", "OfQ")));
    corpus.AddContainer("E", Layer("R", "<L ID='a'><R ID-REF='x'/></L>"));
    EXPECT_EQ(TargetOf(corpus, "a"), "OfP");
    EXPECT_EQ(corpus.Codes(), "ODX0306");
}

TEST(LinkIndexTest, LinksThatLeadNowhereOrNameNothingAreReported) {
    TextCorpus corpus;
    corpus.AddContainer("C", Layer("P", "<L ID='a'><R ID-REF='gone'/></L><L ID='b'><R/></L>"));
    EXPECT_EQ(TargetOf(corpus, "a"), "");
    EXPECT_EQ(TargetOf(corpus, "b"), "");
    EXPECT_EQ(corpus.Codes(), "ODX0305 ODX0310");
    EXPECT_EQ(corpus.diagnostics.Kept()[0].where.path, "/C/P");
}

TEST(LinkIndexTest, AnIdUsedTwiceInALayerLeadsToTheFirstAndIsReported) {
    TextCorpus corpus;
    corpus.AddContainer("C", Layer("P", Named("x", "First") + Named("x", "Second") + "<L ID='a'><R ID-REF='x'/></L>"));
    EXPECT_EQ(TargetOf(corpus, "a"), "First");
    EXPECT_EQ(corpus.Codes(), "ODX0302");
}

TEST(LinkIndexTest, ImportedLayersAreSearchedWithoutDocref) {
    TextCorpus corpus;
    corpus.AddContainer("C", Layer("S", Named("x", "Shared"), "ECU-SHARED-DATA"));
    corpus.AddContainer("D",
                        Layer("P", "<IMPORT-REFS><IMPORT-REF ID-REF='l.S' DOCREF='S' DOCTYPE='LAYER'/></IMPORT-REFS>"
                                   "<L ID='a'><R ID-REF='x'/></L>"));
    corpus.Connect();
    EXPECT_EQ(TargetOf(corpus, "a"), "Shared");
    EXPECT_EQ(corpus.Codes(), "");
}

TEST(LinkIndexTest, OfLayersOfOneNameEachIsLookedIn) {
    TextCorpus corpus;
    corpus.AddContainer("C", Layer("P", Named("x", "First")));
    corpus.AddContainer("D", Layer("P", Named("y", "OfSecond"), "ECU-SHARED-DATA"));
    corpus.AddContainer("E", Layer("R", "<L ID='a'><R ID-REF='x' DOCREF='P' DOCTYPE='LAYER'/></L>"
                                        "<L ID='b'><R ID-REF='y' DOCREF='P' DOCTYPE='LAYER'/></L>"));
    EXPECT_EQ(TargetOf(corpus, "a"), "First");
    EXPECT_EQ(TargetOf(corpus, "b"), "OfSecond");
    EXPECT_EQ(corpus.corpus.Links().Peek(corpus.ById("b").FirstChild()).ShortName(), "OfSecond");
    EXPECT_EQ(corpus.Codes(), "");
}

TEST(LinkIndexTest, ADocrefThatFitsSeveralLayersWithTheIdIsAmbiguousAndTakesTheFirst) {
    TextCorpus corpus;
    corpus.AddContainer("C", Layer("P", Named("x", "First")));
    corpus.AddContainer("D", Layer("P", Named("x", "Second")));
    corpus.AddContainer("E", Layer("R", "<L ID='a'><R ID-REF='x' DOCREF='P' DOCTYPE='LAYER'/></L>"));
    EXPECT_EQ(TargetOf(corpus, "a"), "First");
    EXPECT_EQ(corpus.Codes(), "ODX0306");
    EXPECT_EQ(corpus.diagnostics.Kept()[0].message, "R to \"x\" in LAYER \"P\" leads to /C/P/First in doc1.odx");
}

TEST(LinkIndexTest, OfLayersOfOneNameTheOwnOneComesFirstThenThoseOfTheFile) {
    TextCorpus corpus;
    corpus.AddContainer("C", Layer("P", Named("x", "Other")));
    corpus.AddContainer("D",
                        Layer("P", Named("x", "Own") + "<L ID='a'><R ID-REF='x' DOCREF='P' DOCTYPE='LAYER'/></L>") +
                            Layer("Q", "<L ID='b'><R ID-REF='x' DOCREF='P' DOCTYPE='LAYER'/></L>"));
    EXPECT_EQ(TargetOf(corpus, "a"), "Own");
    EXPECT_EQ(TargetOf(corpus, "b"), "Own");
    EXPECT_EQ(corpus.Codes(), "");
}

TEST(LinkIndexTest, TheTypeOfAParentLinkTellsLayersOfOneNameApart) {
    const std::string link = "<PARENT-REF xsi:type='PROTOCOL-REF' ID-REF='l.P' DOCREF='P' DOCTYPE='LAYER'/>";
    TextCorpus corpus;
    corpus.AddContainer("C", Layer("P", "<L ID='a'>" + link + "</L>", "BASE-VARIANT"));
    corpus.AddContainer("D", Layer("P", Named("x", "X")));
    EXPECT_EQ(corpus.corpus.Links().Follow(corpus.ById("a").FirstChild()).Tag(), "PROTOCOL");
    EXPECT_EQ(corpus.Codes(), "");
}

TEST(LinkIndexTest, WhiteSpaceAroundAnIdIsNoPartOfIt) {
    TextCorpus corpus;
    corpus.AddContainer("C",
                        Layer("P", Named("  x ", "X") + "<L ID='a'><R ID-REF='x'/></L>"
                                                        "<L ID='b'><R ID-REF=' x' DOCREF=' P ' DOCTYPE='LAYER'/></L>"));
    EXPECT_EQ(TargetOf(corpus, "a"), "X");
    EXPECT_EQ(TargetOf(corpus, "b"), "X");
    EXPECT_EQ(corpus.Codes(), "");
}
