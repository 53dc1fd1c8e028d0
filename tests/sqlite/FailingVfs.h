/// @file
/// A disk that is full, for SQLite.
#pragma once

namespace SqliteBackendTests {

/// As long as it lives, SQLite writes to files through it.
class FailingVfs {
public:
    FailingVfs();
    FailingVfs(const FailingVfs&) = delete;
    FailingVfs& operator=(const FailingVfs&) = delete;
    ~FailingVfs();

    /// The number-th write (from 1) and all that follow find the disk full; 0 lets all writes pass.
    static void FailWrite(int number);
    /// The number of writes since then.
    static int Writes();
};

} // namespace SqliteBackendTests
