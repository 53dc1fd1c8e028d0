#ifndef ODXIMPORT_PROGRESS_H
#define ODXIMPORT_PROGRESS_H

#include <cstdint>

namespace OdxImport {

enum class Phase : std::uint8_t {
    Reading,   ///< inputs are read and parsed; counted in bytes
    Linking,   ///< layers are put in order
    Mapping,   ///< the document is filled; counted in objects
    Accounting ///< the ledger is made up; counted in documents
};

/// Hears how far an import is. Called often; an implementation that draws thins the calls out itself.
class ProgressSink {
public:
    virtual ~ProgressSink();
    /// `total` is 0 while it is not known; `done` never exceeds a known total and never falls within one phase.
    virtual void Step(Phase phase, std::uint64_t done, std::uint64_t total) = 0;
};

/// Hears and does nothing.
class NoProgress final : public ProgressSink {
public:
    void Step(Phase phase, std::uint64_t done, std::uint64_t total) override;
};

const char* ToText(Phase phase);

} // namespace OdxImport

#endif
