#include "Harness.h"

#include "import/MutateXml.h"

namespace Fuzz {

const std::vector<Harness>& AllHarnesses() {
    static const std::vector<Harness> harnesses{
        {"numbers", ParseNumbers, nullptr},     {"fields", SplitFields, nullptr},
        {"comparison", CompareValues, nullptr}, {"document", OperateOnDocument, nullptr},
        {"xml", ImportXml, MutateXml},          {"archive", ImportArchive, nullptr},
    };
    return harnesses;
}

} // namespace Fuzz
