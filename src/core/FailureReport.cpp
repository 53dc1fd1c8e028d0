#include <ImportDame/FailureReport.h>

#include "core/LogGroup.h"
#include "core/MessageText.h"
#include "core/Platform.h"
#include "core/Require.h"

#include <KoCustomCrashHandling/CustomCrashHandling.h>

#include <array>
#include <charconv>
#include <cstddef>
#include <cwchar>

VLgAssertException::VLgAssertException(const char* expression, int errorCode) noexcept
    : m_expression(expression), m_errorCode(errorCode) {}

const char* VLgAssertException::GetExpression() const noexcept {
    return m_expression;
}

int VLgAssertException::GetErrorCode() const noexcept {
    return m_errorCode;
}

namespace ImportDame {

namespace {

constexpr VCheckSite g_checkSites[] = {
#define CHECK_SITE(name, errorCode, expression, sourceFile, line) {errorCode, expression, sourceFile, line},
#include "core/CheckSites.def"
#undef CHECK_SITE
};

} // namespace

std::span<const VCheckSite> GetCheckSites() noexcept {
    return g_checkSites;
}

namespace detail {

namespace {

bool IsConsoleImportHost() noexcept {
    std::array<wchar_t, 1000> path{};
    ReadExecutablePath(path);
    return std::wcscmp(FileNamePart(path.data()), L"ConsoleImport.exe") == 0;
}

/// Leaves the path empty where no dump is written. What goes wrong inside the crash-dump library is ignored.
void CreateAssertDump(MessageText& path) noexcept {
    if (!IsConsoleImportHost())
        return;
    path << L"D:\\Temp\\ConsoleImportDump" << static_cast<unsigned long>(TickCount()) << L".dmp";
    try {
        NCustomCrashHandling::CreateDumpFile(static_cast<NCustomCrashHandling::VDumpType>(1), path.Get(), nullptr,
                                             nullptr, 1);
    } catch (...) { // NOLINT(bugprone-empty-catch): the failed check is what the caller has to learn of
    }               // unreachable: the crash-dump library of this project lets nothing out
}

void LogFailedCheck(const VCheckSite& site) {
    MessageText message;
    message << L"\nAn unexpected error occurred. The current import operation must "
               L"be aborted. Please try to import again. If the issue persists, the following information might help "
               L"Tessaly to provide you with a solution as quickly as possible: "
            << L"Error code '" << static_cast<unsigned long>(site.errorCode) << L"'. Expression: '" << site.expression
            << L"'. File: '" << site.sourceFile << L"'. Line: '" << static_cast<unsigned long>(site.line)
            << L"'. Version: '" << GetVersionText() << L"'. ";
    LogError(message.Get());
}

void LogDumpPath(const MessageText& path) {
    MessageText message;
    message << L"More detailed, technical information has been stored in the following file: \"" << path.Get()
            << L"\".";
    LogError(message.Get());
}

} // namespace

void ReportFailedCheck(CheckSite site) {
    const VCheckSite& failed = g_checkSites[static_cast<std::size_t>(site)];
    MessageText dumpPath;
    CreateAssertDump(dumpPath);
    LogFailedCheck(failed);
    if (!dumpPath.IsEmpty())
        LogDumpPath(dumpPath);
    throw VLgAssertException(failed.expression, failed.errorCode);
}

MessageText& MessageText::operator<<(unsigned long number) noexcept {
    std::array<char, 20> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    return *this << std::string_view(digits.data(), static_cast<std::size_t>(end - digits.data()));
}

} // namespace detail

} // namespace ImportDame
