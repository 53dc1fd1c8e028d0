#include "xml/XmlDocument.h"

#include "mapping/Naming.h"
#include "support/Corpora.h"
#include "xml/Element.h"
#include "xml/Entities.h"

#include <gtest/gtest.h>

using namespace OdxImport;

namespace {

struct Parsed {
    DiagnosticCollector diagnostics;
    std::unique_ptr<XmlDocument> document;

    Element Root() const { return document->Root(); }

    std::string Codes() const { return OdxTests::Codes(diagnostics); }

    const Location& Where() const { return diagnostics.Kept().at(0).where; }
};

Parsed Parse(std::string_view xml, std::uint32_t nesting = 200) {
    Parsed parsed;
    const Reporter reporter(parsed.diagnostics);
    parsed.document = XmlDocument::Parse("a.odx", {OdxTests::ToBytes(xml), 0}, nesting, reporter);
    return parsed;
}

} // namespace

TEST(XmlDocumentTest, TextIsTrimmedAndTheFivePredefinedEntitiesAndCharacterReferencesAreResolved) {
    const Parsed parsed = Parse("<a>\n <b> &lt;&amp;&gt;&quot;&apos;&#65;&#x42;&#x1F697; </b></a>");
    EXPECT_EQ(parsed.Root().Child("b").Text(), "<&>\"'AB\xF0\x9F\x9A\x97");
    EXPECT_EQ(parsed.Codes(), "");
}

TEST(XmlDocumentTest, TextInPiecesIsJoined) {
    EXPECT_EQ(Parse("<a><b>one<!-- c -->two<![CDATA[<three>]]></b></a>").Root().Child("b").Text(), "onetwo<three>");
    EXPECT_EQ(Parse("<a><b><![CDATA[x]]></b></a>").Root().Child("b").Text(), "x");
}

TEST(XmlDocumentTest, TextAmongElementsStaysWhereItIs) {
    const Parsed parsed = Parse("<a>one<b/>t<!-- c -->w<![CDATA[o]]><c>in<d/>side</c> <e/>three</a>");
    const Element a = parsed.Root();
    EXPECT_EQ(a.OwnText(), "one");
    EXPECT_EQ(a.Child("b").TextBehind(), "two");
    EXPECT_EQ(a.Child("c").OwnText(), "in");
    EXPECT_EQ(a.Child("c").Child("d").TextBehind(), "side");
    EXPECT_EQ(a.Child("c").TextBehind(), "");
    EXPECT_EQ(a.Child("e").TextBehind(), "three");
    EXPECT_EQ(FlatText(a), "onetwoinsidethree");
}

TEST(XmlDocumentTest, TheTextOfAnElementIsTheFirstWhereverItStands) {
    EXPECT_EQ(Parse("<a><b/><c>no</c> yes <d/>late</a>").Root().Text(), "yes");
    EXPECT_EQ(Parse("<a><b/>yes</a>").Root().Child("b").Text(), "");
}

TEST(XmlDocumentTest, ElementsKnowTheirNeighboursAndParents) {
    const Parsed parsed = Parse("<a><b><c/><d/></b><e/></a>");
    const Element a = parsed.Root(), b = a.FirstChild(), e = b.Next();
    EXPECT_EQ(b.Tag(), "b");
    EXPECT_EQ(e.Tag(), "e");
    EXPECT_FALSE(e.Next());
    EXPECT_FALSE(e.FirstChild());
    EXPECT_FALSE(a.Next());
    EXPECT_FALSE(a.Parent());
    EXPECT_EQ(b.Child("d").Parent().Tag(), "b");
    EXPECT_EQ(e.Parent().Tag(), "a");
    EXPECT_FALSE(b.Child("d").Next());
    EXPECT_FALSE(Element().FirstChild());
    EXPECT_FALSE(Element().Next());
    EXPECT_FALSE(Element().Parent());
    EXPECT_EQ(Element().Text(), "");
    EXPECT_EQ(Element().Attribute("x"), "");
}

TEST(XmlDocumentTest, AttributesOfTheLastElementEndWithIt) {
    const Parsed parsed = Parse("<a x='1' y=''><b/><c z='3'/></a>");
    EXPECT_EQ(parsed.Root().Attribute("x"), "1");
    EXPECT_TRUE(parsed.Root().HasAttribute("y"));
    EXPECT_EQ(parsed.Root().Attribute("y"), "");
    EXPECT_FALSE(parsed.Root().HasAttribute("z"));
    EXPECT_FALSE(parsed.Root().Child("b").HasAttribute("z"));
    EXPECT_EQ(parsed.Root().Child("c").Attribute("z"), "3");
}

TEST(XmlDocumentTest, PlacesAreLinesAndColumnsOfTheElementWithItsShortNames) {
    const Parsed parsed =
        Parse("<a><SHORT-NAME>A</SHORT-NAME>\r\n  <x>\n\t<b><SHORT-NAME> B </SHORT-NAME><c/></b></x></a>");
    const Element b = parsed.Root().Child("x").Child("b");
    EXPECT_EQ(b.Where().line, 3u);
    EXPECT_EQ(b.Where().column, 2u);
    EXPECT_EQ(b.Child("c").Where().path, "/A/B");
    EXPECT_EQ(parsed.Root().Where().column, 1u);
}

TEST(XmlDocumentTest, LinesEndingInCarriageReturnsAloneAreLines) {
    EXPECT_EQ(Parse("<a>\r\r<b/></a>").Root().Child("b").Where().line, 3u);
}

TEST(XmlDocumentTest, WhatIsNoXmlIsReportedWhereItBreaks) {
    for (const char* xml : {"", "text", "<a>", "<a><b></a>", "<a/><b/>", "<a/>text", "text<a/>", "<a b=></a>", "<",
                            "<!--", "<a b='1' c></a>"}) {
        const Parsed parsed = Parse(xml);
        EXPECT_EQ(parsed.document, nullptr) << xml;
        EXPECT_EQ(parsed.Codes(), "ODX0201") << xml;
    }
    EXPECT_EQ(Parse("<a>\n\n<b></c></a>").Where().line, 3u);
}

TEST(XmlDocumentTest, WhatStandsOutsideTheRootIsReportedWhereItIs) {
    struct Case {
        const char* xml;
        const char* codes;
        std::uint32_t line, column;
    };

    for (const Case& outside :
         {Case{"<a>\n<b/>\n</a>\n\n  text\n", "ODX0201", 5, 3},
          {"<?xml version='1.0'?>\n text<a/>", "ODX0201", 2, 2},
          {"<a/>\n<![CDATA[x]]>", "ODX0201", 2, 10},
          {"<?xml version='1.0'?>\n<!-- c -->\n  <!DOCTYPE  a [<!ENTITY e 'x'>]>\n<a/>", "ODX0205", 3, 3},
          {"<!DOCTYPE a><a/>", "ODX0205", 1, 1}}) {
        const Parsed parsed = Parse(outside.xml);
        ASSERT_EQ(parsed.Codes(), outside.codes) << outside.xml;
        EXPECT_EQ(parsed.Where().line, outside.line) << outside.xml;
        EXPECT_EQ(parsed.Where().column, outside.column) << outside.xml;
    }
}

TEST(XmlDocumentTest, EveryCutOfADocumentIsReported) {
    const std::string whole = "<?xml version='1.0'?><!-- c --><a b='1'>\n<c>text &amp; more</c><![CDATA[x]]></a>";
    for (std::size_t size = 0; size + 1 < whole.size(); ++size)
        EXPECT_EQ(Parse(whole.substr(0, size)).document, nullptr) << size;
}

TEST(XmlDocumentTest, ANulByteIsReportedAsWhatItIsAtItsPlace) {
    using namespace std::string_view_literals;
    for (const std::string_view xml : {"<a>\n  <b>\n  x\0y</b></a>"sv, "<a>\n\n <\0/></a>"sv, "<a/>\n\n  \0\n"sv,
                                       "<a>\n\n  \0</a>\0"sv, "<a>\n<b/>\n<!\0--></a>"sv}) {
        const Parsed parsed = Parse(xml);
        EXPECT_EQ(parsed.document, nullptr);
        ASSERT_EQ(parsed.Codes(), "ODX0201");
        EXPECT_EQ(parsed.diagnostics.Kept()[0].message, "not XML: the character U+0000 is not allowed");
        EXPECT_EQ(parsed.Where().line, 3u);
        EXPECT_LE(parsed.Where().column, 4u);
    }
    EXPECT_EQ(Parse("<a>\n  <b>x\0y</b></a>"sv).Where().column, 7u);
}

TEST(XmlDocumentTest, NulBytesThatFillUpAFileArePassedOver) {
    using namespace std::string_view_literals;
    const Parsed parsed = Parse("<a><b>x</b></a>\n\0\0\0"sv);
    EXPECT_EQ(parsed.Codes(), "");
    EXPECT_EQ(parsed.Root().Child("b").Text(), "x");
}

TEST(XmlDocumentTest, ADoctypeIsReportedAndItsEntitiesAreNeverExpanded) {
    const Parsed parsed =
        Parse("<!DOCTYPE a [<!ENTITY x \"boom\"><!ENTITY y SYSTEM \"file:///etc/passwd\">]><a><b>&x;&y;</b></a>");
    EXPECT_EQ(parsed.Codes(), "ODX0206 ODX0205");
    EXPECT_EQ(parsed.Root().Child("b").Text(), "&x;&y;");
}

TEST(XmlDocumentTest, UnknownEntitiesAreCountedOutsideOfCommentsAndCdata) {
    EXPECT_FALSE(FindUnknownEntities("<a>&amp;&#1;&#x2;</a>"));
    EXPECT_FALSE(FindUnknownEntities("<a><!-- &x; --><![CDATA[&y;]]> & z; &; &a b;</a>"));
    const auto found = FindUnknownEntities("<!-- &no; --><a b='&eins;'>&zwei;<![CDATA[&no;]]>&drei;</a>");
    ASSERT_TRUE(found);
    EXPECT_EQ(found->name, "eins");
    EXPECT_EQ(found->offset, 19u);
    EXPECT_EQ(found->count, 3u);
}

TEST(XmlDocumentTest, ReferencesToWhatIsNoCharacterAreKeptAsText) {
    const Parsed parsed =
        Parse("<a><b x='&#xD800;'>1&#0;2&#x110000;3&#99999999999;4&#x10FFFF;<![CDATA[&#0;]]></b></a>");
    EXPECT_EQ(parsed.Root().Child("b").Text(), "1?#0;2?#x110000;3?#99999999999;4\xF4\x8F\xBF\xBF&#0;");
    EXPECT_EQ(parsed.Root().Child("b").Attribute("x"), "?#xD800;");
    EXPECT_EQ(parsed.Codes(), "ODX0206");
    EXPECT_EQ(
        parsed.diagnostics.Kept()[0].message,
        "&#xD800; is not one of XML; kept as text, with ? for the & of numbers that no character has (4 such places "
        "in this document)");
}

TEST(XmlDocumentTest, AnAttributeThatIsThereTwiceIsReportedAndTheFirstCounts) {
    const Parsed parsed =
        Parse("<a xmlns:p='u'>\n<c x='1' p:x='2'/>\n<b x='1' y='0' x='2'/><b x='1'/><b y='1' y='2' y='3'/></a>");
    EXPECT_EQ(parsed.Root().Child("b").Attribute("x"), "1");
    ASSERT_EQ(parsed.Codes(), "ODX0214");
    EXPECT_EQ(parsed.diagnostics.Kept()[0].message,
              "the attribute x is there twice; the first counts (3 such places in this document)");
    EXPECT_EQ(parsed.Where().line, 3u);
    EXPECT_EQ(parsed.Where().column, 1u);
}

TEST(XmlDocumentTest, ControlCharactersAreReportedAndKept) {
    const Parsed parsed = Parse("<a>\n <b>x\x1By\x01</b>\t\r\n</a>");
    EXPECT_EQ(parsed.Root().Child("b").Text(), "x\x1By\x01");
    ASSERT_EQ(parsed.Codes(), "ODX0214");
    EXPECT_EQ(parsed.diagnostics.Kept()[0].message,
              "the character U+001B is not allowed in XML; kept (2 such places in this document)");
    EXPECT_EQ(parsed.Where().line, 2u);
    EXPECT_EQ(parsed.Where().column, 6u);
}

TEST(XmlDocumentTest, EveryControlCharacterIsFoundAtEveryPlace) {
    for (char control = 1; control < 0x20; ++control) {
        const bool isAllowed = control == '\t' || control == '\n' || control == '\r';
        for (std::size_t before = 0; before < 20; ++before) {
            const Parsed parsed = Parse("<a>" + std::string(before, 'x') + control + "\xC3\xA4y</a>");
            ASSERT_EQ(parsed.Codes(), isAllowed ? "" : "ODX0214") << int{control} << " after " << before;
            if (!isAllowed) {
                ASSERT_EQ(parsed.Where().column, before + 4) << int{control};
            }
        }
    }
}

TEST(XmlDocumentTest, AttributesAreTrimmed) {
    EXPECT_EQ(Parse("<a x=' \n d  '/>").Root().Attribute("x"), "d");
}

TEST(XmlDocumentTest, PlacesInLongListsAreFoundWithoutASearchForNames) {
    std::string xml = "<a><SHORT-NAME>A</SHORT-NAME><list>";
    for (int i = 0; i < 100000; ++i)
        xml += "<b/>";
    const Parsed parsed = Parse(xml + "<SHORT-NAME>far away</SHORT-NAME></list></a>");
    std::size_t places = 0;
    for (const Element b : Children(parsed.Root().Child("list"), "b"))
        places += b.Where().path == "/A" ? 1 : 0;
    EXPECT_EQ(places, 100000U);
}

TEST(XmlDocumentTest, PrefixesAreTakenOffAndUndeclaredOnesReportedOnce) {
    const Parsed parsed = Parse("<o:a xmlns:o='urn:o'><o:b xsi:type='T' xml:lang='de'/><o:b xsi:type='U'/></o:a>");
    ASSERT_NE(parsed.document, nullptr);
    EXPECT_EQ(parsed.Root().Tag(), "a");
    EXPECT_EQ(parsed.Root().Child("b").Attribute("type"), "T");
    EXPECT_EQ(parsed.Root().Child("b").Attribute("lang"), "de");
    EXPECT_EQ(parsed.Codes(), "ODX0209");
    EXPECT_NE(parsed.diagnostics.Kept()[0].message.find("\"xsi:\""), std::string::npos);
}

TEST(XmlDocumentTest, NestingIsLimitedAndWalkedWithoutRecursion) {
    const auto nested = [](std::size_t depth) {
        std::string xml;
        for (std::size_t i = 0; i < depth; ++i)
            xml += "<a>";
        for (std::size_t i = 0; i < depth; ++i)
            xml += "</a>";
        return xml;
    };
    EXPECT_NE(Parse(nested(200)).document, nullptr);
    EXPECT_EQ(Parse(nested(201)).Codes(), "ODX0208");
    EXPECT_EQ(Parse(nested(1000000)).Codes(), "ODX0208");
}

TEST(FatesTest, NeighbouringElementsHaveFatesOfTheirOwn) {
    const Parsed parsed = Parse("<a><b><c/><d/></b></a>");
    const Element b = parsed.Root().Child("b");
    b.Taken();
    b.Child("c").LeaveOut(Fate::Dropped, "why");
    Fates& fates = parsed.document->FatesOfElements();
    EXPECT_FALSE(fates.Of(parsed.Root().Number()));
    EXPECT_EQ(fates.Of(b.Number())->fate, Fate::Imported);
    EXPECT_EQ(fates.Of(b.Child("c").Number())->fate, Fate::Dropped);
    EXPECT_FALSE(fates.Of(b.Child("d").Number()));
}

TEST(FatesTest, WhatIsImportedOnceStaysImported) {
    const Parsed parsed = Parse("<a><b/><c/></a>");
    const Element b = parsed.Root().Child("b"), c = parsed.Root().Child("c");
    b.Taken();
    b.LeaveOut(Fate::Dropped, "why");
    c.LeaveOut(Fate::Dropped, "why");
    c.Taken();
    EXPECT_TRUE(b.IsTaken());
    EXPECT_TRUE(c.IsTaken());
}

TEST(XmlDocumentTest, AnElementThatIsNotThereKnowsItsDocument) {
    const Parsed parsed = Parse("\n<a><b/></a>");
    const Element root = parsed.Root();
    for (const Element absent :
         {root.Child("none"), root.Child("none").Child("none"), root.FirstChild().FirstChild(),
          root.FirstChild().Next(), root.FirstChild().Next().Next(), root.Parent(), root.Parent().Parent()}) {
        EXPECT_FALSE(absent);
        EXPECT_EQ(&absent.Document(), parsed.document.get());
        EXPECT_EQ(absent.Where().file, "a.odx");
        EXPECT_EQ(absent.Where().line, 1U);
        EXPECT_EQ(absent.Where().column, 1U);
        EXPECT_EQ(absent.Where().path, "");
    }
}
