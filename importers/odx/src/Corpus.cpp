#include "Corpus.h"

#include <algorithm>
#include <array>

namespace OdxImport {

namespace {

constexpr std::array<std::string_view, 9> categories{
    "DIAG-LAYER-CONTAINER", "COMPARAM-SPEC",         "COMPARAM-SUBSET",     "VEHICLE-INFO-SPEC",       "FLASH",
    "ECU-CONFIG",           "MULTIPLE-ECU-JOB-SPEC", "FUNCTION-DICTIONARY", "FUNCTION-DICTIONARY-SPEC"};

} // namespace

void Corpus::Read(const ImportOptions& options, ProgressSink& progress) {
    m_layers.LimitInherited(options.limits.inherited);
    const bool isComplete = ReadInputs(options, m_reporter, progress, [&](SourceDocument&& source) {
        Add(std::move(source), options.limits.nesting);
    });
    if (!isComplete)
        return;
    if (m_documents.empty()) {
        m_reporter.Report(Rule::NothingToRead, {}, "no ODX document could be read from the inputs");
        return;
    }
    progress.Step(Phase::Linking, 0, 1);
    Connect();
    progress.Step(Phase::Linking, 1, 1);
}

void Corpus::Connect() {
    for (const auto& document : m_documents)
        m_layers.Add(*document);
    m_layers.Connect();
}

void Corpus::Add(SourceDocument&& source, std::uint32_t nesting) {
    InputDocument summary{source.name, source.bytes.Size(), std::move(source.sha256), {}, {}, {}};
    std::optional<DecodedText> text = DecodeDocument(std::move(source.bytes), source.name, m_reporter);
    if (!text)
        return;
    std::unique_ptr<XmlDocument> document =
        XmlDocument::Parse(std::move(source.name), std::move(*text), nesting, m_reporter);
    if (document == nullptr)
        return;
    const Element root = document->Root();
    if (!root.Is("ODX")) {
        m_reporter.Report(Rule::RootNotOdx, root.Where(), "the root element is " + std::string(root.Tag()));
        return;
    }
    CheckRoot(*document, summary);
    m_links.Add(*document);
    m_documents.push_back(std::move(document));
    m_summaries.push_back(std::move(summary));
}

void Corpus::CheckRoot(XmlDocument& document, InputDocument& summary) const {
    const Element root = document.Root();
    summary.modelVersion =
        root.HasAttribute("MODEL-VERSION") ? root.Attribute("MODEL-VERSION") : root.Attribute("VERSION");
    if (summary.modelVersion.empty())
        m_reporter.Report(Rule::ModelVersionMissing, root.Where(), "the root has no MODEL-VERSION; taken as 2.2.0");
    else if (!summary.modelVersion.starts_with("2.0.") && !summary.modelVersion.starts_with("2.1.") &&
             !summary.modelVersion.starts_with("2.2."))
        m_reporter.Report(Rule::ModelVersionUnknown, root.Where(), "MODEL-VERSION is \"" + summary.modelVersion + "\"");
    const Element category = root.FirstChild();
    summary.category = category.Tag();
    summary.shortName = category ? category.ShortName() : std::string_view();
    if (std::find(categories.begin(), categories.end(), category.Tag()) == categories.end())
        m_reporter.Report(Rule::CategoryUnknown, root.Where(),
                          category ? "the document is about " + std::string(category.Tag()) : "the document is empty");
}

} // namespace OdxImport
