#include "OdxImport/Progress.h"

#include <array>
#include <cstddef>

namespace OdxImport {

ProgressSink::~ProgressSink() = default;

void NoProgress::Step(Phase, std::uint64_t, std::uint64_t) {}

const char* ToText(Phase phase) {
    static constexpr std::array<const char*, 4> texts{"reading", "linking", "mapping", "accounting"};
    return texts[static_cast<std::size_t>(phase)];
}

} // namespace OdxImport
