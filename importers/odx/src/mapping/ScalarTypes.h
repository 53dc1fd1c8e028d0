#ifndef ODXIMPORT_MAPPING_SCALARTYPES_H
#define ODXIMPORT_MAPPING_SCALARTYPES_H

#include "mapping/CodedTypes.h"
#include "mapping/Naming.h"
#include "mapping/Units.h"

namespace ImportDame {
class VDataType;
}

namespace OdxImport {

/// DATA-OBJECT-PROP and DTC-DOP → the seven scalar kinds, by the category of the COMPU-METHOD.
class ScalarTypes {
public:
    ScalarTypes(Workspace& workspace, const Naming& naming, Units& units)
        : m_workspace(workspace), m_naming(naming), m_units(units) {}

    ImportDame::VDataType& Add(Element dataObject);

    /// A type without conversion for a coded type that stands in a parameter.
    ImportDame::VDataType& AddIdentity(const CodedType& coded, const std::wstring& name);

private:
    ImportDame::VDataType& AddByCategory(Element dataObject, const CodedType& coded, const PhysicalType& physical);

    Workspace& m_workspace;
    const Naming& m_naming;
    Units& m_units;
};

} // namespace OdxImport

#endif
