#include "support/Imports.h"

#include <gtest/gtest.h>

using OdxTests::BaseVariant;
using OdxTests::Imported;
using OdxTests::TemporaryFile;

namespace {

const std::string coded = "<DIAG-CODED-TYPE xsi:type='STANDARD-LENGTH-TYPE' BASE-DATA-TYPE='A_UINT32'>"
                          "<BIT-LENGTH>8</BIT-LENGTH></DIAG-CODED-TYPE>";

/// With `others` before it in the list.
std::string Dop(const std::string& more = {}, const std::string& others = {}) {
    return "<DATA-OBJECT-PROPS>" + others + "<DATA-OBJECT-PROP ID='dop'><SHORT-NAME>Dop</SHORT-NAME>" + coded + more +
           "</DATA-OBJECT-PROP></DATA-OBJECT-PROPS>";
}

std::string Structure(const std::string& params = {}) {
    return "<STRUCTURES><STRUCTURE ID='st'><SHORT-NAME>St</SHORT-NAME><PARAMS>" + params +
           "</PARAMS></STRUCTURE></STRUCTURES>";
}

std::string Param(const std::string& type, const std::string& more) {
    return "<PARAM ID='p' xsi:type='" + type + "'><SHORT-NAME>P</SHORT-NAME>" + more + "</PARAM>";
}

std::string Dictionary(const std::string& content) {
    return "<DIAG-DATA-DICTIONARY-SPEC>" + content + "</DIAG-DATA-DICTIONARY-SPEC>";
}

std::string Service(const std::string& more) {
    return "<DIAG-COMMS><DIAG-SERVICE ID='ds'><SHORT-NAME>S</SHORT-NAME><REQUEST-REF ID-REF='rq'/>" + more +
           "</DIAG-SERVICE></DIAG-COMMS><REQUESTS><REQUEST ID='rq'><SHORT-NAME>RQ</SHORT-NAME><PARAMS>"
           "<PARAM xsi:type='CODED-CONST'><SHORT-NAME>SID</SHORT-NAME><BYTE-POSITION>0</BYTE-POSITION>"
           "<CODED-VALUE>34</CODED-VALUE>" +
           coded + "</PARAM></PARAMS></REQUEST></REQUESTS>";
}

/// Codes of the diagnostics that a base variant with this content gives.
std::string CodesOf(const std::string& content) {
    const TemporaryFile file("b.odx-d", BaseVariant(content));
    Imported imported(file.Path());
    EXPECT_TRUE(imported.ledger.AddsUp());
    return imported.Codes();
}

std::string CodesOfDictionary(const std::string& content) {
    return CodesOf(Dictionary(content));
}

std::string Mux(const std::string& key, const std::string& content) {
    return "<MUXS><MUX ID='m'><SHORT-NAME>M</SHORT-NAME><BYTE-POSITION>1</BYTE-POSITION><SWITCH-KEY><BYTE-POSITION>0"
           "</BYTE-POSITION>" +
           key + "</SWITCH-KEY><CASES><CASE><SHORT-NAME>C</SHORT-NAME>" + content +
           "<LOWER-LIMIT>1</LOWER-LIMIT><UPPER-LIMIT>2</UPPER-LIMIT></CASE></CASES></MUX></MUXS>";
}

const std::string keyLink = "<DATA-OBJECT-PROP-REF ID-REF='dop'/>";

} // namespace

TEST(LinkKindsTest, ASwitchKeyNeedsASimpleDataObject) {
    EXPECT_EQ(CodesOfDictionary(Dop() + Structure() + Mux(keyLink, "")), "");
    EXPECT_EQ(CodesOfDictionary(Dop() + Structure() + Mux("<DATA-OBJECT-PROP-REF ID-REF='st'/>", "")), "ODX0307");
    EXPECT_EQ(CodesOfDictionary(Dop() + Structure() + Mux("<DATA-OBJECT-PROP-SNREF SHORT-NAME='St'/>", "")), "ODX0307");
}

TEST(LinkKindsTest, ACaseNeedsAStructure) {
    EXPECT_EQ(CodesOfDictionary(Dop() + Structure() + Mux(keyLink, "<STRUCTURE-REF ID-REF='st'/>")), "");
    EXPECT_EQ(CodesOfDictionary(Dop() + Structure() + Mux(keyLink, "<STRUCTURE-REF ID-REF='dop'/>")), "ODX0307");
}

TEST(LinkKindsTest, ALibraryLinkNeedsALibrary) {
    const auto codes = [](const char* target) {
        return CodesOf(
            Dictionary(Dop("<COMPU-METHOD><CATEGORY>COMPUCODE</CATEGORY><COMPU-INTERNAL-TO-PHYS><PROG-CODE>"
                           "<CODE-FILE>a.jar</CODE-FILE><SYNTAX>JAR</SYNTAX><REVISION>1</REVISION><LIBRARY-REFS>"
                           "<LIBRARY-REF ID-REF='" +
                           std::string(target) +
                           "'/></LIBRARY-REFS></PROG-CODE></COMPU-INTERNAL-TO-PHYS></COMPU-METHOD>")) +
            "<LIBRARYS><LIBRARY ID='lib'><SHORT-NAME>L</SHORT-NAME><CODE-FILE>l.jar</CODE-FILE></LIBRARY></LIBRARYS>");
    };
    EXPECT_EQ(codes("lib"), "");
    EXPECT_EQ(codes("dop"), "ODX0307");
}

TEST(LinkKindsTest, AParameterNeedsADataObject) {
    EXPECT_EQ(CodesOfDictionary(Dop() + Structure(Param("VALUE", "<DOP-REF ID-REF='dop'/>"))), "");
    EXPECT_EQ(CodesOfDictionary(Structure(Param("VALUE", "<DOP-REF ID-REF='p'/>"))), "ODX0307");
    EXPECT_EQ(CodesOf(Dictionary(Structure(Param("VALUE", "<DOP-REF ID-REF='rq'/>"))) + Service("")), "ODX0307");
}

TEST(LinkKindsTest, ALengthKeyLinkNeedsALengthKey) {
    const auto codes = [](const char* target, const char* type) {
        const std::string other =
            "<DATA-OBJECT-PROP ID='d2'><SHORT-NAME>D2</SHORT-NAME><DIAG-CODED-TYPE "
            "xsi:type='PARAM-LENGTH-INFO-TYPE' BASE-DATA-TYPE='A_BYTEFIELD'><LENGTH-KEY-REF ID-REF='" +
            std::string(target) + "'/></DIAG-CODED-TYPE></DATA-OBJECT-PROP>";
        return CodesOfDictionary(Dop("", other) + Structure(Param(type, "<DOP-REF ID-REF='dop'/>")));
    };
    EXPECT_EQ(codes("p", "LENGTH-KEY"), "");
    EXPECT_EQ(codes("p", "VALUE"), "ODX0307");
    EXPECT_EQ(codes("st", "LENGTH-KEY"), "ODX0307");
}

TEST(LinkKindsTest, AFieldNeedsAStructureAndASimpleObjectForItsCount) {
    const auto codes = [](const char* structure, const char* count) {
        return CodesOfDictionary(
            "<DYNAMIC-LENGTH-FIELDS><DYNAMIC-LENGTH-FIELD ID='f'><SHORT-NAME>F</SHORT-NAME><BASIC-STRUCTURE-REF "
            "ID-REF='" +
            std::string(structure) +
            "'/><OFFSET>1</OFFSET><DETERMINE-NUMBER-OF-ITEMS><BYTE-POSITION>0</BYTE-POSITION><DATA-OBJECT-PROP-REF "
            "ID-REF='" +
            count + "'/></DETERMINE-NUMBER-OF-ITEMS></DYNAMIC-LENGTH-FIELD></DYNAMIC-LENGTH-FIELDS>" + Dop() +
            Structure());
    };
    EXPECT_EQ(codes("st", "dop"), "");
    EXPECT_EQ(codes("dop", "dop"), "ODX0307");
    EXPECT_EQ(codes("st", "st"), "ODX0307");
}

TEST(LinkKindsTest, AnEndMarkerNeedsASimpleObject) {
    const auto codes = [](const char* marker) {
        return CodesOfDictionary("<DYNAMIC-ENDMARKER-FIELDS><DYNAMIC-ENDMARKER-FIELD ID='f'><SHORT-NAME>F</SHORT-NAME>"
                                 "<BASIC-STRUCTURE-REF ID-REF='st'/><DATA-OBJECT-PROP-REF ID-REF='" +
                                 std::string(marker) +
                                 "'><TERMINATION-VALUE>255</TERMINATION-VALUE></DATA-OBJECT-PROP-REF>"
                                 "</DYNAMIC-ENDMARKER-FIELD></DYNAMIC-ENDMARKER-FIELDS>" +
                                 Dop() + Structure());
    };
    EXPECT_EQ(codes("dop"), "");
    EXPECT_EQ(codes("st"), "ODX0307");
}

TEST(LinkKindsTest, ATableNeedsASimpleKey) {
    const auto codes = [](const char* key) {
        return CodesOfDictionary("<TABLES><TABLE ID='t'><SHORT-NAME>T</SHORT-NAME><KEY-DOP-REF ID-REF='" +
                                 std::string(key) + "'/></TABLE></TABLES>" + Dop() + Structure());
    };
    EXPECT_EQ(codes("dop"), "");
    EXPECT_EQ(codes("st"), "ODX0307");
}

TEST(LinkKindsTest, AServiceNeedsARequestResponsesAndFunctionalClassesOfTheirKind) {
    EXPECT_EQ(CodesOf(Service("<FUNCT-CLASS-REFS><FUNCT-CLASS-REF ID-REF='rq'/></FUNCT-CLASS-REFS>")), "ODX0307");
    EXPECT_EQ(CodesOf(Service("<POS-RESPONSE-REFS><POS-RESPONSE-REF ID-REF='nr'/></POS-RESPONSE-REFS>") +
                      "<NEG-RESPONSES><NEG-RESPONSE ID='nr'><SHORT-NAME>N</SHORT-NAME></NEG-RESPONSE></NEG-RESPONSES>"),
              "ODX0307");
    EXPECT_EQ(CodesOf("<DIAG-COMMS><DIAG-SERVICE ID='ds'><SHORT-NAME>S</SHORT-NAME><REQUEST-REF ID-REF='ds'/>"
                      "</DIAG-SERVICE></DIAG-COMMS>"),
              "ODX0307 ODX0701");
}

TEST(LinkKindsTest, ALinkedServiceMustBeOne) {
    EXPECT_EQ(CodesOf("<DIAG-COMMS><DIAG-COMM-REF ID-REF='b'/></DIAG-COMMS>"), "ODX0307");
}

TEST(LinkKindsTest, ALinkToTheWrongKindInWhatVariantsInheritIsReportedOnce) {
    const std::string variants = "</BASE-VARIANT></BASE-VARIANTS><ECU-VARIANTS><ECU-VARIANT ID='v'><SHORT-NAME>V"
                                 "</SHORT-NAME><PARENT-REFS><PARENT-REF ID-REF='b'/></PARENT-REFS></ECU-VARIANT>"
                                 "</ECU-VARIANTS></DIAG-LAYER-CONTAINER></ODX>";
    std::string xml = BaseVariant(Service("<FUNCT-CLASS-REFS><FUNCT-CLASS-REF ID-REF='rq'/></FUNCT-CLASS-REFS>"));
    xml.replace(xml.find("</BASE-VARIANT></BASE-VARIANTS>"), std::string::npos, variants);
    const TemporaryFile file("b.odx-d", xml);
    EXPECT_EQ(Imported(file.Path()).Codes(), "ODX0307");
}
