#include "StandardErrorSink.h"

#include "Utf8.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdio>

namespace NArdenaSharedUtil::Logging {

namespace {

void AppendPadded(std::string& line, long long number, std::size_t width) {
    const std::string digits = std::to_string(number);
    line.append(width > digits.size() ? width - digits.size() : 0, '0').append(digits);
}

void AppendTime(std::string& line, std::chrono::system_clock::time_point time) {
    const auto day = std::chrono::floor<std::chrono::days>(time);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss clock(std::chrono::floor<std::chrono::milliseconds>(time - day));
    AppendPadded(line, static_cast<int>(date.year()), 4);
    AppendPadded(line += '-', static_cast<unsigned>(date.month()), 2);
    AppendPadded(line += '-', static_cast<unsigned>(date.day()), 2);
    AppendPadded(line += 'T', clock.hours().count(), 2);
    AppendPadded(line += ':', clock.minutes().count(), 2);
    AppendPadded(line += ':', clock.seconds().count(), 2);
    AppendPadded(line += '.', clock.subseconds().count(), 3);
    line += 'Z';
}

std::string SeverityName(VSeverityLevel severity) {
    constexpr std::array names = {"error", "warning", "information", "debug"};
    const auto index = static_cast<std::size_t>(severity);
    return index < names.size() ? names[index] : "severity " + std::to_string(static_cast<int>(severity));
}

} // namespace

StandardErrorSink::StandardErrorSink(const VLogging& log) : m_log(log) {}

void StandardErrorSink::Write(VSeverityLevel severity, unsigned long group, const wchar_t* text) {
    std::string line;
    AppendTime(line, std::chrono::system_clock::now());
    line.append(" ").append(m_log.GetGroupName(group)).append(" ").append(SeverityName(severity)).append(": ");
    AppendUtf8(line, text);
    line += '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
    std::fflush(stderr);
}

} // namespace NArdenaSharedUtil::Logging
