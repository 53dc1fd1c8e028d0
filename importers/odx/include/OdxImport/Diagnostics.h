#ifndef ODXIMPORT_DIAGNOSTICS_H
#define ODXIMPORT_DIAGNOSTICS_H

#include "OdxImport/Rules.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

namespace OdxImport {

/// Where in the input something stands. All texts are UTF-8.
struct Location {
    std::string file;         ///< path as given on input; for an archive entry "archive.pdx!entry.odx-d"
    std::uint32_t line = 0;   ///< from 1; 0 when the place has no line
    std::uint32_t column = 0; ///< from 1, counted in UTF-8 bytes; 0 when the place has no column
    std::string path;         ///< short names from the document to the object, "/Container/Layer/Object"
};

/// One problem found in the input.
struct Diagnostic {
    Rule rule{};
    Severity severity = Severity::Info; ///< the rule's own severity unless the reporter changed it
    Outcome outcome = Outcome::None;    ///< what was done about it
    Location where;
    std::string message; ///< what is wrong here, in words
};

/// Receives every problem as it is found.
class DiagnosticSink {
public:
    virtual ~DiagnosticSink();
    virtual void Report(const Diagnostic& diagnostic) = 0;
};

/// Keeps the problems in the order they came, at most `perRule` of one rule; the rest are counted.
class DiagnosticCollector : public DiagnosticSink {
public:
    static constexpr std::size_t defaultPerRule = 1000;

    explicit DiagnosticCollector(bool strict = false, std::size_t perRule = defaultPerRule);

    /// With `strict` a warning is kept and counted as an error.
    void Report(const Diagnostic& diagnostic) override;

    const std::vector<Diagnostic>& Kept() const { return m_kept; }

    /// All that were reported with this severity, the ones not kept included.
    std::uint64_t Count(Severity severity) const;
    /// All that were reported under this rule, the ones not kept included.
    std::uint64_t Count(Rule rule) const;
    /// Reported under this rule but not kept.
    std::uint64_t NotKept(Rule rule) const;

    bool HasErrors() const { return Count(Severity::Error) + Count(Severity::Fatal) != 0; }

private:
    struct PerRule {
        std::uint64_t reported = 0;
        std::uint64_t kept = 0;
    };

    std::vector<Diagnostic> m_kept;
    std::array<PerRule, ruleCount> m_perRule{};
    std::array<std::uint64_t, severityCount> m_perSeverity{};
    std::size_t m_limit;
    bool m_strict;
};

/// "file:12:5: warning ODX0502: message (value repaired)", then the object path and the advice on lines of their own.
std::string FormatText(const Diagnostic& diagnostic);
/// One JSON object on one line.
std::string FormatJson(const Diagnostic& diagnostic);
/// Every kept problem, then a line for each rule of which some were not kept.
void WriteText(std::ostream& out, const DiagnosticCollector& collector);
/// One JSON document: {"diagnostics":[…],"notListed":[…],"counts":{…}}.
void WriteJson(std::ostream& out, const DiagnosticCollector& collector);

} // namespace OdxImport

#endif
