#ifndef ODXTESTS_SUPPORT_IMPORTS_H
#define ODXTESTS_SUPPORT_IMPORTS_H

#include "OdxImport/Importer.h"

#include <ImportDame/ImportDame.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace OdxTests {

/// One import into a document of its own.
struct Imported {
    ImportDame::VImportDoc document;
    OdxImport::DiagnosticCollector diagnostics;
    OdxImport::Ledger ledger;
    OdxImport::ImportResult result;

    explicit Imported(const OdxImport::ImportOptions& options);
    explicit Imported(const std::filesystem::path& input);
    Imported(const Imported&) = delete;

    /// The first data type with this qualifier; throws when there is none or it is of another kind.
    template <class Type>
    Type& DataType(const wchar_t* qualifier) {
        return dynamic_cast<Type&>(FindDataType(qualifier));
    }

    std::string Codes() const;

private:
    ImportDame::VDataType& FindDataType(const wchar_t* qualifier);
};

/// Writes the text to a file of its own, which is removed at the end of the test.
class TemporaryFile {
public:
    TemporaryFile(std::string_view name, std::string_view content);
    TemporaryFile(const TemporaryFile&) = delete;
    ~TemporaryFile();

    const std::filesystem::path& Path() const { return m_path; }

private:
    std::filesystem::path m_folder;
    std::filesystem::path m_path;
};

/// Everything in an interchangeable collection: "SID:A_UINT32_8 gap:16 State:State [Running:OnOff gap:7]".
std::wstring Describe(ImportDame::VInterchangeableCollection& members);

/// "[10,255]" with the texts of the ends, empty where there is none.
std::wstring Describe(ImportDame::VRange& range);

/// The value of the first attribute with this qualifier; "(none)" without one.
std::wstring Attribute(ImportDame::VAttributeCollection& attributes, const wchar_t* qualifier);

/// A container with one base variant that has this content.
std::string BaseVariant(std::string_view content);

} // namespace OdxTests

#endif
