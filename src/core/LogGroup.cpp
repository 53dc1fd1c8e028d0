#include "core/LogGroup.h"

#include <KoLogging/Logging.h>

namespace ImportDame::detail {

namespace {

/// The groups of the components that share one log; registered together, so that each has the same bit in every host.
constexpr const char* g_groupNames[] = {"GroupDimex", "GroupConsoleImport", "GroupOdxImporter", "GroupSqliteBackend"};

unsigned long RegisterGroups() {
    auto& logging = NArdenaSharedUtil::Logging::VLogging::GetInstance();
    const unsigned long own = logging.GetOrCreateGroupId(g_groupNames[0]);
    for (const char* name : g_groupNames)
        logging.GetOrCreateGroupId(name);
    return own;
}

const unsigned long g_logGroup = RegisterGroups();

} // namespace

unsigned long LogGroup() noexcept {
    return g_logGroup;
}

} // namespace ImportDame::detail
