#include "report/Silence.h"

namespace OdxImport {

namespace {

class NoSink final : public DiagnosticSink {
public:
    void Report(const Diagnostic&) override {}
};

} // namespace

const Reporter& Silence() {
    static NoSink sink;
    static const Reporter reporter(sink);
    return reporter;
}

} // namespace OdxImport
