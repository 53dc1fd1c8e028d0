#ifndef ODXIMPORT_MAPPING_CODEDCONSTANTS_H
#define ODXIMPORT_MAPPING_CODEDCONSTANTS_H

#include "mapping/ParamLayout.h"
#include "mapping/Workspace.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace OdxImport {

/// A constant parameter of a message.
struct CodedConstant {
    std::optional<std::uint64_t> byte; ///< where it begins; absent where that is not known
    std::uint32_t bit = 0;
    std::uint64_t bits = 0; ///< how many; 0 where that is not known
    std::string_view semantic;
    std::string bytes; ///< as they are in the message; none where the constant has bits of a byte only
    std::optional<std::uint32_t> value;
};

/// The parameters with CODED-CONST in the order they stand, without settling or reporting anything. The value of a byte
/// field is that of its bytes, of a text that of its characters, the first one high. `placements` are those of all
/// parameters.
std::vector<CodedConstant> CodedConstantsOf(const std::vector<Element>& params,
                                            const std::vector<Placement>& placements, const Workspace& workspace);

/// The values of the constants that begin in the byte, put together by their bits.
std::optional<std::uint32_t> ValueAt(const std::vector<CodedConstant>& constants, std::uint64_t byte);

/// The same; where constants fill this byte and the next one each for itself, both bytes, the first one high.
std::optional<std::uint32_t> ValueOfTwoBytesAt(const std::vector<CodedConstant>& constants, std::uint64_t byte);

} // namespace OdxImport

#endif
