#ifndef CONSOLEIMPORT_ARGUMENTS_H
#define CONSOLEIMPORT_ARGUMENTS_H

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

namespace ConsoleImport {

enum class Command { None, Import, List };
enum class DiagnosticsFormat { Text, Json };
enum class ProgressMode { Auto, Always, Never };

/// What the command line asks for. Texts are UTF-8.
struct Arguments {
    Command command = Command::None;
    std::vector<std::filesystem::path> inputs;
    std::filesystem::path output;
    std::string baseVariant;
    std::string language;
    bool isStrict = false;
    bool isQuiet = false;
    DiagnosticsFormat diagnostics = DiagnosticsFormat::Text;
    ProgressMode progress = ProgressMode::Auto;
    std::filesystem::path dump; ///< "-" is standard output; empty for none
    std::filesystem::path log;  ///< empty for none

    bool DumpsToStandardOutput() const { return dump == "-"; }
};

struct ParsedArguments {
    Arguments arguments;
    int exitCode = 0; ///< with Command::None, what to end with: help and version were asked for, or it is an error
};

/// Reads the arguments (UTF-8, without the program's name). Help and version go to `out`, errors to `err`.
ParsedArguments ParseArguments(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

/// "1.0.0"
std::string VersionText();

std::filesystem::path PathOf(const std::string& utf8);
std::string TextOf(const std::filesystem::path& path);

} // namespace ConsoleImport

#endif
