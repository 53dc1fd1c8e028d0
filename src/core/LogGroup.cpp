#include "core/LogGroup.h"

#include <KoLogging/Logging.h>

namespace ImportDame::detail {

namespace {

using NArdenaSharedUtil::Logging::VLogging;
using NArdenaSharedUtil::Logging::VSeverityLevel;

/// The groups of the components that share one log; registered together, so that each has the same bit in every host.
constexpr const char* g_groupNames[] = {"GroupDimex", "GroupConsoleImport", "GroupOdxImporter", "GroupSqliteBackend"};

unsigned long RegisterGroups() {
    auto& logging = VLogging::GetInstance();
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

void LogError(const wchar_t* text) {
    VLogging& logging = VLogging::GetInstance();
    if (logging.IsEnabled() && (LogGroup() & logging.GetGlobalLogGroupMask()) != 0 && logging.GetGlobalLogLevel() >= 0)
        logging.Log(static_cast<VSeverityLevel>(0), LogGroup(), text);
}

} // namespace ImportDame::detail
