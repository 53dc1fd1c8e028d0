#include "Corpus.h"
#include "OdxImport/Importer.h"

namespace OdxImport {

namespace {

std::uint64_t CountOwn(const Layer& layer, Category category) {
    return layer.own[static_cast<std::size_t>(category)].Entries().size();
}

LayerSummary Summarize(const Layer& layer) {
    LayerSummary summary;
    summary.kind = layer.element.Tag();
    summary.shortName = layer.shortName;
    summary.longName = layer.element.Child("LONG-NAME").Text();
    summary.file = layer.element.Document().Name();
    summary.container = layer.element.Parent().Parent().ShortName();
    for (const ParentLink& link : layer.parents)
        summary.parents.emplace_back(link.parent->shortName);
    summary.services = CountOwn(layer, Category::DiagComm);
    summary.dataObjects = CountOwn(layer, Category::DataObject);
    for (const auto& entry : layer.own[static_cast<std::size_t>(Category::DataObject)].Entries())
        for ([[maybe_unused]] const Element dtc : Children(entry.value.element.Child("DTCS"), "DTC"))
            ++summary.troubleCodes;
    return summary;
}

} // namespace

Listing List(const ImportOptions& options, DiagnosticSink& diagnostics, ProgressSink& progress) {
    const Reporter reporter(diagnostics);
    Corpus corpus(reporter);
    corpus.Read(options, progress);
    Listing listing{corpus.Summaries(), {}};
    for (const auto& layer : corpus.Layers().All())
        listing.layers.push_back(Summarize(*layer));
    return listing;
}

} // namespace OdxImport
