#include "support/Archives.h"
#include "support/Corpora.h"
#include "support/Imports.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <system_error>
#include <utility>

using namespace OdxImport;
using OdxTests::BaseVariant;
using OdxTests::Imported;
using OdxTests::TemporaryFile;

namespace {

ImportOptions Inputs(std::initializer_list<std::filesystem::path> paths) {
    ImportOptions options;
    options.inputs = paths;
    return options;
}

std::string Container(std::string_view name, std::string_view content) {
    std::string xml =
        "<ODX MODEL-VERSION='2.2.0' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'><DIAG-LAYER-CONTAINER ID='c.";
    xml.append(name).append("'><SHORT-NAME>").append(name).append("</SHORT-NAME>").append(content);
    return xml + "</DIAG-LAYER-CONTAINER></ODX>";
}

std::string Variants(std::initializer_list<const char*> names) {
    std::string xml = "<BASE-VARIANTS>";
    for (const char* name : names)
        xml.append("<BASE-VARIANT ID='bv.")
            .append(name)
            .append("'><SHORT-NAME>")
            .append(name)
            .append("</SHORT-NAME></BASE-VARIANT>");
    return xml + "</BASE-VARIANTS>";
}

/// Does something between the finding of the inputs and their reading.
class Interference final : public ProgressSink {
public:
    explicit Interference(std::function<void()> act) : m_act(std::move(act)) {}

    void Step(Phase, std::uint64_t, std::uint64_t) override {
        if (m_act)
            std::exchange(m_act, nullptr)();
    }

private:
    std::function<void()> m_act;
};

} // namespace

TEST(InputsTest, AMissingInputIsReportedByItsName) {
    Imported imported(Inputs({"does/not/exist.pdx"}));
    EXPECT_EQ(imported.Codes(), "ODX0101");
    EXPECT_EQ(imported.diagnostics.Kept()[0].where.file, "does/not/exist.pdx");
    EXPECT_EQ(imported.result.status, ImportStatus::NoInput);
}

TEST(InputsTest, WhereOneInputIsMissingNothingIsImportedOfTheOthers) {
    const TemporaryFile file("b.odx-d", BaseVariant(""));
    Imported imported(Inputs({file.Path(), "does/not/exist.pdx"}));
    EXPECT_EQ(imported.Codes(), "ODX0101");
    EXPECT_EQ(imported.result.status, ImportStatus::NoInput);
    EXPECT_TRUE(imported.result.documents.empty());
}

TEST(InputsTest, WhyAFileCannotBeReadIsSaid) {
    const auto messages = [](const auto& change) {
        const TemporaryFile file("b.odx-d", BaseVariant(""));
        Interference progress([&] { change(file.Path()); });
        ImportDame::VImportDoc document;
        DiagnosticCollector diagnostics;
        Ledger ledger;
        Import(Inputs({file.Path()}), document, diagnostics, ledger, progress);
        EXPECT_EQ(OdxTests::Codes(diagnostics), "ODX0102 ODX0103");
        return diagnostics.Kept().at(0).message;
    };
    EXPECT_EQ(messages([](const std::filesystem::path& path) { std::filesystem::remove(path); }),
              "the file cannot be read: " + std::make_error_code(std::errc::no_such_file_or_directory).message());
    EXPECT_EQ(messages([](const std::filesystem::path& path) { std::filesystem::resize_file(path, 9); }),
              "the file cannot be read: it has become shorter");
}

TEST(InputsTest, AUtf16DocumentWithANulIsNoXml) {
    using namespace std::string_view_literals;
    const TemporaryFile file("b.odx-d", "\xFF\xFE<\0a\0>\0\n\0\0\0<\0/\0a\0>\0"sv);
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0201 ODX0103");
    EXPECT_EQ(imported.diagnostics.Kept()[0].message, "not XML: the character U+0000 is not allowed");
    EXPECT_EQ(imported.diagnostics.Kept()[0].where.line, 2u);
    EXPECT_EQ(imported.diagnostics.Kept()[0].where.column, 1u);
}

TEST(InputsTest, NoInputAtAllIsNothingToRead) {
    Imported imported(Inputs({}));
    EXPECT_EQ(imported.Codes(), "ODX0103");
}

TEST(InputsTest, AFolderMayHoldDocumentsThatAreNamedAsXml) {
    const TemporaryFile base("b.xml", "<?xml version='1.0'?>\n" + BaseVariant(""));
    const std::filesystem::path folder = base.Path().parent_path();
    std::ofstream(folder / "settings.xml") << "<SETTINGS/>";
    std::filesystem::create_directory(folder / "folder.xml");
    Imported imported(folder);
    EXPECT_EQ(imported.Codes(), "");
    EXPECT_EQ(imported.result.documents.size(), 1u);
}

TEST(InputsTest, AFolderMayHoldFoldersThatAreNamedAsInputs) {
    const TemporaryFile base("b.odx-d", BaseVariant(""));
    const std::filesystem::path folder = base.Path().parent_path();
    for (const char* name : {"a.pdx", "a.odx", "a.odx-d"})
        std::filesystem::create_directory(folder / name);
    std::ofstream(folder / "a.pdx" / "c.odx-d") << Container("C", "");
    Imported imported(folder);
    EXPECT_EQ(imported.Codes(), "");
    EXPECT_EQ(imported.result.documents.size(), 2u);
}

TEST(InputsTest, AFileInAFolderThatCannotBeReadIsReportedUnderAnyNameOfADocument) {
    for (const char* name : {"gone.odx-d", "gone.xml"}) {
        const TemporaryFile base("b.odx-d", BaseVariant(""));
        const std::filesystem::path folder = base.Path().parent_path();
        std::error_code error;
        std::filesystem::create_symlink(folder / "nowhere", folder / name, error);
        if (error)
            GTEST_SKIP() << "no links here: " << error.message();
        EXPECT_EQ(Imported(folder).Codes(), "ODX0102") << name;
    }
}

TEST(InputsTest, AFolderIsReadInTheOrderOfNamesAndArchivesInItToo) {
    const TemporaryFile base("b.odx-d", BaseVariant(""));
    const std::filesystem::path folder = base.Path().parent_path();
    std::ofstream(folder / "note.txt") << "no document";
    std::filesystem::create_directory(folder / "a");
    std::ofstream(folder / "a" / "x.pdx", std::ios::binary) << OdxTests::MakeArchive(
        {{"p.odx-d", Container("P", "<PROTOCOLS><PROTOCOL ID='p'><SHORT-NAME>P</SHORT-NAME></PROTOCOL></PROTOCOLS>")}});
    Imported imported(folder);
    EXPECT_EQ(imported.Codes(), "");
    ASSERT_EQ(imported.result.documents.size(), 2u);
    EXPECT_TRUE(imported.result.documents[0].file.ends_with("/a/x.pdx!p.odx-d"));
    EXPECT_TRUE(imported.result.documents[1].file.ends_with("/b.odx-d"));
    EXPECT_EQ(imported.result.baseVariant, "B");
}

TEST(InputsTest, TheSameDocumentTwiceIsReadOnce) {
    const TemporaryFile one("one.odx-d", BaseVariant("")), two("two.odx-d", BaseVariant(""));
    Imported imported(Inputs({one.Path(), two.Path()}));
    EXPECT_EQ(imported.Codes(), "ODX0112");
    EXPECT_EQ(imported.result.documents.size(), 1u);
}

TEST(InputsTest, AnArchiveIsKnownByItsBytesWhateverItsName) {
    const TemporaryFile archive("data.bin", OdxTests::MakeArchive({{"b.odx-d", BaseVariant("")}}));
    EXPECT_EQ(Imported(archive.Path()).Codes(), "");
    const TemporaryFile text("data.pdx", "no archive");
    EXPECT_EQ(Imported(text.Path()).Codes(), "ODX0104 ODX0103");
}

TEST(InputsTest, FileNamesBeyondAsciiAreShownAsUtf8) {
    const TemporaryFile file(reinterpret_cast<const char*>(u8"a.odx-d"), BaseVariant("<X/>"));
    const std::filesystem::path path = file.Path().parent_path() / std::filesystem::path(u8"K\u00FChler.odx-d");
    std::filesystem::rename(file.Path(), path);
    Imported imported(path);
    ASSERT_EQ(imported.Codes(), "ODX0213");
    EXPECT_TRUE(imported.diagnostics.Kept()[0].where.file.ends_with("K\xC3\xBChler.odx-d"));
}

TEST(InputsTest, SeveralBaseVariantsNeedAChoiceAndTheChoiceIsListed) {
    const TemporaryFile file("a.odx-d", Container("C", Variants({"Pump", "Fan"})));
    Imported unchosen(file.Path());
    EXPECT_EQ(unchosen.Codes(), "ODX0407");
    EXPECT_EQ(unchosen.result.status, ImportStatus::NeedsChoice);
    EXPECT_EQ(unchosen.result.baseVariants, (std::vector<std::string>{"Pump", "Fan"}));
    EXPECT_NE(unchosen.diagnostics.Kept()[0].message.find("Pump, Fan"), std::string::npos);

    ImportOptions options = Inputs({file.Path()});
    options.baseVariant = "Fan";
    Imported chosen(options);
    EXPECT_EQ(chosen.Codes(), "");
    EXPECT_STREQ(chosen.document.GetBaseVariant().GetQualifier(), L"Fan");
    options.baseVariant = "Wheel";
    Imported wrong(options);
    EXPECT_EQ(wrong.Codes(), "ODX0406");
    EXPECT_EQ(wrong.result.status, ImportStatus::NotFound);
}

TEST(InputsTest, OfBaseVariantsOfOneNameTheFirstIsTakenWithAReport) {
    const TemporaryFile first("a.odx-d", Container("C", Variants({"Pump"})));
    const TemporaryFile second("b.odx-d", Container("D", Variants({"Pump"})));
    ImportOptions options = Inputs({first.Path(), second.Path()});
    Imported unchosen(options);
    EXPECT_EQ(unchosen.Codes(), "ODX0304 ODX0407");
    EXPECT_EQ(unchosen.result.baseVariants, std::vector<std::string>{"Pump"});
    EXPECT_EQ(unchosen.diagnostics.Kept()[1].message,
              "there are several base variants: Pump in " + first.Path().generic_string() + ", " +
                  second.Path().generic_string() +
                  "; of those of one name the first is taken: leave the files with the others out");
    options.baseVariant = "Pump";
    Imported chosen(options);
    EXPECT_EQ(chosen.Codes(), "ODX0304");
    EXPECT_TRUE(chosen.diagnostics.Kept()[0].where.file.ends_with("b.odx-d"));
    EXPECT_EQ(chosen.result.status, ImportStatus::Completed);
    EXPECT_STREQ(chosen.document.GetBaseVariant().GetSourceInfo(), L"BASE-VARIANT Pump");
}

TEST(InputsTest, TheOtherBaseVariantAndItsVariantsAreNotRepresented) {
    const TemporaryFile file(
        "a.odx-d", Container("C", Variants({"Pump", "Fan"}) +
                                      "<ECU-VARIANTS><ECU-VARIANT ID='ev'><SHORT-NAME>Fan1</SHORT-NAME><PARENT-REFS>"
                                      "<PARENT-REF ID-REF='bv.Fan'/></PARENT-REFS></ECU-VARIANT></ECU-VARIANTS>"));
    ImportOptions options = Inputs({file.Path()});
    options.baseVariant = "Pump";
    Imported imported(options);
    EXPECT_EQ(imported.document.GetBaseVariant().GetEcuVariantCollection().Count(), 0u);
    EXPECT_EQ(imported.ledger.AllRows().find("BASE-VARIANT")->second.counts.notRepresented, 1u);
    EXPECT_EQ(imported.ledger.AllRows().find("ECU-VARIANT")->second.counts.notRepresented, 1u);
    EXPECT_TRUE(imported.ledger.AddsUp());
}

TEST(InputsTest, TheLanguageOptionCountsMoreThanTheInput) {
    const TemporaryFile file("a.odx-d", BaseVariant("<ADMIN-DATA><LANGUAGE>en</LANGUAGE></ADMIN-DATA>"));
    ImportOptions options = Inputs({file.Path()});
    EXPECT_STREQ(Imported(options).document.GetLanguage(), L"en");
    options.language = "de-DE";
    EXPECT_STREQ(Imported(options).document.GetLanguage(), L"de-DE");
}

TEST(InputsTest, ListTellsLayersWithTheirCountsAndNothingIsImported) {
    DiagnosticCollector diagnostics;
    NoProgress progress;
    const Listing listing = List(Inputs({ODX_SAMPLE_ARCHIVE}), diagnostics, progress);
    ASSERT_EQ(listing.layers.size(), 6u);
    const LayerSummary& large = listing.layers[0];
    EXPECT_EQ(large.kind, "ECU-VARIANT");
    EXPECT_EQ(large.shortName, "CoolantPump_Large");
    EXPECT_EQ(large.longName, "Large pump");
    EXPECT_EQ(large.container, "CoolantPumpVariants");
    EXPECT_EQ(large.parents, (std::vector<std::string>{"CoolantPump"}));
    EXPECT_EQ(large.services, 2u);
    EXPECT_EQ(large.dataObjects, 1u);
    const LayerSummary& base = listing.layers[2];
    EXPECT_EQ(base.shortName, "CoolantPump");
    EXPECT_EQ(base.services, 4u);
    EXPECT_EQ(base.dataObjects, 27u);
    EXPECT_EQ(base.troubleCodes, 3u);
}

TEST(InputsTest, CopiesThatVariantsInheritAndLinksRepeatAreLimited) {
    ImportOptions options = Inputs({ODX_SAMPLE_ARCHIVE});
    options.limits.copies = 3; // one linked trouble code, then two services of the first variant
    Imported imported(options);
    EXPECT_EQ(imported.Codes(), "ODX0111 ODX0707");
    EXPECT_EQ(imported.document.GetBaseVariant().DiagCommCollection().Count(), 6u);
    EXPECT_EQ((*imported.document.GetBaseVariant().GetEcuVariantCollection().Find(L"CoolantPump_Small"))
                  .DiagCommCollection()
                  .Count(),
              0u);
    EXPECT_TRUE(imported.ledger.AddsUp());
}

TEST(InputsTest, TheSizeOfCopiesIsLimited) {
    const auto countOf = [](Imported& imported) {
        auto& variants = imported.document.GetBaseVariant().GetEcuVariantCollection();
        return (*variants.Find(L"CoolantPump_Large")).DiagCommCollection().Count();
    };
    ImportOptions options = Inputs({ODX_SAMPLE_ARCHIVE});
    Imported all(options);
    EXPECT_EQ(all.Codes(), "ODX0111");
    EXPECT_GT(countOf(all), 2u);
    options.limits.copiedBytes = 100; // less than any service has
    Imported imported(options);
    EXPECT_EQ(imported.Codes(), "ODX0111 ODX0707");
    EXPECT_EQ(imported.document.GetBaseVariant().DiagCommCollection().Count(), 6u);
    EXPECT_EQ(countOf(imported), 2u) << "its own services";
    EXPECT_TRUE(imported.ledger.AddsUp());
}

TEST(InputsTest, RowsThatTablesTakeOverCountAsCopies) {
    std::string rows;
    for (int number = 0; number < 10; ++number)
        rows += "<TABLE-ROW-REF ID-REF='row'/>";
    const TemporaryFile file(
        "b.odx-d", BaseVariant("<DIAG-DATA-DICTIONARY-SPEC><TABLES><TABLE ID='t'><SHORT-NAME>T</SHORT-NAME><TABLE-ROW "
                               "ID='row'><SHORT-NAME>R</SHORT-NAME><KEY>1</KEY></TABLE-ROW></TABLE><TABLE ID='u'>"
                               "<SHORT-NAME>U</SHORT-NAME>" +
                               rows + "</TABLE></TABLES></DIAG-DATA-DICTIONARY-SPEC>"));
    ImportOptions options = Inputs({file.Path()});
    options.limits.copies = 3;
    Imported imported(options);
    EXPECT_EQ(imported.DataType<ImportDame::VMuxDataType>(L"U").GetCaseCollection().Count(), 3u);
    EXPECT_TRUE(imported.ledger.AddsUp());
}

TEST(InputsTest, WhatLayersInheritIsLimited) {
    ImportOptions options = Inputs({ODX_SAMPLE_ARCHIVE});
    options.limits.inherited = 10;
    Imported imported(options);
    EXPECT_NE(imported.Codes().find("ODX0707"), std::string::npos);
    EXPECT_EQ(imported.diagnostics.Count(Rule::ObjectsTooMany), 1u);
    EXPECT_TRUE(imported.ledger.AddsUp());
}

TEST(InputsTest, LinksIntoOtherDocumentsWithoutDocrefAreRepairedOrAmbiguous) {
    const TemporaryFile base("b.odx-d", BaseVariant("<PARENT-REFS><PARENT-REF ID-REF='p'/></PARENT-REFS>"));
    const char* protocols = "<PROTOCOLS><PROTOCOL ID='p'><SHORT-NAME>P</SHORT-NAME></PROTOCOL></PROTOCOLS>";
    const TemporaryFile one("p1.odx-d", Container("P1", protocols)), two("p2.odx-d", Container("P2", protocols));
    EXPECT_EQ(Imported(Inputs({base.Path(), one.Path()})).Codes(), "ODX0311");
    EXPECT_EQ(Imported(Inputs({base.Path(), one.Path(), two.Path()})).Codes(), "ODX0304 ODX0306");
}

TEST(InputsTest, ADocumentOfAnUnknownKindIsReported) {
    const TemporaryFile base("b.odx-d", BaseVariant("")), other("o.odx", "<ODX MODEL-VERSION='2.2.0'><RECIPE/></ODX>");
    EXPECT_EQ(Imported(Inputs({base.Path(), other.Path()})).Codes(), "ODX0212 ODX0213");
}

TEST(InputsTest, MoreNamesOfSpecialDataThanColumnsStayInTheAttributes) {
    std::string data;
    for (int i = 0; i < 70; ++i)
        data += "<SD SI='k" + std::to_string(i) + "'>v</SD>";
    const TemporaryFile file(
        "b.odx-d", BaseVariant("<DIAG-DATA-DICTIONARY-SPEC><DTC-DOPS><DTC-DOP ID='d'><SHORT-NAME>D</SHORT-NAME>"
                               "<DIAG-CODED-TYPE xsi:type='STANDARD-LENGTH-TYPE' BASE-DATA-TYPE='A_UINT32'>"
                               "<BIT-LENGTH>24</BIT-LENGTH></DIAG-CODED-TYPE><DTCS><DTC ID='t'>"
                               "<SHORT-NAME>T</SHORT-NAME><TROUBLE-CODE>1</TROUBLE-CODE><TEXT>t</TEXT><SDGS><SDG>" +
                               data + "</SDG></SDGS></DTC></DTCS></DTC-DOP></DTC-DOPS></DIAG-DATA-DICTIONARY-SPEC>"));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0706");
    ImportDame::VTroubleCodeCollection& codes = imported.document.TroubleCodeCollectionCollection()[0];
    EXPECT_EQ(codes.RecordTemplateMapping().GetNumberOfTemplateItem(), 64u);
    EXPECT_EQ((*codes.Begin()).GetNumberOfItem(), 64u);
    EXPECT_EQ((*codes.Begin()).Attributes().Count(), 70u);
}

TEST(InputsTest, ForeignDocumentsAreImportedWhereTheyAreThere) {
    const char* folder = std::getenv("ODX_FOREIGN_SAMPLES");
    const std::filesystem::path path = folder != nullptr ? folder : ODX_FOREIGN_SAMPLES_DIR;
    if (!std::filesystem::is_directory(path)) {
        GTEST_SKIP() << "There is no folder " << path.string()
                     << " with ODX documents of others; ODX_FOREIGN_SAMPLES names one.";
    }
    Imported imported(path);
    EXPECT_EQ(imported.result.status, ImportStatus::Completed);
    EXPECT_EQ(imported.document.TroubleCodeCollectionCollection().TroubleCodesCount(), 2u);
    EXPECT_EQ(imported.document.GetBaseVariant().DiagCommCollection().Count(), 5u);
    EXPECT_EQ(imported.document.GetBaseVariant().GetEcuVariantCollection().Count(), 1u);
    EXPECT_EQ(imported.diagnostics.Count(Severity::Error), 0u);
    EXPECT_EQ(imported.ledger.Total().dropped, 1u); // a functional group's link to a base variant as its parent
    EXPECT_TRUE(imported.ledger.AddsUp());
}

TEST(InputsTest, WhatStandsWhereNothingIsReadIsReportedAndDropped) {
    struct Case {
        const char* inside; ///< of the base variant
        const char* behind; ///< behind the base variants
        const char* message;
        const char* tag;
    };

    for (const Case& lost :
         {Case{"<DIAG-SERVICE ID='s'><SHORT-NAME>S</SHORT-NAME></DIAG-SERVICE>", "",
               "DIAG-SERVICE is not known in BASE-VARIANT", "DIAG-SERVICE"},
          Case{"<DIAG-COMMS/><DIAG-COMMS><DIAG-SERVICE ID='s'><SHORT-NAME>S</SHORT-NAME></DIAG-SERVICE></DIAG-COMMS>",
               "", "BASE-VARIANT has a DIAG-COMMS before; this one is not read", "DIAG-SERVICE"},
          Case{"<PARENT-REFS/><PARENT-REFS><PARENT-REF ID-REF='x'/></PARENT-REFS>", "",
               "BASE-VARIANT has a PARENT-REFS before; this one is not read", "PARENT-REF"},
          Case{"", "<BASE-VARIANT ID='x'><SHORT-NAME>X</SHORT-NAME></BASE-VARIANT>",
               "BASE-VARIANT is not known in DIAG-LAYER-CONTAINER", "BASE-VARIANT"},
          Case{"",
               "</DIAG-LAYER-CONTAINER><DIAG-LAYER-CONTAINER ID='d'><SHORT-NAME>D</SHORT-NAME><PROTOCOLS>"
               "<PROTOCOL ID='p'><SHORT-NAME>P</SHORT-NAME></PROTOCOL></PROTOCOLS>",
               "ODX has a DIAG-LAYER-CONTAINER before; this one is not read", "PROTOCOL"}}) {
        std::string xml = "<BASE-VARIANTS><BASE-VARIANT ID='b'><SHORT-NAME>B</SHORT-NAME>";
        xml.append(lost.inside).append("</BASE-VARIANT></BASE-VARIANTS>").append(lost.behind);
        const TemporaryFile file("b.odx-d", Container("C", xml));
        Imported imported(file.Path());
        ASSERT_EQ(imported.Codes(), "ODX0213") << lost.message;
        EXPECT_EQ(imported.diagnostics.Kept()[0].message, lost.message);
        EXPECT_EQ(imported.ledger.AllRows().find(lost.tag)->second.counts.dropped, 1u) << lost.message;
        EXPECT_TRUE(imported.ledger.AddsUp());
    }
}

TEST(InputsTest, OfParentLinksAndImportsOnlyWhatIsReadCountsAsImported) {
    const TemporaryFile file(
        "b.odx-d", Container("C", Variants({"B"}) +
                                      "<ECU-VARIANTS><ECU-VARIANT ID='v'><SHORT-NAME>V</SHORT-NAME><PARENT-REFS>"
                                      "<PARENT-REF ID-REF='bv.B'><NOT-INHERITED-DIAG-COMMS><NOT-INHERITED-DIAG-COMM>"
                                      "<DIAG-COMM-REF ID-REF='s'/></NOT-INHERITED-DIAG-COMM></NOT-INHERITED-DIAG-COMMS>"
                                      "<NOT-INHERITED-FOO/></PARENT-REF></PARENT-REFS><IMPORT-REFS><FOO/></IMPORT-REFS>"
                                      "</ECU-VARIANT></ECU-VARIANTS>"));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0213 ODX0213 ODX0213");
    for (const char* tag : {"DIAG-COMM-REF", "NOT-INHERITED-FOO", "FOO"})
        EXPECT_EQ(imported.ledger.AllRows().find(tag)->second.counts.dropped, 1u) << tag;
    for (const char* tag : {"PARENT-REF", "NOT-INHERITED-DIAG-COMM", "IMPORT-REFS"})
        EXPECT_EQ(imported.ledger.AllRows().find(tag)->second.counts.imported, 1u) << tag;
    EXPECT_TRUE(imported.ledger.AddsUp());
}

TEST(InputsTest, ALinkToAServiceThatLeadsToSomethingElseIsDropped) {
    const TemporaryFile file("b.odx-d", BaseVariant("<DIAG-COMMS><DIAG-COMM-REF ID-REF='r'/></DIAG-COMMS><REQUESTS>"
                                                    "<REQUEST ID='r'><SHORT-NAME>R</SHORT-NAME></REQUEST></REQUESTS>"));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0307");
    EXPECT_EQ(imported.ledger.AllRows().find("DIAG-COMM-REF")->second.counts.dropped, 1u);
}

TEST(InputsTest, AnEcuVariantOfSeveralBaseVariantsIsReportedAndImportedWithTheFirst) {
    const TemporaryFile file(
        "b.odx-d", Container("C", Variants({"One", "Two"}) +
                                      "<ECU-VARIANTS><ECU-VARIANT ID='v'><SHORT-NAME>V</SHORT-NAME><PARENT-REFS>"
                                      "<PARENT-REF ID-REF='bv.One'/><PARENT-REF ID-REF='bv.Two'/></PARENT-REFS>"
                                      "</ECU-VARIANT></ECU-VARIANTS>"));
    ImportOptions options = Inputs({file.Path()});
    for (const auto& [base, count] : {std::pair("One", 1u), std::pair("Two", 0u)}) {
        options.baseVariant = base;
        Imported imported(options);
        EXPECT_EQ(imported.Codes(), "ODX0411");
        EXPECT_EQ(imported.diagnostics.Kept()[0].message,
                  "\"V\" belongs to the base variant \"One\" and inherits from \"Two\", too");
        EXPECT_EQ(imported.document.GetBaseVariant().GetEcuVariantCollection().Count(), count) << base;
    }
}
