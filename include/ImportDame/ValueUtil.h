/// @file
/// The library's conversion of texts to numbers.
#pragma once

#include <ImportDame/Export.h>

namespace NValueUtil {

/// Converts a number in exponent form with an explicit plus sign, such as "1e+3", "-2E+05" or "1.5e+3", whatever the
/// locale; a number too large for a double becomes infinite. The number is decimal in every base, but in the bases 0
/// and 1 it must have no point. Of all other texts only the empty one and a single point are accepted, as 0, in every
/// other base.
///
/// `ok` receives whether the text was accepted and may be null; a rejected text gives 0. Requires: text is not null.
IMPORTDAME_API double StrToDbl(const wchar_t* text, unsigned int base, bool* ok);

} // namespace NValueUtil

namespace ImportDame {

namespace NValueUtil = ::NValueUtil;

} // namespace ImportDame
