#ifndef CONSOLEIMPORT_EXITCODES_H
#define CONSOLEIMPORT_EXITCODES_H

namespace ConsoleImport {

/// What the process ends with. Documented in docs/console-import.md.
enum ExitCode : int {
    exitDone = 0,           ///< done; warnings at most
    exitDoneWithErrors = 1, ///< done, but something of the input is missing in the result
    exitUsage = 2,          ///< the command line is wrong
    exitNothingDone = 3,    ///< the inputs hold nothing to import, or a choice is needed
    exitOutput = 4,         ///< a file could not be written
    exitOutOfMemory = 5,
    exitInternal = 6,     ///< a precondition inside was broken: a defect of the program
    exitInterrupted = 130 ///< by the user
};

} // namespace ConsoleImport

#endif
