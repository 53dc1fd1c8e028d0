#ifndef CONSOLEIMPORT_TERMINAL_H
#define CONSOLEIMPORT_TERMINAL_H

#include <optional>
#include <string>
#include <vector>

namespace ConsoleImport {

// The process's command line, environment and terminal. One source file for each platform.

/// The arguments behind the program's name, as UTF-8.
std::vector<std::string> CommandLine(int argc, char** argv);

/// A variable of the environment, as UTF-8.
std::optional<std::string> EnvironmentVariable(const char* name);

bool IsStandardOutputATerminal();
bool IsStandardErrorATerminal();

/// Makes the terminals understand UTF-8 and the sequences for colour.
void PrepareTerminals();

} // namespace ConsoleImport

#endif
