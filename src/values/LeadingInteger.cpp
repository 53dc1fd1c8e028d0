#include "values/LeadingInteger.h"

#include <algorithm>
#include <limits>

namespace ImportDame::detail {

std::int32_t LeadingInteger(std::wstring_view text) noexcept {
    constexpr std::int64_t largest = std::numeric_limits<std::int32_t>::max();
    text.remove_prefix(std::min(text.find_first_not_of(L" \t\n\v\f\r"), text.size()));
    const bool isNegative = text.starts_with(L'-');
    if (isNegative || text.starts_with(L'+'))
        text.remove_prefix(1);
    std::int64_t magnitude = 0;
    for (; !text.empty() && text.front() >= L'0' && text.front() <= L'9'; text.remove_prefix(1))
        magnitude = std::min<std::int64_t>(largest + 1, magnitude * 10 + (text.front() - L'0'));
    return static_cast<std::int32_t>(isNegative ? -magnitude : std::min(largest, magnitude));
}

} // namespace ImportDame::detail
