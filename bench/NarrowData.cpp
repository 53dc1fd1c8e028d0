#include "NarrowData.h"

#include <algorithm>
#include <iterator>

namespace Bench {

namespace {

std::string Narrow(const std::wstring& text) {
    std::string narrow;
    std::transform(text.begin(), text.end(), std::back_inserter(narrow),
                   [](wchar_t character) { return static_cast<char>(character); });
    return narrow;
}

} // namespace

NarrowData::NarrowData(const TroubleCodeData& data)
    : errorText(Narrow(data.errorText)),
      objectIdentifier(Narrow(data.objectIdentifier)), items{Narrow(data.items[0]), Narrow(data.items[1]),
                                                             Narrow(data.items[2])},
      enumIndex(data.enumIndex), attributeQualifier(Narrow(data.attributeQualifier)),
      attributeValue(Narrow(data.attributeValue)) {}

NarrowSource::NarrowSource() {
    for (std::size_t index = 0; index < TroubleCodeSource::s_variety; ++index)
        m_data.emplace_back(m_source.Get(index));
}

} // namespace Bench
