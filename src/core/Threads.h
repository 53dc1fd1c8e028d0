#pragma once

namespace ImportDame::detail {

/// Whether no other thread runs that could use the library at the same time. May be false although that is so, and
/// stays true only until this thread starts another one.
bool HasOneThread() noexcept;

/// Tells the thread that calls from all others that run. May be that of a thread that has ended. Never null.
void* ThisThread() noexcept;

/// Gets the system ready for `FenceAllThreads`; false when it offers nothing of that kind.
bool CanFenceAllThreads() noexcept;

/// When it returns, every thread of the process has made visible what it wrote, and will see what the caller wrote
/// before. Takes some microseconds. Requires: `CanFenceAllThreads` was true.
void FenceAllThreads() noexcept;

} // namespace ImportDame::detail
