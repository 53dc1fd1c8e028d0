#include "SqliteBackend/WriteDatabase.h"

#include "Schema.h"
#include "SqliteBackend/Utf8.h"
#include "store/ReplacedFile.h"
#include "store/WritingThread.h"
#include "tables/Contents.h"
#include "tables/Conversions.h"
#include "tables/DataTypes.h"
#include "tables/Document.h"
#include "tables/Enumerations.h"
#include "tables/ImportRecords.h"
#include "tables/Packets.h"
#include "tables/Properties.h"
#include "tables/TroubleCodes.h"
#include "tables/Values.h"
#include "tables/Variants.h"

#include <ImportDame/BaseVariant.h>
#include <ImportDame/DataTypeCollection.h>
#include <ImportDame/DiagCommCollection.h>
#include <ImportDame/EcuVariant.h>
#include <ImportDame/EcuVariantCollection.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/TroubleCodeCollectionCollection.h>

#include <sqlite3.h>

#include <algorithm>

namespace SqliteBackend {

namespace {

/// Nobody but us sees the file before it is complete, so it needs no journal; it is flushed once, at the end. What is
/// deleted on the way is overwritten, so that the bytes are the same however SQLite was built. The constraints of the
/// schema are for those who change the database later: what is written here fulfils them.
constexpr const char* settings = R"(
PRAGMA journal_mode = OFF;
PRAGMA synchronous = OFF;
PRAGMA secure_delete = ON;
PRAGMA locking_mode = EXCLUSIVE;
PRAGMA temp_store = MEMORY;
PRAGMA cache_size = -32768;
PRAGMA ignore_check_constraints = ON;
)";

std::uint64_t ObjectsOf(ImportDame::VImportDoc& document) {
    std::uint64_t objects = document.DataTypeCollection().Count();
    objects += document.TroubleCodeCollectionCollection().TroubleCodesCount();
    objects += document.GetBaseVariant().DiagCommCollection().Count();
    for (ImportDame::VEcuVariant& variant : document.GetBaseVariant().GetEcuVariantCollection())
        objects += variant.DiagCommCollection().Count();
    return objects;
}

void NumberDataTypes(ImportDame::VDataTypeCollection& collection, References<ImportDame::VDataType>& rows) {
    std::int64_t row = 0;
    for (ImportDame::VDataType& dataType : collection)
        rows.Add(dataType, ++row);
}

void WriteRows(Connection& connection, ImportDame::VImportDoc& document, const ImportRecord& record, Tally& tally,
               WriteProgress* progress) {
    std::uint64_t done = 0;
    const std::uint64_t total = ObjectsOf(document);
    const std::function<void()> written = [&done, total, progress] {
        ++done;
        if (progress)
            progress->Step(done, total);
    };

    References<ImportDame::VDataType> dataTypeRows(tally);
    NumberDataTypes(document.DataTypeCollection(), dataTypeRows);
    Attributes attributes(connection, tally);
    Values values(connection, tally);
    Properties properties(connection, tally);
    Conversions conversions(connection, tally, values);
    Contents contents(connection, tally, attributes, values, dataTypeRows);
    Packets packets(connection, tally, attributes, values, contents, dataTypeRows);
    ImportRecords importRecords(connection, tally);
    Enumerations enumerations(connection, tally);
    Document documentRows(connection, tally, attributes);
    DataTypes dataTypes(connection, tally, attributes, properties, conversions, packets);
    TroubleCodes troubleCodes(connection, tally, attributes);
    Variants variants(connection, tally, attributes);
    const WritingThread thread(connection); // gone before the tables are

    enumerations.Write();
    importRecords.Write(record);
    documentRows.Write(document);
    dataTypes.Write(document.DataTypeCollection(), written);
    contents.Write(ContentOwner::Document, 0, document.InterchangeableCollection());
    contents.WriteSelectors();
    troubleCodes.Write(document.TroubleCodeCollectionCollection(), written);
    variants.Write(document.GetBaseVariant(), written);
    importRecords.WriteLosses();
    connection.FlushAll();
}

void Fill(const std::filesystem::path& file, ImportDame::VImportDoc& document, const ImportRecord& record, Tally& tally,
          WriteProgress* progress) {
    Connection connection(file);
    connection.Execute(settings);
    connection.Execute("BEGIN EXCLUSIVE");
    CreateTables(connection);
    WriteRows(connection, document, record, tally, progress);
    CreateIndexesAndViews(connection);
    connection.Execute("COMMIT");
    connection.Close();
}

} // namespace

WriteProgress::~WriteProgress() = default;

std::uint64_t WriteResult::RowsOf(const std::string& table) const {
    const auto found =
        std::find_if(rows.begin(), rows.end(), [&table](const auto& entry) { return entry.first == table; });
    return found == rows.end() ? 0 : found->second;
}

WriteResult WriteDatabase(ImportDame::VImportDoc& document, const ImportRecord& record,
                          const std::filesystem::path& target, WriteProgress* progress) {
    try {
        Tally tally;
        WriteResult result;
        ReplacedFile file(target);
        Fill(file.Temporary(), document, record, tally, progress);
        result.rows.assign(tally.rows.begin(), tally.rows.end());
        result.replacedCharacters = tally.replacedCharacters;
        result.unknownReferences = tally.unknownReferences;
        result.bytes = file.PutInPlace();
        return result;
    } catch (const WriteError& error) {
        throw WriteError("cannot write " + PathText(target.u8string()) + ": " + error.what(), error.Advice());
    }
}

const char* SqliteVersion() {
    return sqlite3_libversion();
}

} // namespace SqliteBackend
