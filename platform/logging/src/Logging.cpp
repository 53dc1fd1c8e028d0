#include "KoLogging/Logging.h"

#include "StandardErrorSink.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <mutex>
#include <vector>

namespace NArdenaSharedUtil::Logging {

namespace {

/// As many groups as the narrowest `unsigned long` has bits.
constexpr std::size_t s_groupCount = 32;
constexpr std::size_t s_sharedGroup = s_groupCount - 1;

constexpr unsigned long GroupBit(std::size_t index) {
    return 1UL << index;
}

} // namespace

class VLogging::Impl {
public:
    explicit Impl(const VLogging& log) : m_standardErrorSink(log), m_sink(&m_standardErrorSink) {}

    std::atomic<bool> m_isEnabled = true;
    std::atomic<long> m_level = 0;
    std::atomic<unsigned long> m_groupMask = ~0UL;

    mutable std::mutex m_groupMutex;
    std::vector<std::string> m_groups;

    std::mutex m_sinkMutex;
    StandardErrorSink m_standardErrorSink;
    VLogSink* m_sink;
};

VLogSink::~VLogSink() = default;

VLogging& VLogging::GetInstance() {
    static VLogging s_instance;
    return s_instance;
}

VLogging::VLogging() : m_impl(std::make_unique<Impl>(*this)) {}

VLogging::~VLogging() = default;

bool VLogging::IsEnabled() const noexcept {
    return m_impl->m_isEnabled;
}

void VLogging::SetEnabled(bool enabled) noexcept {
    m_impl->m_isEnabled = enabled;
}

long VLogging::GetGlobalLogLevel() const noexcept {
    return m_impl->m_level;
}

void VLogging::SetGlobalLogLevel(long level) noexcept {
    m_impl->m_level = level;
}

unsigned long VLogging::GetGlobalLogGroupMask() const noexcept {
    return m_impl->m_groupMask;
}

void VLogging::SetGlobalLogGroupMask(unsigned long mask) noexcept {
    m_impl->m_groupMask = mask;
}

unsigned long VLogging::GetOrCreateGroupId(const char* name) {
    const std::scoped_lock lock(m_impl->m_groupMutex);
    std::vector<std::string>& groups = m_impl->m_groups;
    const auto found = std::find(groups.begin(), groups.end(), name);
    const auto index = static_cast<std::size_t>(found - groups.begin());
    if (index >= s_sharedGroup) {
        return GroupBit(s_sharedGroup);
    }
    if (found == groups.end()) {
        groups.emplace_back(name);
    }
    return GroupBit(index);
}

std::string VLogging::GetGroupName(unsigned long group) const {
    const std::scoped_lock lock(m_impl->m_groupMutex);
    for (std::size_t index = 0; index < m_impl->m_groups.size(); ++index) {
        if (GroupBit(index) == group) {
            return m_impl->m_groups[index];
        }
    }
    return "group " + std::to_string(group);
}

void VLogging::Log(VSeverityLevel severity, unsigned long group, const wchar_t* text) {
    try {
        const std::scoped_lock lock(m_impl->m_sinkMutex);
        m_impl->m_sink->Write(severity, group, text != nullptr ? text : L"");
    } catch (...) { // NOLINT(bugprone-empty-catch)
        // Whoever logs has something more important to do than to hear of it.
    }
}

void VLogging::Log(const VDecoratedLogRecord& record) {
    Log(record.GetSeverity(), record.GetGroup(), record.GetText());
}

void VLogging::SetSink(VLogSink* sink) {
    const std::scoped_lock lock(m_impl->m_sinkMutex);
    m_impl->m_sink = sink != nullptr ? sink : &m_impl->m_standardErrorSink;
}

} // namespace NArdenaSharedUtil::Logging
