// For processors and compilers without instructions of their own for it.

#include "source/Sha256Blocks.h"

namespace OdxImport {

bool CanAccelerateSha256() {
    return false;
}

void CompressAccelerated(Sha256State& state, const char* blocks, std::size_t count) {
    CompressPortable(state, blocks, count);
}

} // namespace OdxImport
