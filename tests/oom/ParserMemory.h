/// @file
/// The memory of the XML parser and of SQLite, which do not use operator new by themselves.
#pragma once

namespace TestSupport {

/// From now on the XML parser and SQLite allocate with operator new, so that their allocations fail as well. To be
/// called before either was used.
void LetLibrariesUseOperatorNew();

} // namespace TestSupport
