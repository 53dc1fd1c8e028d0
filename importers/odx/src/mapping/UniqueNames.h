#ifndef ODXIMPORT_MAPPING_UNIQUENAMES_H
#define ODXIMPORT_MAPPING_UNIQUENAMES_H

#include "mapping/Workspace.h"
#include "report/Words.h"

#include <string_view>
#include <unordered_set>

namespace OdxImport {

/// Reports each of the parts of an object that has the SHORT-NAME of one before it.
class UniqueNames {
public:
    explicit UniqueNames(const Workspace& workspace) : m_workspace(workspace) {}

    void Add(Element part) {
        const std::string_view name = part.ShortName();
        if (!name.empty() && !m_names.insert(name).second)
            m_workspace.ReportAt(part, Rule::ShortNameTwice,
                                 Words({part.Tag(), " \"", name, "\" has the name of one before it"}));
    }

private:
    const Workspace& m_workspace;
    std::unordered_set<std::string_view> m_names;
};

} // namespace OdxImport

#endif
