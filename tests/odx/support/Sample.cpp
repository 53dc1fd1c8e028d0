#include "support/Sample.h"

namespace OdxTests {

Imported& Sample() {
    static Imported imported(std::filesystem::path(ODX_SAMPLE_ARCHIVE));
    return imported;
}

} // namespace OdxTests
