#include "Console.h"

#include <SqliteBackend/Utf8.h>

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

bool IsControl(char byte) {
    return static_cast<unsigned char>(byte) < 0x20 || byte == 0x7F;
}

/// U+0080 to U+009F, which some terminals obey as well.
bool BeginsHighControl(std::string_view text) {
    return text.size() >= 2 && text[0] == '\xC2' && (static_cast<unsigned char>(text[1]) & 0xE0) == 0x80;
}

std::string WithoutControls(std::string_view text, bool keepsLines) {
    std::string plain;
    plain.reserve(text.size());
    for (; !text.empty(); text.remove_prefix(1)) {
        const bool isHigh = BeginsHighControl(text);
        const bool isHidden = isHigh || (IsControl(text[0]) && !(keepsLines && text[0] == '\n'));
        plain += isHidden ? '?' : text[0];
        if (isHigh)
            text.remove_prefix(1);
    }
    std::string valid;
    SqliteBackend::AppendValidUtf8(plain, valid);
    return valid;
}

void WriteStyled(std::ostream& stream, bool hasColour, Style style, std::string_view text) {
    if (hasColour && style != Style::Plain)
        stream << Sequence(style) << text << "\x1B[0m";
    else
        stream << text;
}

} // namespace

std::string Printable(std::string_view text) {
    return WithoutControls(text, true);
}

std::string PrintableInLine(std::string_view text) {
    return WithoutControls(text, false);
}

Console::Console(const Streams& streams, const Arguments& arguments)
    : m_streams(streams), m_isQuiet(arguments.isQuiet),
      m_isOutputForPrograms(arguments.DumpsToStandardOutput() || arguments.diagnostics == DiagnosticsFormat::Json) {
    if (arguments.log.empty())
        return;
    m_logName = TextOf(arguments.log);
    m_log.open(arguments.log, std::ios::binary);
    if (!m_log)
        m_logError = errno;
    CheckLog();
}

Console::~Console() = default;

void Console::Result(std::string_view raw, Style style) {
    const std::string text = Printable(raw);
    WriteLog(text);
    if (m_isQuiet)
        return;
    const bool isTerminal = m_isOutputForPrograms ? m_streams.isErrorATerminal : m_streams.isOutputATerminal;
    WriteStyled(m_isOutputForPrograms ? m_streams.err : m_streams.out, isTerminal && m_streams.isColourWished, style,
                text);
}

void Console::Problem(std::string_view raw) {
    const std::string text = Printable(raw);
    WriteLog(text);
    m_streams.err << text;
}

void Console::Advice(std::string_view raw) {
    const std::string text = Printable(raw);
    WriteLog(text);
    WriteStyled(m_streams.err, HasColourOnError(), Style::Faint, text);
}

void Console::Log(std::string_view raw) {
    if (!m_logName.empty())
        WriteLog(Printable(raw));
}

void Console::WriteLog(std::string_view printable) {
    if (m_log.is_open() && m_log && !(m_log << printable << std::flush))
        m_logError = errno;
}

void Console::CheckLog() const {
    if (!m_log)
        throw OutputError("cannot write the log file " + m_logName + ": " +
                          std::generic_category().message(m_logError));
}

void Console::CloseLog() {
    if (m_log.is_open() && m_log) {
        m_log.close();
        m_logError = errno;
    }
    CheckLog();
}

} // namespace ConsoleImport
