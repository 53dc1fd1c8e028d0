/// @file
/// The check of a precondition.
#pragma once

namespace ImportDame::detail {

/// Names every check of the library; its row stands in CheckSites.def.
enum class CheckSite {
#define CHECK_SITE(name, errorCode, expression, sourceFile, line) name,
#include "core/CheckSites.def"
#undef CHECK_SITE
};

/// Writes the crash dump (in the console importer), logs, and throws `VLgAssertException`. Allocates nothing.
[[noreturn]] void ReportFailedCheck(CheckSite site);

/// Stands before the first change that an operation makes.
inline void Require(bool holds, CheckSite site) {
    if (!holds) [[unlikely]]
        ReportFailedCheck(site);
}

} // namespace ImportDame::detail
