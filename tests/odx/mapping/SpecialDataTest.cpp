#include "support/Fragments.h"
#include "support/Imports.h"

#include <gtest/gtest.h>

#include <string>

using namespace ImportDame;
using OdxTests::Attribute;
using OdxTests::BaseVariant;
using OdxTests::Coded;
using OdxTests::Dictionary;
using OdxTests::Imported;
using OdxTests::TemporaryFile;

namespace {

/// A data object with this in front of its DIAG-CODED-TYPE and that behind it.
std::string Object(const std::string& name, const std::string& before, const std::string& behind = "") {
    return "<DATA-OBJECT-PROP ID='" + name + "'><SHORT-NAME>" + name + "</SHORT-NAME>" + before + Coded("A_UINT32", 8) +
           behind + "</DATA-OBJECT-PROP>";
}

std::wstring AttributeOf(Imported& imported, const wchar_t* object, const wchar_t* name) {
    return Attribute(imported.DataType<VIdentityDataType>(object).Attributes(), name);
}

} // namespace

TEST(SpecialDataTest, ACaptionBesideAnSIIsKnownAndNotRepresented) {
    const std::string caption = "<SDG-CAPTION ID='cap'><SHORT-NAME>Cap</SHORT-NAME><LONG-NAME>Long</LONG-NAME>"
                                "<DESC><p>Why</p></DESC></SDG-CAPTION>",
                      link = "<SDG-CAPTION-REF ID-REF='cap'/>", datum = "<SD SI='k'>v</SD>";
    const auto groups = [](const std::string& si, const std::string& content) {
        return "<SDGS><SDG" + si + ">" + content + "</SDG></SDGS>";
    };
    const TemporaryFile file("b.odx-d", BaseVariant(Dictionary(Object("one", "", groups(" SI='G'", caption + datum)) +
                                                               Object("two", "", groups(" SI='G'", link + datum)) +
                                                               Object("three", "", groups("", link + datum)))));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "");
    EXPECT_EQ(AttributeOf(imported, L"one", L"G/k"), L"v");
    EXPECT_EQ(AttributeOf(imported, L"two", L"G/k"), L"v");
    EXPECT_EQ(AttributeOf(imported, L"three", L"Cap/k"), L"v");
    const auto counts = [&](const char* tag) { return imported.ledger.AllRows().find(tag)->second.counts; };
    EXPECT_EQ(counts("SDG-CAPTION").imported, 1u); // the third group has its name of it
    EXPECT_EQ(counts("SDG-CAPTION-REF").imported, 1u);
    EXPECT_EQ(counts("SDG-CAPTION-REF").notRepresented, 1u);
    for (const char* tag : {"LONG-NAME", "DESC", "p"})
        EXPECT_EQ(counts(tag).notRepresented, 1u) << tag;
    EXPECT_TRUE(imported.ledger.AddsUp());
}

TEST(SpecialDataTest, SpecialDataOfACompanyAreNamedByTheirGroups) {
    const TemporaryFile file(
        "b.odx-d", BaseVariant(Dictionary(
                       Object("dop", "<ADMIN-DATA><LANGUAGE>de</LANGUAGE><COMPANY-DOC-INFOS><COMPANY-DOC-INFO>"
                                     "<COMPANY-DATA-REF ID-REF='cd'/><DOC-LABEL>lab</DOC-LABEL><SDGS><SDG SI='Tool'>"
                                     "<SD SI='version'>4.2</SD><SDG SI='In'><SD SI='build' TI='x'>77</SD></SDG></SDG>"
                                     "</SDGS></COMPANY-DOC-INFO></COMPANY-DOC-INFOS></ADMIN-DATA>"))));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "");
    const std::wstring path = L"ADMIN-DATA/COMPANY-DOC-INFOS/COMPANY-DOC-INFO";
    EXPECT_EQ(AttributeOf(imported, L"dop", (path + L"/DOC-LABEL").c_str()), L"lab");
    EXPECT_EQ(AttributeOf(imported, L"dop", (path + L"/Tool/version").c_str()), L"4.2");
    EXPECT_EQ(AttributeOf(imported, L"dop", (path + L"/Tool/In/build").c_str()), L"77");
    VAttributeCollection& attributes = imported.DataType<VIdentityDataType>(L"dop").Attributes();
    EXPECT_STREQ((*attributes.Find((path + L"/Tool/In/build").c_str())).Name().GetTextId(), L"x");
    EXPECT_EQ(imported.ledger.Total().notRepresented, 0u);
}

TEST(SpecialDataTest, ExternalDocumentsStandOnLinesOfTheirOwnAndKeepTheirPlace) {
    const TemporaryFile file("b.odx-d",
                             BaseVariant(Dictionary(Object("dop", "<DESC><p>Measured.</p><EXTERNAL-DOCS><EXTERNAL-DOC "
                                                                  "HREF='http://server/a.pdf'>Plan A</EXTERNAL-DOC>"
                                                                  "<EXTERNAL-DOC HREF='b.pdf'>Plan B</EXTERNAL-DOC>"
                                                                  "</EXTERNAL-DOCS></DESC>"))));
    Imported imported(file.Path());
    auto& type = imported.DataType<VIdentityDataType>(L"dop");
    EXPECT_STREQ(type.GetDescription(), L"Measured.\nPlan A\nPlan B");
    std::wstring places;
    for (VAttribute& attribute : type.Attributes())
        places +=
            std::wstring(attribute.GetQualifier()) + L" " + attribute.GetName() + L"=" + attribute.GetValue() + L";";
    EXPECT_EQ(places, L"EXTERNAL-DOC Plan A=http://server/a.pdf;EXTERNAL-DOC Plan B=b.pdf;");
}
