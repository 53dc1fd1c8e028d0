#include <ImportDame/RecordItem.h>

#include <memory>

namespace ImportDame {

VRecordItem::VRecordItem() = default;

VRecordItem::VRecordItem(const VRecordItem& other) = default;

VRecordItem& VRecordItem::operator=(const VRecordItem& other) = default;

VRecordItem::~VRecordItem() = default;

VRecordItem& VRecordItem::Clone() const {
    return *std::make_unique<VRecordItem>(*this).release(); // the caller's from now on
}

void VRecordItem::SetEnumIndex(unsigned short index) {
    m_enumIndex = index;
    m_isEnumRecordItem = true;
}

} // namespace ImportDame
