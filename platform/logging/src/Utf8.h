#pragma once

#include <string>
#include <string_view>

namespace NArdenaSharedUtil::Logging {

/// Appends \p text to \p utf8. A unit that is no character, such as half of a surrogate pair, becomes U+FFFD.
void AppendUtf8(std::string& utf8, std::wstring_view text);

} // namespace NArdenaSharedUtil::Logging
