#include "layers/LayerSet.h"

#include "support/Corpora.h"

#include <gtest/gtest.h>

using OdxImport::Category;
using OdxTests::TextCorpus;

namespace {

struct LayerText {
    std::string kind;
    std::string name;
    std::vector<std::string> services; ///< SHORT-NAMEs
    std::string parents;               ///< PARENT-REF elements
};

std::string Parent(const std::string& name, const std::vector<std::string>& excluded = {}) {
    std::string xml = "<PARENT-REF ID-REF='l." + name + "'>";
    if (!excluded.empty()) {
        xml += "<NOT-INHERITED-DIAG-COMMS>";
        for (const std::string& service : excluded)
            xml += "<NOT-INHERITED-DIAG-COMM><DIAG-COMM-SNREF SHORT-NAME='" + service + "'/></NOT-INHERITED-DIAG-COMM>";
        xml += "</NOT-INHERITED-DIAG-COMMS>";
    }
    return xml + "</PARENT-REF>";
}

std::string Xml(const LayerText& layer) {
    std::string xml = "<" + layer.kind + "S><" + layer.kind + " ID='l." + layer.name + "'><SHORT-NAME>" + layer.name +
                      "</SHORT-NAME><DIAG-COMMS>";
    for (const std::string& service : layer.services)
        xml += "<DIAG-SERVICE ID='" + layer.name + "." + service + "'><SHORT-NAME>" + service +
               "</SHORT-NAME></DIAG-SERVICE>";
    return xml + "</DIAG-COMMS><PARENT-REFS>" + layer.parents + "</PARENT-REFS></" + layer.kind + "></" + layer.kind +
           "S>";
}

/// IDs of the services that the layer has or inherits, own ones first.
std::string Services(TextCorpus& corpus, std::string_view layer) {
    std::string ids;
    const auto& objects = corpus.corpus.Layers().Effective(corpus.Layer(layer), Category::DiagComm);
    objects.ForEach([&](const OdxImport::ObjectTable::Entry& entry) {
        ids.append(ids.empty() ? "" : " ").append(entry.value.element.Attribute("ID"));
        return true;
    });
    return ids;
}

void Add(TextCorpus& corpus, const std::vector<LayerText>& layers) {
    std::string xml;
    for (const LayerText& layer : layers)
        xml += Xml(layer);
    corpus.AddContainer("C", xml);
    corpus.Connect();
}

} // namespace

TEST(InheritanceTest, ObjectsComeDownThroughAllKindsOfLayers) {
    TextCorpus corpus;
    Add(corpus, {{"PROTOCOL", "P", {"a"}, ""},
                 {"FUNCTIONAL-GROUP", "F", {"b"}, Parent("P")},
                 {"BASE-VARIANT", "B", {"c"}, Parent("F")},
                 {"ECU-VARIANT", "E", {"d"}, Parent("B")}});
    EXPECT_EQ(Services(corpus, "E"), "E.d B.c F.b P.a");
    EXPECT_EQ(Services(corpus, "P"), "P.a");
    EXPECT_EQ(corpus.Codes(), "");
}

TEST(InheritanceTest, AnOwnObjectOverridesTheInheritedOneOfItsName) {
    TextCorpus corpus;
    Add(corpus, {{"PROTOCOL", "P", {"a", "b"}, ""}, {"BASE-VARIANT", "B", {"a"}, Parent("P")}});
    EXPECT_EQ(Services(corpus, "B"), "B.a P.b");
    EXPECT_EQ(corpus.Codes(), "");
}

TEST(InheritanceTest, ExcludedObjectsAreNotInheritedNorHandedOn) {
    TextCorpus corpus;
    Add(corpus, {{"PROTOCOL", "P", {"a", "b"}, ""},
                 {"BASE-VARIANT", "B", {}, Parent("P", {"a"})},
                 {"ECU-VARIANT", "E", {}, Parent("B")}});
    EXPECT_EQ(Services(corpus, "E"), "P.b");
    EXPECT_EQ(corpus.Codes(), "");
}

TEST(InheritanceTest, ExcludingWhatTheParentDoesNotHaveIsTold) {
    TextCorpus corpus;
    Add(corpus, {{"PROTOCOL", "P", {"a"}, ""}, {"BASE-VARIANT", "B", {}, Parent("P", {"x"})}});
    EXPECT_EQ(Services(corpus, "B"), "P.a");
    EXPECT_EQ(corpus.Codes(), "ODX0405");
}

TEST(InheritanceTest, TheParentOfTheHigherRankWinsWhateverTheOrder) {
    for (const std::string& parents : {Parent("P") + Parent("F"), Parent("F") + Parent("P")}) {
        TextCorpus corpus;
        Add(corpus,
            {{"PROTOCOL", "P", {"a"}, ""}, {"FUNCTIONAL-GROUP", "F", {"a"}, ""}, {"BASE-VARIANT", "B", {}, parents}});
        EXPECT_EQ(Services(corpus, "B"), "F.a");
        EXPECT_EQ(corpus.Codes(), "");
    }
}

TEST(InheritanceTest, SharedDataRankAboveAllOtherParents) {
    TextCorpus corpus;
    Add(corpus, {{"ECU-SHARED-DATA", "S", {"a"}, ""},
                 {"BASE-VARIANT", "B", {"a", "b"}, ""},
                 {"ECU-VARIANT", "E", {"b"}, Parent("B") + Parent("S")}});
    EXPECT_EQ(Services(corpus, "E"), "E.b S.a");
}

TEST(InheritanceTest, TwoParentsOfOneRankWithOneNameAreAmbiguousAndTheFirstWins) {
    TextCorpus corpus;
    Add(corpus, {{"PROTOCOL", "P", {"a"}, ""},
                 {"PROTOCOL", "Q", {"a"}, ""},
                 {"BASE-VARIANT", "B", {}, Parent("P") + Parent("Q")}});
    EXPECT_EQ(Services(corpus, "B"), "P.a");
    EXPECT_EQ(corpus.Codes(), "ODX0404");
}

TEST(InheritanceTest, AnOwnObjectSettlesAnAmbiguity) {
    TextCorpus corpus;
    Add(corpus, {{"PROTOCOL", "P", {"a"}, ""},
                 {"PROTOCOL", "Q", {"a"}, ""},
                 {"BASE-VARIANT", "B", {"a"}, Parent("P") + Parent("Q")}});
    EXPECT_EQ(Services(corpus, "B"), "B.a");
    EXPECT_EQ(corpus.Codes(), "");
}

TEST(InheritanceTest, TheSameObjectOverTwoWaysIsNotAmbiguous) {
    TextCorpus corpus;
    Add(corpus, {{"PROTOCOL", "P", {"a"}, ""},
                 {"FUNCTIONAL-GROUP", "F", {}, Parent("P")},
                 {"FUNCTIONAL-GROUP", "G", {}, Parent("P")},
                 {"BASE-VARIANT", "B", {}, Parent("F") + Parent("G")}});
    EXPECT_EQ(Services(corpus, "B"), "P.a");
    EXPECT_EQ(corpus.Codes(), "");
}

TEST(InheritanceTest, AChainOfDiamondsIsWalkedOnceAndNotOncePerWay) {
    std::vector<LayerText> layers{{"PROTOCOL", "P0", {"a"}, ""}};
    for (int i = 1; i <= 60; ++i)
        layers.push_back({"PROTOCOL",
                          "P" + std::to_string(i),
                          {},
                          Parent("P" + std::to_string(i - 1)) + Parent("P" + std::to_string(i - 1))});
    TextCorpus corpus;
    Add(corpus, layers);
    EXPECT_EQ(Services(corpus, "P60"), "P0.a");
}

TEST(InheritanceTest, CirclesAreCutAndReportedOnce) {
    TextCorpus corpus;
    Add(corpus, {{"PROTOCOL", "P", {"a"}, Parent("Q")},
                 {"PROTOCOL", "Q", {"b"}, Parent("P")},
                 {"PROTOCOL", "R", {}, Parent("R")}});
    EXPECT_EQ(corpus.Codes(), "ODX0401 ODX0401");
    EXPECT_EQ(Services(corpus, "P"), "P.a Q.b");
    EXPECT_EQ(Services(corpus, "Q"), "Q.b");
}

TEST(InheritanceTest, ALayerCannotInheritFromAMoreSpecialKind) {
    TextCorpus corpus;
    Add(corpus, {{"BASE-VARIANT", "B", {"a"}, ""}, {"FUNCTIONAL-GROUP", "F", {}, Parent("B")}});
    EXPECT_EQ(corpus.Codes(), "ODX0402");
    EXPECT_EQ(Services(corpus, "F"), "");
}

TEST(InheritanceTest, AMissingParentIsReported) {
    TextCorpus corpus;
    Add(corpus, {{"BASE-VARIANT", "B", {"a"}, Parent("gone")}});
    EXPECT_EQ(corpus.Codes(), "ODX0403");
    EXPECT_EQ(Services(corpus, "B"), "B.a");
}

TEST(InheritanceTest, OfTwoOwnObjectsOfOneNameBothAreThereAndTheFirstIsFound) {
    TextCorpus corpus;
    corpus.AddContainer(
        "C", "<PROTOCOLS><PROTOCOL ID='p'><SHORT-NAME>P</SHORT-NAME><DIAG-COMMS>"
             "<DIAG-SERVICE ID='1'><SHORT-NAME>a</SHORT-NAME></DIAG-SERVICE>"
             "<DIAG-SERVICE ID='2'><SHORT-NAME>a</SHORT-NAME></DIAG-SERVICE></DIAG-COMMS></PROTOCOL></PROTOCOLS>");
    corpus.Connect();
    EXPECT_EQ(Services(corpus, "P"), "1 2");
    EXPECT_EQ(corpus.corpus.Layers().FindByName(corpus.Layer("P"), Category::DiagComm, "a").Attribute("ID"), "1");
    EXPECT_EQ(corpus.Codes(), "ODX0304");
}

TEST(InheritanceTest, ObjectsWithoutNameOrIdAreReportedAndNamedByTheirId) {
    TextCorpus corpus;
    corpus.AddContainer("C", "<PROTOCOLS><PROTOCOL ID='p'><SHORT-NAME>P</SHORT-NAME><DIAG-COMMS>"
                             "<DIAG-SERVICE ID='x'/><DIAG-SERVICE><SHORT-NAME>a</SHORT-NAME></DIAG-SERVICE>"
                             "</DIAG-COMMS></PROTOCOL></PROTOCOLS>");
    corpus.Connect();
    EXPECT_EQ(corpus.Codes(), "ODX0303 ODX0301");
    EXPECT_TRUE(corpus.corpus.Layers().FindByName(corpus.Layer("P"), Category::DiagComm, "x"));
}

TEST(InheritanceTest, AReferenceAmongTheServicesMakesTheOtherLayersServiceAnOwnOne) {
    TextCorpus corpus;
    corpus.AddContainer("C",
                        "<ECU-SHARED-DATAS><ECU-SHARED-DATA ID='s'><SHORT-NAME>S</SHORT-NAME><DIAG-COMMS>"
                        "<DIAG-SERVICE ID='x'><SHORT-NAME>a</SHORT-NAME></DIAG-SERVICE></DIAG-COMMS></ECU-SHARED-DATA>"
                        "</ECU-SHARED-DATAS><BASE-VARIANTS><BASE-VARIANT ID='b'><SHORT-NAME>B</SHORT-NAME><DIAG-COMMS>"
                        "<DIAG-COMM-REF ID-REF='x'/></DIAG-COMMS></BASE-VARIANT></BASE-VARIANTS>");
    corpus.Connect();
    EXPECT_EQ(Services(corpus, "B"), "x");
}

TEST(InheritanceTest, AnEcuVariantLooksThroughToItsBaseVariant) {
    TextCorpus corpus;
    Add(corpus, {{"ECU-SHARED-DATA", "S", {"a", "shared"}, ""},
                 {"FUNCTIONAL-GROUP", "F", {"b", "group"}, ""},
                 {"BASE-VARIANT", "B", {"a", "b", "c", "d"}, ""},
                 {"ECU-VARIANT", "V", {"d", "own"}, Parent("B", {"c"}) + Parent("F") + Parent("S")}});
    EXPECT_EQ(Services(corpus, "V"), "V.d V.own S.a S.shared B.b F.group");
    const auto idOf = [&](const char* name) {
        return std::string(
            corpus.corpus.Layers().FindByName(corpus.Layer("V"), Category::DiagComm, name).Attribute("ID"));
    };
    EXPECT_EQ(idOf("a"), "S.a");
    EXPECT_EQ(idOf("b"), "B.b");
    EXPECT_EQ(idOf("c"), "");
    EXPECT_EQ(idOf("group"), "F.group");
    EXPECT_EQ(corpus.Codes(), "");
}

TEST(InheritanceTest, OfTwoBaseVariantsWithOneNameTheFirstWinsAndItIsTold) {
    TextCorpus corpus;
    Add(corpus, {{"BASE-VARIANT", "B", {"a", "b"}, ""},
                 {"BASE-VARIANT", "C", {"a", "b", "c"}, ""},
                 {"ECU-VARIANT", "V", {"b"}, Parent("B") + Parent("C")}});
    EXPECT_EQ(Services(corpus, "V"), "V.b B.a C.c");
    EXPECT_EQ(corpus.Codes(), "ODX0411 ODX0404");
}

TEST(InheritanceTest, ManyVariantsOfALargeBaseDoNotMultiplyIt) {
    TextCorpus corpus;
    std::vector<LayerText> layers{{"BASE-VARIANT", "B", {"a", "b", "c"}, ""}};
    for (int i = 0; i < 3; ++i)
        layers.push_back({"ECU-VARIANT", "V" + std::to_string(i), {"own"}, Parent("B")});
    Add(corpus, layers);
    for (int i = 0; i < 3; ++i) {
        auto& variant = corpus.Layer("V" + std::to_string(i));
        EXPECT_EQ(corpus.corpus.Layers().Effective(variant, Category::DiagComm).Near().Entries().size(), 1u);
    }
}

TEST(InheritanceTest, LayersOfOneNameAreReportedWhateverTheirKind) {
    TextCorpus corpus;
    corpus.AddContainer("C", Xml({"PROTOCOL", "P", {}, ""}));
    corpus.AddContainer("D", Xml({"ECU-SHARED-DATA", "P", {}, ""}));
    corpus.Connect();
    ASSERT_EQ(corpus.Codes(), "ODX0304");
    EXPECT_EQ(corpus.diagnostics.Kept()[0].message,
              "ECU-SHARED-DATA \"P\" has the name of the PROTOCOL in line 1 of doc1.odx");
    EXPECT_EQ(corpus.diagnostics.Kept()[0].where.file, "doc2.odx");
}

TEST(InheritanceTest, ManyLinksThatCloseCirclesAreAllCut) {
    std::string links;
    for (int i = 0; i < 100; ++i)
        links += Parent("P") + Parent("Q");
    TextCorpus corpus;
    Add(corpus, {{"PROTOCOL", "P", {"a"}, links}, {"PROTOCOL", "Q", {"b"}, Parent("P")}});
    EXPECT_EQ(corpus.diagnostics.Count(OdxImport::Rule::ParentCycle), 101u);
    EXPECT_EQ(corpus.Layer("P").parents.size(), 100u);
    EXPECT_EQ(Services(corpus, "P"), "P.a Q.b");
    EXPECT_EQ(Services(corpus, "Q"), "Q.b");
}
