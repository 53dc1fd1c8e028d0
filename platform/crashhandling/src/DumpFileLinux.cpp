#include "DumpFile.h"

#include <execinfo.h>
#include <fcntl.h>
#include <sys/syscall.h>
#include <ucontext.h>
#include <unistd.h>

#include <array>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <locale>
#include <memory>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <system_error>

namespace NCustomCrashHandling {

namespace {

/// The path may be a Windows one, so both separators count.
std::filesystem::path PathInTemporaryFolder(std::wstring_view path) {
    const std::size_t separator = path.find_last_of(L"/\\");
    const std::wstring_view name = separator == std::wstring_view::npos ? path : path.substr(separator + 1);
    const char* const folder = std::getenv("TMPDIR"); // NOLINT(concurrency-mt-unsafe): only read
    return std::filesystem::path(folder != nullptr && *folder != '\0' ? folder : "/tmp") / name;
}

std::string ReadProcessFile(const char* name) {
    std::ifstream stream(std::filesystem::path("/proc/self") / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void AppendProcess(std::ostream& dump) {
    std::error_code error;
    dump << "Process " << getpid() << ", thread " << syscall(SYS_gettid) << '\n'
         << "Executable " << std::filesystem::read_symlink("/proc/self/exe", error).native() << '\n';
}

void AppendStack(std::ostream& dump) {
    dump << "\nStack of the calling thread\n";
    std::array<void*, 256> frames = {};
    const int count = backtrace(frames.data(), static_cast<int>(frames.size()));
    const std::unique_ptr<char*, decltype(&std::free)> names(backtrace_symbols(frames.data(), count), &std::free);
    if (names != nullptr) {
        for (const char* const name : std::span(names.get(), static_cast<std::size_t>(count))) {
            dump << "  " << name << '\n';
        }
    }
}

void AppendRegisters(std::ostream& dump) {
    ucontext_t context = {};
    if (getcontext(&context) != 0) {
        return;
    }
    dump << "\nRegisters\n" << std::hex << std::showbase;
    constexpr std::array names = {"r8",  "r9",  "r10", "r11", "r12", "r13", "r14", "r15", "rdi",
                                  "rsi", "rbp", "rbx", "rdx", "rax", "rcx", "rsp", "rip"};
    for (std::size_t index = 0; index < names.size(); ++index) {
        dump << "  " << names[index] << ' ' << context.uc_mcontext.gregs[index] << '\n';
    }
}

std::string Snapshot(VDumpType type) {
    std::ostringstream dump;
    dump.imbue(std::locale::classic());
    AppendProcess(dump);
    AppendStack(dump);
    AppendRegisters(dump);
    if (type != dumpSmall) {
        dump << "\nMemory map\n" << ReadProcessFile("maps");
    }
    return dump.str();
}

class File {
public:
    /// Other users can write in the folder as well: a link that lies there under the name is not followed.
    File(const std::filesystem::path& path, bool replaceExisting)
        : m_descriptor(open(path.c_str(),
                            O_WRONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC | (replaceExisting ? O_TRUNC : O_EXCL), 0600)) {
    }

    File(const File&) = delete;
    File& operator=(const File&) = delete;

    ~File() {
        if (m_descriptor >= 0) {
            close(m_descriptor);
        }
    }

    bool Write(std::string_view text) const {
        while (!text.empty()) {
            const ssize_t written = write(m_descriptor, text.data(), text.size());
            if (written <= 0) {
                return false;
            }
            text.remove_prefix(static_cast<std::size_t>(written));
        }
        return true;
    }

private:
    const int m_descriptor;
};

} // namespace

bool WriteDumpFile(VDumpType type, const wchar_t* path, EXCEPTION_POINTERS* /*exceptionPointers*/,
                   bool replaceExisting) {
    const std::string snapshot = Snapshot(type);
    return File(PathInTemporaryFolder(path), replaceExisting).Write(snapshot);
}

} // namespace NCustomCrashHandling
