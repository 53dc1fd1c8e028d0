#pragma once

#include "TroubleCodeData.h"

#include <array>
#include <string>
#include <vector>

namespace Bench {

/// Data of trouble codes in narrow texts. They are made beforehand, as the peers' models take no others.
struct NarrowData {
    explicit NarrowData(const TroubleCodeData& data);

    std::string errorText;
    std::string objectIdentifier;
    std::array<std::string, 3> items;
    unsigned int enumIndex;
    std::string attributeQualifier;
    std::string attributeValue;
};

/// Makes the data of any number of trouble codes out of few.
class NarrowSource {
public:
    NarrowSource();

    [[nodiscard]] unsigned int Code(std::size_t index) { return m_source.Get(index).code; }

    [[nodiscard]] const NarrowData& Get(std::size_t index) const { return m_data[index % m_data.size()]; }

private:
    TroubleCodeSource m_source;
    std::vector<NarrowData> m_data;
};

} // namespace Bench
