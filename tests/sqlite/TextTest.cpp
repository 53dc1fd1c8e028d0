#include "sqlite/Database.h"

#include <ImportDame/ImportDame.h>

#include <string>

namespace SqliteBackendTests {

namespace {

class TextTest : public WrittenDocument {
protected:
    /// What the ECU name is in the database.
    std::string Stored(const std::wstring& text) {
        m_document.SetEcuName(text.c_str());
        Write(m_document);
        return Query("SELECT ecu_name FROM document").front();
    }

    ImportDame::VImportDoc m_document;
};

} // namespace

TEST_F(TextTest, EveryLengthOfUtf8IsWritten) {
    EXPECT_EQ(Stored(L"A\u007F\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF"),
              "A\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF");
    EXPECT_EQ(m_result.replacedCharacters, 0U);
}

TEST_F(TextTest, TextsBeyondTheBasicPlaneStayWhole) {
    EXPECT_EQ(Stored(L"\U0001F697 K\u00FChlmittel \u00B0C \u6C34"), "\U0001F697 K\u00FChlmittel \u00B0C \u6C34");
}

TEST_F(TextTest, SurrogatePairsAreOneCharacterWhateverTheSizeOfWideCharacters) {
    const std::wstring pair{static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE97)};
    EXPECT_EQ(Stored(pair), "\xF0\x9F\x9A\x97");
    EXPECT_EQ(m_result.replacedCharacters, 0U);
}

TEST_F(TextTest, LoneSurrogatesBecomeTheReplacementCharacterAndAreCounted) {
    const auto high = static_cast<wchar_t>(0xD83D);
    const auto low = static_cast<wchar_t>(0xDE97);
    EXPECT_EQ(Stored({L'a', high, L'b', low, L'c', high, high, low, high}),
              "a\xEF\xBF\xBD"
              "b\xEF\xBF\xBD"
              "c\xEF\xBF\xBD\xF0\x9F\x9A\x97\xEF\xBF\xBD");
    EXPECT_EQ(m_result.replacedCharacters, 4U);
    EXPECT_EQ(Query("SELECT value FROM import_fact WHERE key = 'characters replaced by U+FFFD'"), Rows{"4"});
}

TEST_F(TextTest, TextsThatLookLikeSqlStayTexts) {
    EXPECT_EQ(Stored(L"'; DROP TABLE document; -- \" ` %s \\"), "'; DROP TABLE document; -- \" ` %s \\");
}

TEST_F(TextTest, ControlCharactersStay) {
    EXPECT_EQ(Stored(L"\x01\t\r\n\x1B[31m"), "\x01\t\r\n\x1B[31m");
}

TEST_F(TextTest, ATextOfAMillionCharactersIsStoredWhole) {
    EXPECT_EQ(Stored(std::wstring(1000000, L'\u00E4')).size(), 2000000U);
}

TEST_F(TextTest, BytesThatAreNoUtf8AreReplacedInRecordsOfTheImport) {
    SqliteBackend::ImportRecord record;
    record.inputs = {{std::string("a\xFF"
                                  "b\0c\xC3\xA4\xC0\xAF\xED\xA0\x80\xF5\x80\xE2\x82",
                                  16),
                      0, "", "", "", ""}};
    Write(m_document, record);
    const std::string bad = "\xEF\xBF\xBD";
    EXPECT_EQ(Query("SELECT file FROM import_input"),
              Rows{"a" + bad + "b" + bad + "c\xC3\xA4" + bad + bad + bad + bad + bad + bad + bad + bad + bad});
    EXPECT_EQ(m_result.replacedCharacters, 11U);
}

} // namespace SqliteBackendTests
