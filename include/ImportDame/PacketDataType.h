#pragma once

#include <ImportDame/BasePacketDataType.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>

namespace ImportDame {

/// A plain packet: its members one after the other.
class IMPORTDAME_API VPacketDataType : public VBasePacketDataType {
public:
    explicit VPacketDataType(VDataTypeCollection& dataTypeCollection);
    ~VPacketDataType() override;

    void Accept(VDataTypeVisitor& visitor) override;

    /// Whether the packet has a data identifier.
    bool HasDid() { return m_hasDid; }

    /// Requires: HasDid() (error code 102008).
    unsigned int GetDid();
    void SetDid(unsigned int did);

    /// Takes the data identifier away.
    void UnsetDid();

    /// Whether the content is meant for testers only.
    bool GetShowContentsOnlyForTester() const { return m_showContentsOnlyForTester; }

    void SetShowContentsOnlyForTester(bool showContentsOnlyForTester);

private:
    bool m_hasDid = false;
    unsigned int m_did = 0;
    bool m_showContentsOnlyForTester = false;
};

} // namespace ImportDame
