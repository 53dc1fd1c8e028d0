#include "OdxImport/Importer.h"

#include "Corpus.h"
#include "accounting/Accounting.h"
#include "mapping/DocumentMapper.h"
#include "report/Words.h"

#include <algorithm>
#include <unordered_set>

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

void ReportNamesakes(const std::vector<Layer*>& variants, const Layer& chosen, const Reporter& reporter) {
    for (const Layer* variant : variants)
        if (variant != &chosen && variant->shortName == chosen.shortName)
            reporter.Report(Rule::ShortNameTwice, variant->element.Where(),
                            Words({"there is a base variant \"", chosen.shortName, "\" in ",
                                   chosen.element.Document().Name(), ", too; that one is imported"}));
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
        reporter.Report(Rule::BaseVariantChoice, {}, "there are several base variants: " + Listed(result.baseVariants));
    } else if (found == variants.end()) {
        reporter.Report(Rule::BaseVariantNotFound, {},
                        "there is no base variant \"" + chosen + "\"; there are: " + Listed(result.baseVariants));
    } else {
        result.status = ImportStatus::Completed;
        result.baseVariant = (*found)->shortName;
        ReportNamesakes(variants, **found, reporter);
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
