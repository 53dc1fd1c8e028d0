#ifndef ODXIMPORT_MAPPING_PARAMLAYOUT_H
#define ODXIMPORT_MAPPING_PARAMLAYOUT_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace OdxImport {

/// Where a parameter says it lies.
struct Placement {
    std::optional<std::uint64_t> byte; ///< absent: behind the parameter before it
    std::uint32_t bit = 0;             ///< from the least significant one of that byte
    std::optional<std::uint64_t> bits; ///< absent: the length is not fixed

    /// Of several bytes: with the high byte first, `bit` counts in the last of them. So it does without an order unless
    /// what it shares bytes with has the low byte first.
    enum Order { AnyOrder, HighByteFirst, LowByteFirst } order = AnyOrder;
};

/// One member of a structure in the order of its bits.
struct LayoutItem {
    enum Kind { Param, Gap, Group } kind = Param;

    std::size_t param = 0;             ///< Param: number of the placement
    std::uint64_t bits = 0;            ///< Gap: its length
    std::optional<std::uint64_t> byte; ///< Group: its first byte; absent behind a parameter of unknown length
    std::vector<LayoutItem> items;     ///< Group: its members, parameters and gaps
    bool isOverlapping = false;        ///< Param: begins on bits that a parameter before it has

    /// Param, Group: the bit that it begins at, where what is before it does not tell: it overlaps, or stands behind a
    /// parameter of unknown length with a byte of its own.
    std::optional<std::uint64_t> position;
};

/// The bit that each parameter begins at; nothing for what follows one of unknown length without saying its byte.
std::vector<std::optional<std::uint64_t>> StartsOf(const std::vector<Placement>& placements);

/// Puts parameters in the order of their positions. Bits between them that nobody has become gaps; whole bytes that
/// parameters share or fill in part become groups; a structure longer than its parameters ends in a gap. What follows a
/// parameter of unknown length gets no gap before it but those in its first byte.
///
/// The members of a group stand from its least significant bit on. Where one of them goes over the end of a byte, and
/// none does with the low byte first, that is in the last byte of the group, else in the first.
std::vector<LayoutItem> LayOut(const std::vector<Placement>& placements, std::optional<std::uint64_t> totalBits);

} // namespace OdxImport

#endif
