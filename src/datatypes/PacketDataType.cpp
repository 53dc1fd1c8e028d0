#include <ImportDame/PacketDataType.h>

#include <ImportDame/DataTypeVisitor.h>

#include "core/Require.h"

namespace ImportDame {

VPacketDataType::VPacketDataType(VDataTypeCollection& dataTypeCollection) : VBasePacketDataType(dataTypeCollection) {}

VPacketDataType::~VPacketDataType() = default;

void VPacketDataType::Accept(VDataTypeVisitor& visitor) {
    visitor.VisitPacketDataType(*this);
}

unsigned int VPacketDataType::GetDid() {
    detail::Require(m_hasDid, detail::CheckSite::PacketDataTypeGetDid);
    return m_did;
}

void VPacketDataType::SetDid(unsigned int did) {
    m_hasDid = true;
    m_did = did;
}

void VPacketDataType::UnsetDid() {
    m_hasDid = false;
    m_did = 0;
}

void VPacketDataType::SetShowContentsOnlyForTester(bool showContentsOnlyForTester) {
    m_showContentsOnlyForTester = showContentsOnlyForTester;
}

} // namespace ImportDame
