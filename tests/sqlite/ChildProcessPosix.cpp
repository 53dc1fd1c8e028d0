#include "sqlite/ChildProcess.h"

#include <cerrno>
#include <signal.h>
#include <string>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace SqliteBackendTests {

struct ChildProcess::Handle {
    pid_t id;
};

ChildProcess::ChildProcess(const std::filesystem::path& program, const std::filesystem::path& argument)
    : m_handle(std::make_unique<Handle>()) {
    const std::string name = program.string(), text = argument.string();
    m_handle->id = fork();
    if (m_handle->id < 0)
        throw std::system_error(errno, std::generic_category(), "no process can be started");
    if (m_handle->id == 0) {
        execl(name.c_str(), name.c_str(), text.c_str(), nullptr);
        _exit(127);
    }
}

ChildProcess::~ChildProcess() {
    Kill();
}

bool ChildProcess::Kill() {
    if (m_handle->id == 0)
        return false;
    kill(m_handle->id, SIGKILL);
    int status = 0;
    waitpid(m_handle->id, &status, 0);
    m_handle->id = 0;
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

} // namespace SqliteBackendTests
