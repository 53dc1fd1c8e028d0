#include "Arguments.h"

#include "Console.h"
#include "ExitCodes.h"
#include "WrittenFiles.h"

#include <ImportDame/FailureReport.h>
#include <SqliteBackend/Utf8.h>
#include <SqliteBackend/WriteDatabase.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <sstream>
#include <utility>

namespace ConsoleImport {

namespace {

constexpr const char* description =
    "Imports ODX data (ISO 22901-1) of one ECU into an SQLite database.\n"
    "An INPUT is a PDX archive, an ODX file (.odx, .odx-d, .odx-c, ...) or a folder with such files.";

constexpr const char* importExamples =
    "Examples:\n"
    "  ConsoleImport import engine.pdx --output engine.sqlite\n"
    "  ConsoleImport import engine.pdx shared/ --output engine.sqlite --base-variant ECM --strict\n"
    "  ConsoleImport import engine.pdx --output engine.sqlite --diagnostics json > diagnostics.json\n"
    "  ConsoleImport import engine.pdx --output engine.sqlite --dump - | less\n";

constexpr const char* listExamples = "Examples:\n"
                                     "  ConsoleImport list engine.pdx shared/\n"
                                     "  ConsoleImport list engine.pdx --diagnostics json 2>/dev/null\n";

constexpr const char* examples =
    "Examples:\n"
    "  ConsoleImport list engine.pdx\n"
    "  ConsoleImport import engine.pdx --output engine.sqlite\n"
    "  ConsoleImport import --help\n"
    "\n"
    "Exit codes: 0 done, 1 done with errors, 2 wrong command line, 3 nothing to import or a choice is\n"
    "needed, 4 a file cannot be written, 5 out of memory, 6 defect of the program, 130 interrupted\n";

/// The options as CLI11 fills them.
struct Raw {
    std::vector<std::string> inputs;
    std::string output;
    std::string dump;
    std::string log;
};

template <class Value>
using Words = std::vector<std::pair<std::string, Value>>;

/// An option whose value is one of some words.
template <class Value>
void AddChoice(CLI::App& command, const char* name, Value& value, const Words<Value>& words, const char* meaning) {
    std::string all;
    for (const auto& word : words)
        all += (all.empty() ? "" : "|") + word.first;
    const auto choose = [name, &value, words, all](const CLI::results_t& texts) {
        const auto found =
            std::find_if(words.begin(), words.end(), [&](const auto& word) { return word.first == texts.front(); });
        if (found == words.end())
            throw CLI::ValidationError(name, "\"" + texts.front() + "\" is none of " + all);
        value = found->second;
        return true;
    };
    command.add_option(name, choose, meaning)->type_name(all);
}

/// What both commands have.
void AddReporting(CLI::App& command, Arguments& arguments, Raw& raw) {
    command.add_flag("--strict", arguments.isStrict, "Count warnings as errors");
    AddChoice(command, "--diagnostics", arguments.diagnostics,
              {{"text", DiagnosticsFormat::Text}, {"json", DiagnosticsFormat::Json}},
              "text: for people, to standard error; json: for programs, to standard output");
    AddChoice(command, "--progress", arguments.progress,
              {{"auto", ProgressMode::Auto}, {"always", ProgressMode::Always}, {"never", ProgressMode::Never}},
              "Show a progress bar; auto: on a terminal");
    command.add_option("--log", raw.log, "Write everything that is reported to a file as well")->type_name("FILE");
}

void AddImport(CLI::App& app, Arguments& arguments, Raw& raw) {
    CLI::App& command = *app.add_subcommand("import", "Import the inputs into a database");
    command.footer(importExamples);
    command.add_option("INPUT", raw.inputs, "PDX archives, ODX files, folders; together one import")->required();
    command.add_option("-o,--output", raw.output, "The database to write; replaced when it is there")
        ->required()
        ->type_name("FILE.sqlite");
    command.add_option("--base-variant", arguments.baseVariant, "SHORT-NAME of the base variant; needed for several")
        ->type_name("NAME");
    command.add_option("--language", arguments.language, "Language of the texts, stored with them")->type_name("LANG");
    command.add_option("--dump", raw.dump, "Write a readable dump of the imported document; - is standard output")
        ->type_name("FILE|-");
    AddReporting(command, arguments, raw);
    command.add_flag("-q,--quiet", arguments.isQuiet, "Report errors only");
    command.callback([&arguments] { arguments.command = Command::Import; });
}

void AddList(CLI::App& app, Arguments& arguments, Raw& raw) {
    CLI::App& command = *app.add_subcommand("list", "Tell which layers the inputs hold, and how much is in them");
    command.footer(listExamples);
    command.add_option("INPUT", raw.inputs, "PDX archives, ODX files, folders")->required();
    AddReporting(command, arguments, raw);
    command.callback([&arguments] { arguments.command = Command::List; });
}

void CheckTogether(const Arguments& arguments) {
    if (arguments.DumpsToStandardOutput() && arguments.diagnostics == DiagnosticsFormat::Json)
        throw CLI::ValidationError("--dump - and --diagnostics json",
                                   "both write to standard output; give the dump a file");
    if (arguments.command == Command::Import && arguments.output.empty())
        throw CLI::ValidationError("--output", "names no file");
    if (const std::string conflict = ConflictOfWrittenFiles(arguments); !conflict.empty())
        throw CLI::ValidationError(conflict);
}

void CheckCommand(const CLI::App& app, const std::string& word) {
    const auto commands = app.get_subcommands([](const CLI::App*) { return true; });
    const auto isCommand = [&](const CLI::App* command) { return command->get_name() == word; };
    if (!word.starts_with('-') && std::none_of(commands.begin(), commands.end(), isCommand))
        throw CLI::ValidationError("\"" + word + "\" is no command", "the commands are import and list");
}

std::string FullVersion() {
    return "ConsoleImport " + VersionText() + " (SQLite " + SqliteBackend::SqliteVersion() + ")";
}

} // namespace

ParsedArguments ParseArguments(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    ParsedArguments parsed;
    Raw raw;
    CLI::App app{description, "ConsoleImport"};
    app.footer(examples);
    app.set_version_flag("--version", FullVersion(), "Print the version and exit");
    app.require_subcommand(1);
    app.allow_windows_style_options(false); // "/data/engine.pdx" is a name on both platforms
    AddImport(app, parsed.arguments, raw);
    AddList(app, parsed.arguments, raw);
    if (arguments.empty()) {
        err << app.help();
        parsed.exitCode = exitUsage;
        return parsed;
    }
    try {
        CheckCommand(app, arguments.front());
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
        std::transform(raw.inputs.begin(), raw.inputs.end(), std::back_inserter(parsed.arguments.inputs), PathOf);
        parsed.arguments.output = PathOf(raw.output);
        parsed.arguments.dump = PathOf(raw.dump);
        parsed.arguments.log = PathOf(raw.log);
        CheckTogether(parsed.arguments);
    } catch (const CLI::ParseError& error) {
        parsed.arguments.command = Command::None;
        std::ostringstream words;
        parsed.exitCode = app.exit(error, out, words) == 0 ? exitDone : exitUsage;
        err << Printable(words.str());
    }
    return parsed;
}

std::string VersionText() {
    std::string text;
    SqliteBackend::AppendUtf8(ImportDame::GetVersionText(), text);
    return text;
}

std::filesystem::path PathOf(const std::string& utf8) {
    return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

std::string TextOf(const std::filesystem::path& path) {
    return SqliteBackend::PathText(path.u8string());
}

} // namespace ConsoleImport
