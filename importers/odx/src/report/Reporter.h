#ifndef ODXIMPORT_REPORT_REPORTER_H
#define ODXIMPORT_REPORT_REPORTER_H

#include "OdxImport/Diagnostics.h"
#include "report/Words.h"

namespace OdxImport {

/// Fills in what the rule's table says and hands the problem on.
class Reporter {
public:
    explicit Reporter(DiagnosticSink& sink) : m_sink(sink) {}

    void Report(Rule rule, Location where, std::string message) const {
        Report(rule, std::move(where), std::move(message), InfoOf(rule).outcome);
    }

    void Report(Rule rule, Location where, std::string message, Outcome outcome) const {
        if (message.size() > longestMessage)
            message = Shortened(message, longestMessage);
        m_sink.Report({rule, InfoOf(rule).severity, outcome, std::move(where), std::move(message)});
    }

private:
    /// What a message quotes of the input may be of any length.
    static constexpr std::size_t longestMessage = 1000;

    DiagnosticSink& m_sink;
};

} // namespace OdxImport

#endif
