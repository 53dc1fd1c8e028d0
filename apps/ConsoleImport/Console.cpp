#include "Console.h"

#include <cerrno>
#include <system_error>

namespace ConsoleImport {

namespace {

const char* Sequence(Style style) {
    switch (style) {
    case Style::Title:
        return "\x1B[1m";
    case Style::Good:
        return "\x1B[1;32m";
    case Style::Bad:
        return "\x1B[1;31m";
    case Style::Faint:
        return "\x1B[2m";
    case Style::Plain:
        break;
    }
    return "";
}

/// Names and texts of the inputs must not send sequences to a terminal.
std::string Printable(std::string_view text) {
    std::string printable(text);
    for (char& byte : printable)
        if (byte != '\n' && (static_cast<unsigned char>(byte) < 0x20 || byte == 0x7F))
            byte = '?';
    return printable;
}

void WriteStyled(std::ostream& stream, bool hasColour, Style style, std::string_view text) {
    if (hasColour && style != Style::Plain)
        stream << Sequence(style) << text << "\x1B[0m";
    else
        stream << text;
}

} // namespace

Console::Console(const Streams& streams, const Arguments& arguments)
    : m_streams(streams), m_isQuiet(arguments.isQuiet),
      m_isOutputForPrograms(arguments.DumpsToStandardOutput() || arguments.diagnostics == DiagnosticsFormat::Json) {
    if (arguments.log.empty())
        return;
    m_log.open(arguments.log, std::ios::binary);
    if (!m_log)
        throw OutputError("cannot write the log file " + TextOf(arguments.log) + ": " +
                          std::generic_category().message(errno));
}

Console::~Console() = default;

void Console::Result(std::string_view raw, Style style) {
    const std::string text = Printable(raw);
    Log(text);
    if (m_isQuiet)
        return;
    const bool isTerminal = m_isOutputForPrograms ? m_streams.isErrorATerminal : m_streams.isOutputATerminal;
    WriteStyled(m_isOutputForPrograms ? m_streams.err : m_streams.out, isTerminal && m_streams.isColourWished, style,
                text);
}

void Console::Problem(std::string_view raw) {
    const std::string text = Printable(raw);
    Log(text);
    m_streams.err << text;
}

void Console::Advice(std::string_view raw) {
    const std::string text = Printable(raw);
    Log(text);
    WriteStyled(m_streams.err, HasColourOnError(), Style::Faint, text);
}

void Console::Log(std::string_view text) {
    if (m_log.is_open())
        m_log << text << std::flush;
}

} // namespace ConsoleImport
