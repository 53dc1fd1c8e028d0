/// @file
/// A process that a test starts and kills.
#pragma once

#include <filesystem>
#include <memory>

namespace SqliteBackendTests {

class ChildProcess {
public:
    /// Starts the program with one argument, a path in ASCII; throws when that fails.
    ChildProcess(const std::filesystem::path& program, const std::filesystem::path& argument);
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess();

    /// Ends the process at once, without its having a say, and waits for its end. Answers whether it was running still.
    bool Kill();

private:
    struct Handle;
    std::unique_ptr<Handle> m_handle;
};

} // namespace SqliteBackendTests
