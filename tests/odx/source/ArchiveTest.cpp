#include "source/Archive.h"

#include "source/FileKinds.h"
#include "support/Archives.h"
#include "support/Corpora.h"

#include <gtest/gtest.h>

using namespace OdxImport;
using OdxTests::MakeArchive;

namespace {

struct Read {
    DiagnosticCollector diagnostics;
    std::vector<std::pair<std::string, std::string>> entries;
    Budget budget{1000000};

    std::string Codes() const { return OdxTests::Codes(diagnostics); }
};

Read ReadAll(std::string_view archive, const Limits& limits = {}, std::uint64_t budget = 1000000) {
    Read read;
    read.budget.bytes = budget;
    const Reporter reporter(read.diagnostics);
    ReadArchive("a.pdx", archive, limits, read.budget, reporter, [&](std::string name, Bytes&& bytes) {
        read.entries.emplace_back(std::move(name), std::string(bytes.View()));
    });
    return read;
}

} // namespace

TEST(ArchiveTest, DocumentsComeInTheOrderOfTheirNamesAndNothingElseIsRead) {
    const Read read = ReadAll(MakeArchive({{"z.odx-d", "<z/>"}, {"index.xml", "<c/>"}, {"sub/a.ODX-D", "<a/>"}}));
    ASSERT_EQ(read.entries.size(), 2u);
    EXPECT_EQ(read.entries[0], std::make_pair(std::string("a.pdx!sub/a.ODX-D"), std::string("<a/>")));
    EXPECT_EQ(read.entries[1], std::make_pair(std::string("a.pdx!z.odx-d"), std::string("<z/>")));
    EXPECT_EQ(read.Codes(), "ODX0111");
    EXPECT_EQ(read.diagnostics.Kept()[0].where.file, "a.pdx!index.xml");
}

TEST(ArchiveTest, DocumentsMayBeNamedAsXmlWhenTheirRootShowsWhatTheyAre) {
    const std::string wide("\xFF\xFE<\0O\0D\0X\0>\0<\0/\0O\0D\0X\0>\0", 24);
    const Read read =
        ReadAll(MakeArchive({{"a.xml", "<?xml version='1.0'?>\n<!-- of a tool -->\n<ODX VERSION='2.0.1'/>"},
                             {"b.XML", "<o:ODX xmlns:o='x'/>"},
                             {"c.xml", wide},
                             {"index.xml", "<CATALOG F-DTD-VERSION='ODX-2.2.0'/>"},
                             {"other.xml", "<ODXLIKE/>"}}));
    ASSERT_EQ(read.entries.size(), 3u);
    EXPECT_EQ(read.entries[0].first, "a.pdx!a.xml");
    EXPECT_EQ(read.entries[1].first, "a.pdx!b.XML");
    EXPECT_EQ(read.entries[2].first, "a.pdx!c.xml");
    EXPECT_EQ(read.Codes(), "ODX0111 ODX0111");
}

TEST(ArchiveTest, AnEmptyArchiveHasNoDocuments) {
    const Read read = ReadAll(std::string("PK\x05\x06") + std::string(18, '\0'));
    EXPECT_TRUE(read.entries.empty());
    EXPECT_EQ(read.Codes(), "");
}

TEST(ArchiveTest, WhatIsNoArchiveIsReported) {
    EXPECT_EQ(ReadAll("PK\x03\x04 and then nonsense").Codes(), "ODX0104");
    EXPECT_EQ(ReadAll("").Codes(), "ODX0104");
}

TEST(ArchiveTest, AnArchiveCutAnywhereIsReportedAndNeverCrashes) {
    const std::string whole = MakeArchive({{"a.odx-d", std::string(500, 'a')}, {"b.odx-d", "<b/>"}});
    for (std::size_t size = 4; size < whole.size(); ++size) {
        const Read read = ReadAll(whole.substr(0, size));
        EXPECT_NE(read.Codes(), "") << size;
    }
}

TEST(ArchiveTest, AChangedByteInAnEntryIsFoundByItsChecksum) {
    std::string archive = MakeArchive({{"a.odx-d", "<abcdefgh/>"}}, OdxTests::Packing::Stored);
    archive[archive.find("abcdefgh")] = 'X';
    const Read read = ReadAll(archive);
    EXPECT_TRUE(read.entries.empty());
    EXPECT_EQ(read.Codes(), "ODX0105");
}

TEST(ArchiveTest, NamesThatLeadOutAreShownAndTheEntryIsReadAllTheSame) {
    for (const char* name : {"../a.odx-d", "x/../../a.odx-d", "/etc/a.odx-d", "C:\\a.odx-d", "..\\a.odx-d"}) {
        const Read read = ReadAll(MakeArchive({{name, "<a/>"}}));
        EXPECT_EQ(read.Codes(), "ODX0113") << name;
        ASSERT_EQ(read.entries.size(), 1u) << name;
        EXPECT_EQ(read.entries[0].first, std::string("a.pdx!") + name);
    }
    EXPECT_EQ(ReadAll(MakeArchive({{"a..b/c.odx-d", "<a/>"}})).Codes(), "");
}

TEST(ArchiveTest, AnEntryThatUnpacksToFarTooMuchIsNotUnpacked) {
    const std::string bomb = MakeArchive({{"a.odx-d", std::string(3000000, ' ')}});
    const Read read = ReadAll(bomb, {}, 100000000);
    EXPECT_TRUE(read.entries.empty());
    EXPECT_EQ(read.Codes(), "ODX0108");
}

TEST(ArchiveTest, SmallEntriesMayHaveAnyRatio) {
    EXPECT_EQ(ReadAll(MakeArchive({{"a.odx-d", std::string(900000, ' ')}})).entries.size(), 1u);
}

TEST(ArchiveTest, LimitsOnSizeCountAndTotalHold) {
    const std::string archive = MakeArchive({{"a.odx-d", "<aaaaaaaa/>"}, {"b.odx-d", "<b/>"}});
    Limits limits;
    limits.documentBytes = 10;
    EXPECT_EQ(ReadAll(archive, limits).Codes(), "ODX0106");
    EXPECT_EQ(ReadAll(archive, limits).entries.size(), 1u);
    limits = {};
    limits.archiveEntries = 1;
    EXPECT_EQ(ReadAll(archive, limits).Codes(), "ODX0107");
    EXPECT_TRUE(ReadAll(archive, limits).entries.empty());
    EXPECT_EQ(ReadAll(archive, {}, 12).Codes(), "ODX0109");
    EXPECT_EQ(ReadAll(archive, {}, 12).entries.size(), 1u);
}

TEST(ArchiveTest, EncryptedEntriesAreReported) {
    const Read read = ReadAll(MakeArchive({{"a.odx-d", "<a/>"}}, OdxTests::Packing::Encrypted));
    EXPECT_TRUE(read.entries.empty());
    EXPECT_EQ(read.Codes(), "ODX0110");
}

TEST(ArchiveTest, WhatCannotBeUnpackedIsReportedUnderAnyNameOfADocument) {
    for (const char* name : {"a.odx-d", "a.xml"}) {
        EXPECT_EQ(ReadAll(MakeArchive({{name, "<ODX/>"}}, OdxTests::Packing::Encrypted)).Codes(), "ODX0110") << name;
        std::string damaged = MakeArchive({{name, std::string(500, 'a') + std::string(500, 'b')}});
        damaged[30 + std::string(name).size()] = '\x07'; // a kind of block that there is not
        EXPECT_EQ(ReadAll(damaged).Codes(), "ODX0105") << name;
    }
}

TEST(ArchiveTest, APackingThatIsNotReadIsReportedUnderAnyNameOfADocument) {
    for (const char* name : {"a.odx-d", "a.xml"}) {
        std::string archive = MakeArchive({{name, "<ODX/>"}});
        archive[8] = archive[archive.find("PK\x01\x02") + 10] = 97; // the method: sound
        const Read read = ReadAll(archive);
        ASSERT_EQ(read.Codes(), "ODX0114") << name;
        EXPECT_EQ(read.diagnostics.Kept()[0].where.file, std::string("a.pdx!") + name);
        EXPECT_STREQ(InfoOf(Rule::ArchivePackingUnknown).advice, "Pack the archive with deflate, the usual way.");
    }
}

TEST(FileKindsTest, EndingsOfOdxDocumentsAreKnownInAnyCase) {
    for (const char* name :
         {"a.odx", "a.odx-d", "a.odx-c", "a.odx-cs", "a.odx-v", "a.odx-f", "a.odx-fd", "a.odx-e", "a.odx-m", "A.ODX-D"})
        EXPECT_TRUE(IsOdxName(name)) << name;
    for (const char* name : {"", ".odx", "odx", "a.xml", "a.odx-dd", "a.odx.bak", "a.pdx"})
        EXPECT_FALSE(IsOdxName(name)) << name;
    EXPECT_TRUE(IsArchiveName("a.PDX"));
    EXPECT_FALSE(IsArchiveName("a.zip"));
}
