#ifndef ODXIMPORT_MAPPING_TROUBLECODES_H
#define ODXIMPORT_MAPPING_TROUBLECODES_H

#include "mapping/CodedTypes.h"
#include "mapping/DataTypes.h"
#include "mapping/LinkedCodes.h"
#include "mapping/Naming.h"

#include <map>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace ImportDame {
class VTroubleCode;
class VTroubleCodeCollection;
} // namespace ImportDame

namespace OdxImport {

/// DTC-DOP → trouble-code collection with its record template, DTC → trouble code with its record.
///
/// The template has the columns SHORT-NAME, DISPLAY-TROUBLE-CODE, LEVEL and ENV-DATA, then one for each name among the
/// special data of the DTCs.
class TroubleCodes {
public:
    TroubleCodes(Workspace& workspace, const Naming& naming)
        : m_workspace(workspace), m_naming(naming), m_linkedCodes(workspace) {}

    ImportDame::VTroubleCodeCollection& Add(Element dtcDop);

private:
    using Columns = std::vector<std::string>;

    Columns ColumnsOf(const std::vector<Element>& dtcs, Element dtcDop) const;
    void AddCode(ImportDame::VTroubleCodeCollection& codes, Element dtc, const Columns& columns, Element dtcDop,
                 std::uint64_t bits);
    void ReportMissing(Element dtc) const;
    void FillRecord(ImportDame::VTroubleCode& code, Element dtc, const Columns& columns,
                    const std::wstring& envData) const;
    std::wstring EnvDataFor(std::uint32_t code, Layer& context);

    struct EnvDataNames {
        std::wstring forAll;
        std::unordered_map<std::uint32_t, std::wstring> forCode;
    };

    EnvDataNames ReadEnvData(Layer& context);
    void AddEnvData(EnvDataNames& names, Element object) const;

    Workspace& m_workspace;
    const Naming& m_naming;
    LinkedCodes m_linkedCodes;
    std::unordered_map<const Layer*, EnvDataNames> m_envData;
    std::vector<std::pair<std::string_view, Element>> m_envDataOfBase; ///< with their short names
    std::unordered_set<std::uint32_t> m_numbers;                       ///< of the collection that is being filled
};

} // namespace OdxImport

#endif
