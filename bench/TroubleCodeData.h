#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace Bench {

/// The data of one trouble code, as an importer would deliver it: a record of three texts, the second one enumerated,
/// and one attribute.
struct TroubleCodeData {
    unsigned int code;
    std::wstring errorText;
    std::wstring objectIdentifier;
    std::array<std::wstring, 3> items;
    unsigned short enumIndex;
    std::wstring attributeQualifier;
    std::wstring attributeValue;
};

/// Makes the data of any number of trouble codes out of few, so that making them is not what is measured.
class TroubleCodeSource {
public:
    static constexpr std::size_t s_variety = 64;

    TroubleCodeSource();

    /// The data of the index-th trouble code; valid until the next call.
    const TroubleCodeData& Get(std::size_t index);

private:
    std::array<TroubleCodeData, s_variety> m_data;
};

} // namespace Bench
