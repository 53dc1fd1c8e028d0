#ifndef ODXIMPORT_MAPPING_PARAMS_H
#define ODXIMPORT_MAPPING_PARAMS_H

#include "mapping/DataTypes.h"

namespace ImportDame {
class VInterchangeable;
}

namespace OdxImport {

/// PARAM → data object or gap, by its xsi:type.
class Params {
public:
    Params(Workspace& workspace, const Naming& naming, DataTypes& types, ImportDame::VDataType& packet)
        : m_workspace(workspace), m_naming(naming), m_types(types), m_packet(packet), m_numbers(workspace.Report()) {}

    /// The member that the parameter became.
    ImportDame::VInterchangeable& Add(ImportDame::VInterchangeableCollection& members, Element param);

    static bool IsKnown(std::string_view type);

private:
    using Reader = void (Params::*)(ImportDame::VDataObject&, Element);
    struct Kind;
    static const Kind* KindOf(std::string_view type);

    ImportDame::VInterchangeable& AddReserved(ImportDame::VInterchangeableCollection& members, Element param);
    void ReadSemantic(ImportDame::VDataObject& object, Element param) const;

    void ReadCodedConst(ImportDame::VDataObject& object, Element param);
    void ReadNrcConst(ImportDame::VDataObject& object, Element param);
    void ReadPhysConst(ImportDame::VDataObject& object, Element param);
    void ReadValue(ImportDame::VDataObject& object, Element param);
    void ReadMatchingRequest(ImportDame::VDataObject& object, Element param);
    void ReadLengthKey(ImportDame::VDataObject& object, Element param);
    void ReadTableKey(ImportDame::VDataObject& object, Element param);
    void ReadTableStruct(ImportDame::VDataObject& object, Element param);
    void ReadTableEntry(ImportDame::VDataObject& object, Element param);
    void ReadSystem(ImportDame::VDataObject& object, Element param);
    void ReadDynamic(ImportDame::VDataObject& object, Element param);

    /// Nothing for what the coded type cannot hold.
    std::optional<std::string> ConstantOf(Element value, const CodedType& coded) const;
    Element SetType(ImportDame::VDataObject& object, Element param);
    void SetType(ImportDame::VDataObject& object, Element param, Element target);
    Element TableOf(Element keyParam);
    /// The one row of its table that a table key names, or none.
    Element RowOf(Element keyParam, Element table) const;
    Element Sibling(Element param, std::string_view name, const char* type) const;

    Workspace& m_workspace;
    const Naming& m_naming;
    DataTypes& m_types;
    ImportDame::VDataType& m_packet;
    Numbers m_numbers;
};

} // namespace OdxImport

#endif
