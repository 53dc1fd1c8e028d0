#include "TroubleCodeData.h"

namespace Bench {

TroubleCodeSource::TroubleCodeSource() {
    for (std::size_t index = 0; index < m_data.size(); ++index) {
        const std::wstring number = std::to_wstring(index);
        m_data[index] = {
            .code = 0,
            .errorText = L"Signal of sensor " + number + L" outside its valid range",
            .objectIdentifier = L"DTC_00" + number,
            .items = {L"Symptom " + number, index % 2 ? L"confirmed" : L"pending", L"Drive to the next workshop"},
            .enumIndex = static_cast<unsigned short>(index % 2),
            .attributeQualifier = L"Priority",
            .attributeValue = std::to_wstring(index % 8),
        };
    }
}

const TroubleCodeData& TroubleCodeSource::Get(std::size_t index) {
    TroubleCodeData& data = m_data[index % m_data.size()];
    data.code = static_cast<unsigned int>(0x10000 + 3 * index);
    return data;
}

} // namespace Bench
