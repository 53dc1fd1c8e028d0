#include "Terminal.h"

#include <cstdlib>
#include <unistd.h>

namespace ConsoleImport {

std::vector<std::string> CommandLine(int argc, char** argv) {
    return argc > 1 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>();
}

std::optional<std::string> EnvironmentVariable(const char* name) {
    const char* value = std::getenv(name); // NOLINT(concurrency-mt-unsafe): nobody sets variables here
    return value ? std::optional<std::string>(value) : std::nullopt;
}

bool IsStandardOutputATerminal() {
    return isatty(STDOUT_FILENO) != 0;
}

bool IsStandardErrorATerminal() {
    return isatty(STDERR_FILENO) != 0;
}

void PrepareTerminals() {}

} // namespace ConsoleImport
