#include "sqlite/ChildProcess.h"

#include <string>
#include <system_error>
#include <windows.h>

namespace SqliteBackendTests {

struct ChildProcess::Handle {
    HANDLE process;
};

namespace {

/// Wine fails to start a process once in some thousands of times on a busy machine, with an internal error; the next
/// attempt succeeds.
PROCESS_INFORMATION Start(const std::wstring& commandLine) {
    constexpr int attempts = 3;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    DWORD error = ERROR_INTERNAL_ERROR;
    for (int attempt = 0; attempt < attempts && error == ERROR_INTERNAL_ERROR; ++attempt) {
        std::wstring line = commandLine;
        PROCESS_INFORMATION started{};
        if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &started))
            return started;
        error = GetLastError();
    }
    throw std::system_error(static_cast<int>(error), std::system_category(), "no process can be started");
}

} // namespace

ChildProcess::ChildProcess(const std::filesystem::path& program, const std::filesystem::path& argument)
    : m_handle(std::make_unique<Handle>()) {
    const PROCESS_INFORMATION started = Start(L"\"" + program.wstring() + L"\" \"" + argument.wstring() + L"\"");
    CloseHandle(started.hThread);
    m_handle->process = started.hProcess;
}

ChildProcess::~ChildProcess() {
    Kill();
}

bool ChildProcess::Kill() {
    constexpr UINT killed = 9;
    if (m_handle->process == nullptr)
        return false;
    TerminateProcess(m_handle->process, killed);
    WaitForSingleObject(m_handle->process, INFINITE);
    DWORD code = 0;
    GetExitCodeProcess(m_handle->process, &code);
    CloseHandle(m_handle->process);
    m_handle->process = nullptr;
    return code == killed;
}

} // namespace SqliteBackendTests
