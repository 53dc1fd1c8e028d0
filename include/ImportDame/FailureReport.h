/// @file
/// What a host can know about the checks behind `VLgAssertException`.
#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/LgAssertException.h>

#include <span>

namespace ImportDame {

/// One check of a precondition. All texts are literals of the library.
struct VCheckSite {
    int errorCode;          ///< Six digits; a few codes stand at two checks.
    const char* expression; ///< The condition, as logged and as carried by `VLgAssertException`.
    const char* sourceFile; ///< The file of the class that holds the check.
    int line;               ///< By which support knows the check; no line of today's sources.
};

/// Every check of the library, ordered by error code.
IMPORTDAME_API std::span<const VCheckSite> GetCheckSites() noexcept;

/// The version of the library, as the failure report shows it, for example "1.0.0".
IMPORTDAME_API const wchar_t* GetVersionText() noexcept;

} // namespace ImportDame
