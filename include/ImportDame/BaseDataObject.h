#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/Interchangeable.h>

namespace ImportDame {

/// A member with a data type and a semantics.
class IMPORTDAME_API VBaseDataObject : public VInterchangeable {
public:
    /// What the member is for, as an ODX parameter's SEMANTIC says it. Any 32-bit number can be stored.
    enum VSemantics : int {
        noSemantics = 0,
        data = 1,
        dataId = 2,
        serviceId = 3,
        serviceIdOfRequest = 4, ///< The service identifier that a negative response repeats.
        subfunction = 5,
        id = 6,
        localId = 7,
        responseCode = 8,
        status = 9,
        dtc = 10,
        length = 11,
        reserved = 12,
        otherSemantics = 13,
    };

    ~VBaseDataObject() override;

    /// What the member is for; no semantics at first.
    virtual VSemantics GetSemantics();
    virtual void SetSemantics(VSemantics semantics);

    /// May be null, as it is at first.
    virtual VDataType* GetDataType();

    /// The data type is borrowed; may be null.
    virtual void SetDataType(VDataType* dataType);

protected:
    explicit VBaseDataObject(VImportDoc& importDoc);

private:
    VSemantics m_semantics = noSemantics;
    VDataType* m_dataType = nullptr;
};

} // namespace ImportDame
