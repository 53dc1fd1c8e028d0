#ifndef CONSOLEIMPORT_CONSOLE_H
#define CONSOLEIMPORT_CONSOLE_H

#include "Arguments.h"

#include <filesystem>
#include <fstream>
#include <ostream>
#include <string>
#include <string_view>

namespace ConsoleImport {

/// A file of the user's that could not be written.
class OutputError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

enum class Style { Plain, Title, Good, Bad, Faint };

/// Standard output and standard error of the process, and what may be shown on them.
struct Streams {
    std::ostream& out;
    std::ostream& err;
    bool isOutputATerminal = false;
    bool isErrorATerminal = false;
    bool isColourWished = true; ///< false where NO_COLOR is set
};

/// The text as it may be shown: without control characters, so that names and texts of the inputs send no sequences to
/// a terminal, and in UTF-8 whatever it was. Line breaks stay.
std::string Printable(std::string_view text);

/// The same for a name or text of the inputs or the command line within a line: a line break in it must not forge
/// lines.
std::string PrintableInLine(std::string_view text);

/// Where the program's words go: results to standard output, unless that carries data for programs; the rest to
/// standard error; everything to the log file too, where there is one.
class Console {
public:
    /// Opens the log file; throws OutputError.
    Console(const Streams& streams, const Arguments& arguments);
    ~Console();

    /// Part of the result; nothing when quiet.
    void Result(std::string_view text, Style style = Style::Plain);
    /// About a problem. May be several lines, each with its line break.
    void Problem(std::string_view text);
    /// A hint of what to do next.
    void Advice(std::string_view text);
    /// To the log file alone.
    void Log(std::string_view text);

    /// Throws OutputError where something could not be written to the log file.
    void CheckLog() const;
    /// When all is said. Throws OutputError, too.
    void CloseLog();

    /// Raw, for data.
    std::ostream& Data() { return m_streams.out; }

    /// For the progress bar.
    std::ostream& Error() { return m_streams.err; }

    bool IsQuiet() const { return m_isQuiet; }

    bool IsErrorATerminal() const { return m_streams.isErrorATerminal; }

    bool HasColourOnError() const { return m_streams.isErrorATerminal && m_streams.isColourWished; }

private:
    void WriteLog(std::string_view printable);

    Streams m_streams;
    bool m_isQuiet;
    bool m_isOutputForPrograms;
    std::string m_logName;
    std::ofstream m_log;
    int m_logError = 0; ///< the system's number
};

} // namespace ConsoleImport

#endif
