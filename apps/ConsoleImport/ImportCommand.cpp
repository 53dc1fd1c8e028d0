#include "Commands.h"

#include "ExitCodes.h"
#include "Logging.h"
#include "ProgressBar.h"
#include "Record.h"
#include "Summary.h"

#include <ImportDame/ImportDoc.h>
#include <OdxImport/Importer.h>
#include <SqliteBackend/WriteDatabase.h>

#include <new>

namespace ConsoleImport {

namespace {

OdxImport::ImportOptions OptionsOf(const Arguments& arguments) {
    OdxImport::ImportOptions options;
    options.inputs = arguments.inputs;
    options.baseVariant = arguments.baseVariant;
    options.language = arguments.language;
    return options;
}

/// Says why nothing was imported, and what to do about it.
void ExplainNothing(const OdxImport::ImportResult& result, const Arguments& arguments, Console& console) {
    using OdxImport::ImportStatus;
    if (result.status == ImportStatus::NoInput) {
        console.Problem("ConsoleImport: nothing of the inputs was read\n");
        console.Advice("Give PDX archives, ODX files or folders with such files.\n");
        return;
    }
    if (result.status == ImportStatus::NeedsChoice)
        console.Problem("ConsoleImport: the inputs hold several base variants; one is imported at a time\n");
    else if (arguments.baseVariant.empty())
        console.Problem("ConsoleImport: the inputs hold no base variant\n");
    else
        console.Problem("ConsoleImport: the inputs hold no base variant " + PrintableInLine(arguments.baseVariant) +
                        "\n");
    if (result.baseVariants.empty())
        return console.Advice("Run \"ConsoleImport list\" on them to see what they hold.\n");
    const bool areNamesakes = result.status == ImportStatus::NeedsChoice && result.baseVariants.size() == 1;
    std::string choices =
        areNamesakes ? "Leave the files with the others out of the inputs, or take the first one:\n" : "Choose one:\n";
    for (const std::string& name : result.baseVariants)
        choices += "  --base-variant " + PrintableInLine(name) + "\n";
    console.Advice(choices);
}

/// The new database is in place by now, whatever happens to the words about it.
void Tell(Console& console, const Summary& summary) {
    try {
        PrintSummary(console, summary);
    } catch (const std::bad_alloc&) {
        console.Error() << "ConsoleImport: the database is complete, but there is no memory left to tell about it\n";
    }
}

} // namespace

int RunImport(const Arguments& arguments, Console& console) {
    const auto start = std::chrono::steady_clock::now();
    const std::int64_t time = TimeOfImport();
    Logging logging(console);
    ProgressBar progress(console, arguments.progress);
    ImportDame::VImportDoc document;
    OdxImport::DiagnosticCollector diagnostics(arguments.isStrict);
    OdxImport::Ledger ledger;
    const OdxImport::ImportResult result =
        OdxImport::Import(OptionsOf(arguments), document, diagnostics, ledger, progress);
    progress.Clear();
    const bool hasErrors = ReportProblems(diagnostics, arguments, console);
    if (result.status != OdxImport::ImportStatus::Completed) {
        ExplainNothing(result, arguments, console);
        return exitNothingDone;
    }
    console.CheckLog();
    if (!arguments.dump.empty())
        logging.WriteDump(document, arguments.dump);
    const std::string outputText = PrintableInLine(TextOf(arguments.output));
    const SqliteBackend::ImportRecord record = MakeRecord(arguments, result, diagnostics, ledger, time);
    const SqliteBackend::WriteResult database =
        SqliteBackend::WriteDatabase(document, record, arguments.output, &progress);
    progress.Clear();
    const auto duration =
        std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start);
    Tell(console, {result, diagnostics, ledger, database, outputText, duration});
    return hasErrors ? exitDoneWithErrors : exitDone;
}

} // namespace ConsoleImport
