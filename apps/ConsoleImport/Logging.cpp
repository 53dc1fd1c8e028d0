#include "Logging.h"

#include "ConcreteDumper.h"

#include <SqliteBackend/Utf8.h>

#include <fstream>

namespace ConsoleImport {

using NArdenaSharedUtil::Logging::severityError;
using NArdenaSharedUtil::Logging::VLogging;
using NArdenaSharedUtil::Logging::VSeverityLevel;

Logging::Logging(Console& console) : m_console(console) {
    VLogging::GetInstance().SetSink(this);
}

Logging::~Logging() {
    VLogging::GetInstance().SetSink(nullptr);
}

void Logging::WriteDump(ImportDame::VImportDoc& document, const std::filesystem::path& file) {
    std::ofstream stream;
    const bool isToOutput = file == "-";
    if (!isToOutput)
        stream.open(file, std::ios::binary);
    std::ostream& out = isToOutput ? m_console.Data() : stream;
    if (out) {
        m_dump = &out;
        ConcreteDumper().Dump(document);
        m_dump = nullptr;
    }
    if (!out.flush())
        throw OutputError("cannot write the dump " + TextOf(file) +
                          "; see whether its folder is there and the disk has room");
}

void Logging::Write(VSeverityLevel severity, unsigned long, const wchar_t* text) {
    std::string line;
    SqliteBackend::AppendUtf8(text, line);
    line += '\n';
    if (severity == severityError)
        m_console.Problem(line);
    else if (m_dump)
        *m_dump << line;
    else
        m_console.Log(line);
}

} // namespace ConsoleImport
