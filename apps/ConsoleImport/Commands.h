#ifndef CONSOLEIMPORT_COMMANDS_H
#define CONSOLEIMPORT_COMMANDS_H

#include "Arguments.h"
#include "Console.h"

#include <OdxImport/Diagnostics.h>

#include <functional>
#include <string>
#include <vector>

namespace ConsoleImport {

/// Both answer the exit code.
int RunImport(const Arguments& arguments, Console& console);
int RunList(const Arguments& arguments, Console& console);

/// Runs the work, reports whatever it throws to `err` and answers the exit code for it.
int RunGuarded(const std::function<int()>& work, std::ostream& err);

/// Reports the problems as the arguments wish; answers whether there are errors.
bool ReportProblems(const OdxImport::DiagnosticCollector& diagnostics, const Arguments& arguments, Console& console);

/// The whole program. Answers the exit code.
int Run(const std::vector<std::string>& arguments, const Streams& streams);

} // namespace ConsoleImport

#endif
