// ImportBench CONSOLEIMPORT PARSEXML ROWSALONE TEMPLATE MEGABYTES...: for each size a document is written; then the
// import into a database and the mere parse run in turn, each in a process of its own, and at last SQLite alone writes
// the rows that came out. Figures are medians.

#include "ChildProcess.h"
#include "LoadTemplate.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <unistd.h>

namespace {

using Bench::Usage;

constexpr int rounds = 5;

/// Removed at the end, with everything in it.
class TemporaryFolder {
public:
    TemporaryFolder() : m_path(std::filesystem::temp_directory_path() / ("import-bench-" + std::to_string(getpid()))) {
        std::filesystem::create_directory(m_path);
    }

    TemporaryFolder(const TemporaryFolder&) = delete;

    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    std::string File(const char* name) const { return (m_path / name).string(); }

private:
    std::filesystem::path m_path;
};

OdxLoad::LoadTemplate ReadTemplate(const char* file) {
    std::ifstream in(file, std::ios::binary);
    if (!in)
        throw std::runtime_error(std::string("cannot read ") + file);
    return {std::string{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()}, OdxLoad::Encoding::Utf8};
}

double WriteDocument(const OdxLoad::LoadTemplate& load, const std::string& file, double megabytes) {
    const std::uint64_t repetitions = load.RepetitionsFor(static_cast<std::uint64_t>(megabytes * 1e6));
    std::ofstream out(file, std::ios::binary);
    load.Write(out, repetitions);
    if (!out.flush())
        throw std::runtime_error("cannot write " + file);
    return static_cast<double>(load.SizeOf(repetitions));
}

Usage MedianOf(std::array<Usage, rounds> usages) {
    Usage median;
    for (double Usage::*figure : {&Usage::seconds, &Usage::cpuSeconds, &Usage::peakBytes}) {
        std::sort(usages.begin(), usages.end(),
                  [figure](const Usage& a, const Usage& b) { return a.*figure < b.*figure; });
        median.*figure = usages[rounds / 2].*figure;
    }
    return median;
}

void Measure(const std::string& importer, const std::string& parser, const std::string& input, double bytes,
             const std::string& database) {
    std::array<Usage, rounds> imports, parses;
    for (int round = 0; round < rounds; ++round) {
        const auto at = static_cast<std::size_t>(round);
        parses[at] = Bench::RunProcess({parser, input});
        imports[at] = Bench::RunProcess({importer, "import", input, "--output", database, "--quiet"});
    }
    const Usage import = MedianOf(imports), parse = MedianOf(parses);
    std::printf("%7.1f MB  %8.3f s %8.3f s %6.1f  %8.3f s %8.3f s %6.1f  %7.2f %7.2f  %9.1f MB\n", bytes / 1e6,
                parse.seconds, import.seconds, import.seconds / parse.seconds, parse.cpuSeconds, import.cpuSeconds,
                import.cpuSeconds / parse.cpuSeconds, parse.peakBytes / bytes, import.peakBytes / bytes,
                static_cast<double>(std::filesystem::file_size(database)) / 1e6);
    std::fflush(stdout);
}

int Run(int count, char** arguments) {
    const OdxLoad::LoadTemplate load = ReadTemplate(arguments[4]);
    const TemporaryFolder folder;
    const std::string input = folder.File("load.odx-d");
    std::printf("%10s  %10s %10s %6s  %10s %10s %6s  %15s  %12s\n", "", "elapsed", "", "", "processor", "", "",
                "memory / size", "");
    std::printf("%10s  %10s %10s %6s  %10s %10s %6s  %7s %7s  %12s\n", "document", "parse", "import", "ratio", "parse",
                "import", "ratio", "parse", "import", "database");
    for (int i = 5; i < count; ++i) {
        const double bytes = WriteDocument(load, input, std::strtod(arguments[i], nullptr));
        const std::string database = folder.File("load.sqlite");
        Measure(arguments[1], arguments[2], input, bytes, database);
        Bench::RunProcess({arguments[3], database, input, folder.File("copy.sqlite")});
    }
    return 0;
}

} // namespace

int main(int count, char** arguments) {
    if (count < 6) {
        std::fputs("usage: ImportBench CONSOLEIMPORT PARSEXML ROWSALONE TEMPLATE MEGABYTES...\n", stderr);
        return 2;
    }
    try {
        return Run(count, arguments);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "ImportBench: %s\n", error.what());
        return 1;
    }
}
