#include "ChildProcess.h"

#include <chrono>
#include <spawn.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Bench {

namespace {

double SecondsOf(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

} // namespace

Usage RunProcess(const std::vector<std::string>& command) {
    std::vector<std::string> texts = command;
    std::vector<char*> arguments;
    for (std::string& text : texts)
        arguments.push_back(text.data());
    arguments.push_back(nullptr);

    const auto start = std::chrono::steady_clock::now();
    pid_t process = 0;
    if (posix_spawn(&process, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0)
        throw std::runtime_error("cannot start " + command[0]);
    int status = 0;
    rusage usage{};
    if (wait4(process, &status, 0, &usage) != process || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
        throw std::runtime_error(command[0] + " failed");
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    return {elapsed.count(), SecondsOf(usage.ru_utime) + SecondsOf(usage.ru_stime),
            static_cast<double>(usage.ru_maxrss) * 1024.0};
}

} // namespace Bench
