#ifndef CONSOLEIMPORT_PROGRESSBAR_H
#define CONSOLEIMPORT_PROGRESSBAR_H

#include "Arguments.h"
#include "Console.h"

#include <OdxImport/Progress.h>
#include <SqliteBackend/WriteDatabase.h>

#include <chrono>
#include <cstdint>
#include <string>

namespace ConsoleImport {

/// Thrown out of a step when the user interrupted the program.
struct Interrupted {};

/// From now on an interruption is noted, and the next step of the progress ends the work; a second one ends the
/// process.
void CatchInterruptions();

/// One line on standard error that shows how far the work is. Draws nothing unless it is wished for.
class ProgressBar : public OdxImport::ProgressSink, public SqliteBackend::WriteProgress {
public:
    ProgressBar(Console& console, ProgressMode mode);
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;
    ~ProgressBar() override;

    void Step(OdxImport::Phase phase, std::uint64_t done, std::uint64_t total) override;
    void Step(std::uint64_t done, std::uint64_t total) override;

    /// Takes the line away.
    void Clear();

private:
    void Show(const std::string& what, std::uint64_t done, std::uint64_t total);
    void Draw(const std::string& what, std::uint64_t done, std::uint64_t total);

    Console& m_console;
    bool m_isShown;
    bool m_hasLine = false;
    std::string m_what;
    std::chrono::steady_clock::time_point m_drawn;
};

} // namespace ConsoleImport

#endif
