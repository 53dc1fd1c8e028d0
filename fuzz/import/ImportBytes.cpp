#include "import/ImportBytes.h"

#include <ImportDame/ImportDame.h>
#include <OdxImport/Importer.h>
#include <SqliteBackend/WriteDatabase.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

namespace Fuzz {

namespace {

/// A folder of the process, which is gone at its end.
class Folder {
public:
    Folder()
        : m_path(std::filesystem::temp_directory_path() /
                 ("importdame-fuzz-" + std::to_string(std::random_device()()))) {
        std::filesystem::create_directories(m_path);
    }

    Folder(const Folder&) = delete;

    ~Folder() {
        std::error_code error;
        std::filesystem::remove_all(m_path, error);
    }

    [[nodiscard]] std::filesystem::path File(const char* name) const { return m_path / name; }

private:
    std::filesystem::path m_path;
};

class StepsInOrder : public OdxImport::ProgressSink {
public:
    void Step(OdxImport::Phase phase, std::uint64_t done, std::uint64_t total) override {
        Expect(total == 0 || done <= total, "more is done than there is");
        Expect(phase != m_phase || done >= m_done, "progress falls");
        m_phase = phase;
        m_done = done;
    }

private:
    OdxImport::Phase m_phase = OdxImport::Phase::Reading;
    std::uint64_t m_done = 0;
};

void Save(Input input, const std::filesystem::path& path) {
    std::ofstream out(path, std::ios::binary);
    out.write(reinterpret_cast<const char*>(input.data()), static_cast<std::streamsize>(input.size()));
    Expect(out.flush().good(), "the input cannot be written");
}

void ExpectCompleteReport(const OdxImport::DiagnosticCollector& diagnostics) {
    std::ostringstream json;
    OdxImport::WriteJson(json, diagnostics);
    Expect(json.str().size() > 2, "no report");
    for (const OdxImport::Diagnostic& diagnostic : diagnostics.Kept())
        Expect(!diagnostic.message.empty(), "a problem without words");
}

void WriteDatabase(ImportDame::VImportDoc& document, const std::filesystem::path& path) {
    const SqliteBackend::WriteResult result = SqliteBackend::WriteDatabase(document, {}, path);
    Expect(result.unknownReferences == 0, "the document refers to objects that it does not own");
    Expect(result.bytes == std::filesystem::file_size(path), "another size of the database");
}

} // namespace

void ImportBytes(Input input, const char* fileName) {
    static const Folder folder;
    Save(input, folder.File(fileName));
    OdxImport::ImportOptions options;
    options.inputs = {folder.File(fileName)};
    options.limits.documentBytes = options.limits.totalBytes = std::uint64_t{64} << 20;
    options.limits.copies = 10000;
    ImportDame::VImportDoc document;
    OdxImport::DiagnosticCollector diagnostics;
    OdxImport::Ledger ledger;
    StepsInOrder progress;
    const OdxImport::ImportResult result = OdxImport::Import(options, document, diagnostics, ledger, progress);
    Expect(ledger.AddsUp(), "the ledger does not add up");
    ExpectCompleteReport(diagnostics);
    if (result.status == OdxImport::ImportStatus::Completed)
        WriteDatabase(document, folder.File("out.sqlite"));
    else
        Expect(document.DataTypeCollection().IsEmpty(), "nothing is imported, but there is something");
}

void ImportXml(Input input) {
    ImportBytes(input, "input.odx-d");
}

void ImportArchive(Input input) {
    ImportBytes(input, "input.pdx");
}

} // namespace Fuzz
