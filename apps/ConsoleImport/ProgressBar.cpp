#include "ProgressBar.h"

#include <algorithm>
#include <csignal>

namespace ConsoleImport {

namespace {

volatile std::sig_atomic_t isInterrupted = 0;

extern "C" void NoteInterruption(int signal) {
    isInterrupted = 1;
    std::signal(signal, SIG_DFL);
}

constexpr std::size_t barWidth = 32;
constexpr auto redrawAfter = std::chrono::milliseconds(100);

const char* WordsOf(OdxImport::Phase phase) {
    switch (phase) {
    case OdxImport::Phase::Reading:
        return "Reading the inputs";
    case OdxImport::Phase::Linking:
        return "Linking the layers";
    case OdxImport::Phase::Mapping:
        return "Filling the document";
    case OdxImport::Phase::Accounting:
        return "Making up the ledger";
    }
    return "Working";
}

} // namespace

void CatchInterruptions() {
    isInterrupted = 0;
    std::signal(SIGINT, NoteInterruption);
    std::signal(SIGTERM, NoteInterruption);
}

ProgressBar::ProgressBar(Console& console, ProgressMode mode)
    : m_console(console), m_isShown(mode == ProgressMode::Always ||
                                    (mode == ProgressMode::Auto && !console.IsQuiet() && console.IsErrorATerminal())) {}

ProgressBar::~ProgressBar() {
    Clear();
}

void ProgressBar::Step(OdxImport::Phase phase, std::uint64_t done, std::uint64_t total) {
    Show(WordsOf(phase), done, total);
}

void ProgressBar::Step(std::uint64_t done, std::uint64_t total) {
    Show("Writing the database", done, total);
}

void ProgressBar::Clear() {
    if (m_hasLine)
        m_console.Error() << "\r\x1B[K" << std::flush;
    m_hasLine = false;
}

void ProgressBar::Show(const std::string& what, std::uint64_t done, std::uint64_t total) {
    if (isInterrupted)
        throw Interrupted();
    if (!m_isShown)
        return;
    const auto now = std::chrono::steady_clock::now();
    if (what == m_what && done != total && now - m_drawn < redrawAfter)
        return;
    m_what = what;
    m_drawn = now;
    Draw(what, done, total);
}

void ProgressBar::Draw(const std::string& what, std::uint64_t done, std::uint64_t total) {
    std::ostream& stream = m_console.Error();
    stream << "\r\x1B[K" << what << std::string(std::max<std::size_t>(what.size(), 22) - what.size(), ' ');
    if (total != 0) {
        const auto part = static_cast<double>(std::min(done, total)) / static_cast<double>(total);
        const auto filled = static_cast<std::size_t>(part * static_cast<double>(barWidth));
        stream << '[' << std::string(filled, '#') << std::string(barWidth - filled, '-') << "] "
               << static_cast<int>(part * 100.0) << " %";
    }
    stream << std::flush;
    m_hasLine = true;
}

} // namespace ConsoleImport
