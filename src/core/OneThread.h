#pragma once

namespace ImportDame::detail {

/// Whether no other thread runs that could use the library at the same time. May be false although that is so, and
/// stays true only until this thread starts another one.
bool HasOneThread() noexcept;

} // namespace ImportDame::detail
