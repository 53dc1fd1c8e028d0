#include "Commands.h"

#include "ExitCodes.h"
#include "ProgressBar.h"
#include "Summary.h"

#include <OdxImport/Importer.h>

#include <algorithm>

namespace ConsoleImport {

namespace {

void PrintDocuments(const std::vector<OdxImport::InputDocument>& documents, Console& console) {
    console.Result(Counted(documents.size(), "document") + "\n", Style::Title);
    for (const OdxImport::InputDocument& document : documents)
        console.Result("  " + PadRight(PrintableInLine(document.category), 22) + " " +
                       PadRight(PrintableInLine(document.shortName), 28) + " " + PadLeft(SizeText(document.bytes), 10) +
                       "  " + PrintableInLine(document.file) + "\n");
}

std::string Parents(const OdxImport::LayerSummary& layer) {
    std::string text;
    for (const std::string& parent : layer.parents)
        text += (text.empty() ? "  < " : ", ") + PrintableInLine(parent);
    return text;
}

void PrintLayers(const std::vector<OdxImport::LayerSummary>& layers, Console& console) {
    console.Result("\n" + Counted(layers.size(), "layer") + "\n", Style::Title);
    console.Result("  " + PadRight("kind", 18) + " " + PadRight("name", 28) + PadLeft("services", 10) +
                       PadLeft("data objects", 14) + PadLeft("trouble codes", 15) + "\n",
                   Style::Faint);
    for (const OdxImport::LayerSummary& layer : layers)
        console.Result("  " + PadRight(layer.kind, 18) + " " + PadRight(PrintableInLine(layer.shortName), 28) +
                       PadLeft(Grouped(layer.services), 10) + PadLeft(Grouped(layer.dataObjects), 14) +
                       PadLeft(Grouped(layer.troubleCodes), 15) + Parents(layer) + "\n");
}

void PrintNextStep(const OdxImport::Listing& listing, Console& console) {
    const auto isBase = [](const OdxImport::LayerSummary& layer) { return layer.kind == "BASE-VARIANT"; };
    const auto base = std::find_if(listing.layers.begin(), listing.layers.end(), isBase);
    if (base == listing.layers.end())
        return console.Result("\nThere is no base variant, so there is nothing to import.\n");
    console.Result("\nNext: ConsoleImport import INPUT... --output FILE.sqlite --base-variant " +
                   PrintableInLine(base->shortName) + "\n");
}

} // namespace

int RunList(const Arguments& arguments, Console& console) {
    OdxImport::ImportOptions options;
    options.inputs = arguments.inputs;
    OdxImport::DiagnosticCollector diagnostics(arguments.isStrict);
    ProgressBar progress(console, arguments.progress);
    const OdxImport::Listing listing = OdxImport::List(options, diagnostics, progress);
    progress.Clear();
    const bool hasErrors = ReportProblems(diagnostics, arguments, console);
    if (listing.documents.empty()) {
        console.Problem("ConsoleImport: nothing of the inputs was read\n");
        return exitNothingDone;
    }
    PrintDocuments(listing.documents, console);
    PrintLayers(listing.layers, console);
    PrintNextStep(listing, console);
    return hasErrors ? exitDoneWithErrors : exitDone;
}

} // namespace ConsoleImport
