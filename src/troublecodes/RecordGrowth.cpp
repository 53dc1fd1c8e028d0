#include "troublecodes/RecordGrowth.h"

#include <ImportDame/RecordItem.h>

namespace ImportDame::detail {

RecordGrowth::RecordGrowth(VRecordItemCollection& record) noexcept : m_record(record), m_countBefore(record.Count()) {}

RecordGrowth::~RecordGrowth() {
    while (!m_isKept && m_record.Count() > m_countBefore)
        m_record.Remove(m_record.FindByIndex(static_cast<unsigned int>(m_record.Count() - 1)));
}

void RecordGrowth::FillUpTo(unsigned long long count) {
    while (m_record.Count() < count)
        m_record.AddNewRecordItem();
}

} // namespace ImportDame::detail
