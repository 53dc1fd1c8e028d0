/// @file
/// The program, run within the test.
#pragma once

#include "sqlite/Database.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ConsoleImportTests {

/// What a run said and ended with.
struct Outcome {
    int exitCode = -1;
    std::string out;
    std::string err;
};

struct Terminals {
    bool isOutputATerminal = false;
    bool isErrorATerminal = false;
    bool isColourWished = true;
};

Outcome RunProgram(const std::vector<std::string>& arguments, const Terminals& terminals = {});

inline bool Contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

/// A test with a folder of its own.
class ProgramTest : public testing::Test {
protected:
    /// A file in the folder, as an argument.
    std::string File(const char* name) const { return (m_folder / name).string(); }

    Outcome ImportSample(std::vector<std::string> more = {}, const Terminals& terminals = {}) const;

    SqliteBackendTests::TemporaryFolder m_folder;
};

} // namespace ConsoleImportTests
