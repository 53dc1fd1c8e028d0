/// @file
/// The growth of a record by several items, which happens whole or not at all.
#pragma once

#include <ImportDame/RecordItemCollection.h>

namespace ImportDame::detail {

/// Takes everything that was appended to a record since then away again, unless it is kept.
class RecordGrowth {
public:
    explicit RecordGrowth(VRecordItemCollection& record) noexcept;
    RecordGrowth(const RecordGrowth&) = delete;
    RecordGrowth& operator=(const RecordGrowth&) = delete;
    ~RecordGrowth();

    /// Appends empty items until the record has this many.
    void FillUpTo(unsigned long long count);

    void Keep() noexcept { m_isKept = true; }

private:
    VRecordItemCollection& m_record;
    unsigned long long m_countBefore;
    bool m_isKept = false;
};

} // namespace ImportDame::detail
