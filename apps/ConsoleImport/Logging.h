#ifndef CONSOLEIMPORT_LOGGING_H
#define CONSOLEIMPORT_LOGGING_H

#include "Console.h"

#include <ImportDame/Fwd.h>
#include <KoLogging/Logging.h>

#include <filesystem>

namespace ConsoleImport {

/// While it lives, what the library logs comes here: errors are problems to the console, the rest goes to its log file.
class Logging : private NArdenaSharedUtil::Logging::VLogSink {
public:
    explicit Logging(Console& console);
    ~Logging() override;

    /// Writes the readable dump of the document to the file, or to the console's data for "-". Throws OutputError.
    void WriteDump(ImportDame::VImportDoc& document, const std::filesystem::path& file);

private:
    void Write(NArdenaSharedUtil::Logging::VSeverityLevel severity, unsigned long group, const wchar_t* text) override;

    Console& m_console;
    std::ostream* m_dump = nullptr; // while a dump is written
};

} // namespace ConsoleImport

#endif
