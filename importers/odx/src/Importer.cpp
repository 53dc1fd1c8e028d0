#include "OdxImport/Importer.h"

#include "Corpus.h"
#include "accounting/Accounting.h"
#include "mapping/DocumentMapper.h"
#include "report/Words.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace OdxImport {

namespace {

/// Each once.
std::vector<std::string> NamesOf(const std::vector<Layer*>& layers) {
    std::vector<std::string> names;
    std::unordered_set<std::string_view> known;
    for (const Layer* layer : layers)
        if (known.insert(layer->shortName).second)
            names.emplace_back(layer->shortName);
    return names;
}

std::string Listed(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names)
        text.append(text.empty() ? "" : ", ").append(name);
    return text;
}

/// Those of one name with the files that they are in.
std::string Listed(const std::vector<Layer*>& variants) {
    std::vector<std::pair<std::string_view, std::string>> files;
    std::unordered_map<std::string_view, std::size_t> known;
    for (const Layer* variant : variants) {
        const auto [at, isNew] = known.emplace(variant->shortName, files.size());
        if (isNew)
            files.emplace_back(variant->shortName, "");
        files[at->second].second += (isNew ? "" : ", ") + variant->element.Document().Name();
    }
    const bool areNamesakes = files.size() != variants.size();
    std::string text;
    for (const auto& [name, names] : files)
        text.append(text.empty() ? "" : ", ").append(name).append(areNamesakes ? " in " + names : "");
    return text +
           (areNamesakes ? "; of those of one name the first is taken: leave the files with the others out" : "");
}

/// The base variant to import; null when there is none to take, which is reported and noted in the result.
Layer* Choose(const std::vector<Layer*>& variants, const std::string& chosen, ImportResult& result,
              const Reporter& reporter) {
    result.baseVariants = NamesOf(variants);
    const auto found = std::find_if(variants.begin(), variants.end(), [&](const Layer* variant) {
        return chosen.empty() || variant->shortName == chosen;
    });
    result.status = ImportStatus::NotFound;
    if (variants.empty()) {
        reporter.Report(Rule::BaseVariantMissing, {}, "there is no base variant in the inputs");
    } else if (chosen.empty() && variants.size() > 1) {
        result.status = ImportStatus::NeedsChoice;
        reporter.Report(Rule::BaseVariantChoice, {}, "there are several base variants: " + Listed(variants));
    } else if (found == variants.end()) {
        reporter.Report(Rule::BaseVariantNotFound, {},
                        "there is no base variant \"" + chosen + "\"; there are: " + Listed(result.baseVariants));
    } else {
        result.status = ImportStatus::Completed;
        result.baseVariant = (*found)->shortName;
        return *found;
    }
    return nullptr;
}

void LeaveOutOtherLayers(const Workspace& workspace) {
    for (const auto& layer : workspace.Layers().All())
        if (!workspace.IsPart(*layer))
            layer->element.LeaveOut(Fate::NotRepresented, "the layer does not belong to the imported base variant");
}

} // namespace

ImportResult Import(const ImportOptions& options, ImportDame::VImportDoc& document, DiagnosticSink& diagnostics,
                    Ledger& ledger, ProgressSink& progress) {
    const Reporter reporter(diagnostics);
    Corpus corpus(reporter);
    corpus.Read(options, progress);
    ImportResult result;
    result.documents = corpus.Summaries();
    if (corpus.Documents().empty())
        return result;
    Layer* base = Choose(corpus.Layers().OfKind(LayerKind::BaseVariant), options.baseVariant, result, reporter);
    if (base == nullptr)
        return result;
    Workspace workspace(document, corpus.Links(), corpus.Layers(), reporter, *base, options.limits);
    MapDocument(workspace, options.language, progress);
    LeaveOutOtherLayers(workspace);
    std::uint64_t done = 0;
    for (const auto& each : corpus.Documents()) {
        progress.Step(Phase::Accounting, done++, corpus.Documents().size());
        AccountFor(*each, ledger, reporter);
    }
    progress.Step(Phase::Accounting, done, done);
    return result;
}

} // namespace OdxImport
