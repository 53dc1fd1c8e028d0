#pragma once

#include <ImportDame/BasePacketDataType.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>

namespace ImportDame {

/// A repetition of a kind that the library does not know. Not a base of the repetition kinds that it does know.
class IMPORTDAME_API VIterDataType : public VBasePacketDataType {
public:
    ~VIterDataType() override;

protected:
    explicit VIterDataType(VDataTypeCollection& dataTypeCollection);
};

} // namespace ImportDame
