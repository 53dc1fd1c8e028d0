#include "app/Program.h"

#include "Commands.h"

#include <sstream>

namespace ConsoleImportTests {

Outcome RunProgram(const std::vector<std::string>& arguments, const Terminals& terminals) {
    std::ostringstream out;
    std::ostringstream err;
    const int exitCode = ConsoleImport::Run(
        arguments, {out, err, terminals.isOutputATerminal, terminals.isErrorATerminal, terminals.isColourWished});
    return {exitCode, out.str(), err.str()};
}

Outcome ProgramTest::ImportSample(std::vector<std::string> more, const Terminals& terminals) const {
    more.insert(more.begin(), {"import", SAMPLE_ARCHIVE, "--output", File("out.sqlite")});
    return RunProgram(more, terminals);
}

} // namespace ConsoleImportTests
