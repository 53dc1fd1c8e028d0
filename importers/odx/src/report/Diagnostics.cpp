#include "OdxImport/Diagnostics.h"

#include "report/Json.h"

#include <ostream>
#include <string_view>

namespace OdxImport {

DiagnosticSink::~DiagnosticSink() = default;

DiagnosticCollector::DiagnosticCollector(bool strict, std::size_t perRule) : m_limit(perRule), m_strict(strict) {}

void DiagnosticCollector::Report(const Diagnostic& diagnostic) {
    const Severity severity =
        m_strict && diagnostic.severity == Severity::Warning ? Severity::Error : diagnostic.severity;
    PerRule& perRule = m_perRule[static_cast<std::size_t>(diagnostic.rule)];
    if (perRule.kept < m_limit) {
        m_kept.push_back(diagnostic);
        m_kept.back().severity = severity;
        ++perRule.kept;
    }
    ++perRule.reported;
    ++m_perSeverity[static_cast<std::size_t>(severity)];
}

std::uint64_t DiagnosticCollector::Count(Severity severity) const {
    return m_perSeverity[static_cast<std::size_t>(severity)];
}

std::uint64_t DiagnosticCollector::Count(Rule rule) const {
    return m_perRule[static_cast<std::size_t>(rule)].reported;
}

std::uint64_t DiagnosticCollector::NotKept(Rule rule) const {
    const PerRule& perRule = m_perRule[static_cast<std::size_t>(rule)];
    return perRule.reported - perRule.kept;
}

namespace {

void AppendPlace(std::string& out, const Location& where) {
    if (where.file.empty())
        return;
    out += where.file;
    for (const std::uint32_t number : {where.line, where.column}) {
        if (number == 0)
            break;
        out += ':';
        out += std::to_string(number);
    }
    out += ": ";
}

/// Line breaks and other control characters of the input must not forge lines of the report.
std::string OneLine(std::string_view text) {
    std::string line(text);
    for (char& c : line)
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f)
            c = ' ';
    return line;
}

void AppendMember(std::string& out, std::string_view name, std::string_view text) {
    if (out.back() != '{')
        out += ',';
    AppendJsonString(out, name);
    out += ':';
    AppendJsonString(out, text);
}

void AppendMember(std::string& out, std::string_view name, std::uint64_t number) {
    if (out.back() != '{')
        out += ',';
    AppendJsonString(out, name);
    out += ':';
    out += std::to_string(number);
}

} // namespace

std::string FormatText(const Diagnostic& diagnostic) {
    const RuleInfo& info = InfoOf(diagnostic.rule);
    std::string out;
    AppendPlace(out, diagnostic.where);
    out += ToText(diagnostic.severity);
    out += ' ';
    out += info.code;
    out += ": ";
    out += diagnostic.message.empty() ? info.summary : diagnostic.message.c_str();
    if (diagnostic.outcome != Outcome::None)
        out.append(" (").append(ToText(diagnostic.outcome)).append(")");
    out = OneLine(out);
    if (!diagnostic.where.path.empty())
        out.append("\n    at ").append(OneLine(diagnostic.where.path));
    out.append("\n    ").append(info.advice).append("\n");
    return out;
}

std::string FormatJson(const Diagnostic& diagnostic) {
    const RuleInfo& info = InfoOf(diagnostic.rule);
    std::string out = "{";
    AppendMember(out, "code", info.code);
    AppendMember(out, "severity", ToText(diagnostic.severity));
    AppendMember(out, "file", diagnostic.where.file);
    AppendMember(out, "line", diagnostic.where.line);
    AppendMember(out, "column", diagnostic.where.column);
    AppendMember(out, "path", diagnostic.where.path);
    AppendMember(out, "message", diagnostic.message.empty() ? info.summary : diagnostic.message.c_str());
    AppendMember(out, "outcome", ToText(diagnostic.outcome));
    AppendMember(out, "advice", info.advice);
    return out + "}";
}

void WriteText(std::ostream& out, const DiagnosticCollector& collector) {
    for (const Diagnostic& diagnostic : collector.Kept())
        out << FormatText(diagnostic);
    for (const RuleInfo& info : AllRules())
        if (const std::uint64_t more = collector.NotKept(info.rule); more != 0)
            out << "... and " << more << " more of " << info.code << ": " << info.summary << "\n";
}

void WriteJson(std::ostream& out, const DiagnosticCollector& collector) {
    out << "{\"diagnostics\":[";
    const char* separator = "\n";
    for (const Diagnostic& diagnostic : collector.Kept()) {
        out << separator << FormatJson(diagnostic);
        separator = ",\n";
    }
    out << "],\n\"notListed\":[";
    separator = "\n";
    for (const RuleInfo& info : AllRules()) {
        if (const std::uint64_t more = collector.NotKept(info.rule); more != 0) {
            out << separator << "{\"code\":\"" << info.code << "\",\"count\":" << more << "}";
            separator = ",\n";
        }
    }
    out << "],\n\"counts\":{";
    separator = "";
    for (const Severity severity : {Severity::Info, Severity::Warning, Severity::Error, Severity::Fatal}) {
        out << separator << '"' << ToText(severity) << "\":" << collector.Count(severity);
        separator = ",";
    }
    out << "}}\n";
}

} // namespace OdxImport
