#ifndef ODXIMPORT_REPORT_REPORTER_H
#define ODXIMPORT_REPORT_REPORTER_H

#include "OdxImport/Diagnostics.h"

namespace OdxImport {

/// Fills in what the rule's table says and hands the problem on.
class Reporter {
public:
    explicit Reporter(DiagnosticSink& sink) : m_sink(sink) {}

    void Report(Rule rule, Location where, std::string message) const {
        Report(rule, std::move(where), std::move(message), InfoOf(rule).outcome);
    }

    void Report(Rule rule, Location where, std::string message, Outcome outcome) const {
        m_sink.Report({rule, InfoOf(rule).severity, outcome, std::move(where), std::move(message)});
    }

private:
    DiagnosticSink& m_sink;
};

} // namespace OdxImport

#endif
