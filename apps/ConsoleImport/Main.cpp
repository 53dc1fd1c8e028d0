#include "Commands.h"
#include "ProgressBar.h"
#include "Terminal.h"

#include <iostream>

int main(int argc, char** argv) {
    using namespace ConsoleImport;
    std::ios::sync_with_stdio(false);
    PrepareTerminals();
    CatchInterruptions();
    const std::optional<std::string> noColour = EnvironmentVariable("NO_COLOR");
    return Run(CommandLine(argc, argv), {std::cout, std::cerr, IsStandardOutputATerminal(), IsStandardErrorATerminal(),
                                         !noColour || noColour->empty()});
}
