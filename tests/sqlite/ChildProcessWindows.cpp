#include "sqlite/ChildProcess.h"

#include <stdexcept>
#include <string>
#include <windows.h>

namespace SqliteBackendTests {

struct ChildProcess::Handle {
    HANDLE process;
};

ChildProcess::ChildProcess(const std::filesystem::path& program, const std::filesystem::path& argument)
    : m_handle(std::make_unique<Handle>()) {
    std::wstring line = L"\"" + program.wstring() + L"\" \"" + argument.wstring() + L"\"";
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION started{};
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &started))
        throw std::runtime_error("no process can be started");
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
