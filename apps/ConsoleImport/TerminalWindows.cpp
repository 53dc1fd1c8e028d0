#include "Terminal.h"

#include <SqliteBackend/Utf8.h>

#include <windows.h>

#include <shellapi.h>

#include <memory>

namespace ConsoleImport {

namespace {

std::string Utf8(const wchar_t* text) {
    std::string out;
    SqliteBackend::AppendUtf8(text, out);
    return out;
}

bool IsTerminal(DWORD handle) {
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(handle), &mode) != 0;
}

} // namespace

std::vector<std::string> CommandLine(int, char**) {
    int count = 0;
    const std::unique_ptr<wchar_t*, decltype(&LocalFree)> list(CommandLineToArgvW(GetCommandLineW(), &count),
                                                               &LocalFree);
    std::vector<std::string> arguments;
    for (int index = 1; list && index < count; ++index)
        arguments.push_back(Utf8(list.get()[index]));
    return arguments;
}

std::optional<std::string> EnvironmentVariable(const char* name) {
    const std::wstring wideName(name, name + std::char_traits<char>::length(name));
    wchar_t value[1024];
    SetLastError(ERROR_SUCCESS);
    const DWORD length = GetEnvironmentVariableW(wideName.c_str(), value, static_cast<DWORD>(std::size(value)));
    if (length == 0)
        return GetLastError() == ERROR_SUCCESS ? std::optional<std::string>("") : std::nullopt;
    return length < std::size(value) ? std::optional<std::string>(Utf8(value)) : std::nullopt;
}

bool IsStandardOutputATerminal() {
    return IsTerminal(STD_OUTPUT_HANDLE);
}

bool IsStandardErrorATerminal() {
    return IsTerminal(STD_ERROR_HANDLE);
}

void PrepareTerminals() {
    SetConsoleOutputCP(CP_UTF8);
    for (const DWORD handle : {STD_OUTPUT_HANDLE, STD_ERROR_HANDLE}) {
        DWORD mode = 0;
        if (GetConsoleMode(GetStdHandle(handle), &mode))
            SetConsoleMode(GetStdHandle(handle), mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
    }
}

} // namespace ConsoleImport
