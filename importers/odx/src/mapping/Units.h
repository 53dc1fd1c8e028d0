#ifndef ODXIMPORT_MAPPING_UNITS_H
#define ODXIMPORT_MAPPING_UNITS_H

#include "mapping/Naming.h"

#include <string>
#include <unordered_map>

namespace OdxImport {

/// UNIT → VUnit. Units of the layers that take part are imported all, those of other documents when they are used.
class Units {
public:
    Units(Workspace& workspace, const Naming& naming) : m_workspace(workspace), m_naming(naming) {}

    void AddAllOf(Layer& layer);

    /// Display name of the unit that the element's UNIT-REF leads to; empty without one.
    std::wstring DisplayNameFor(Element owner);

private:
    const std::wstring& Add(Element unit);

    Workspace& m_workspace;
    const Naming& m_naming;
    std::unordered_map<const void*, std::wstring> m_displayNames;
};

} // namespace OdxImport

#endif
