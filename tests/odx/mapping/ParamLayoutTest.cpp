#include "mapping/ParamLayout.h"

#include <gtest/gtest.h>

#include <string>

using namespace OdxImport;

namespace {

/// "0 g8 1" for parameter 0, a gap of 8 bits, parameter 1; "@2[0 g4]" for a group at byte 2, "@[0 g4]" for one at a
/// byte that is not known; "1!" for an overlapping one; "1^20.4" for one that begins at bit 4 of byte 20 whatever is
/// before.
std::string Text(const std::vector<LayoutItem>& items) {
    std::string text;
    for (const LayoutItem& item : items) {
        if (!text.empty())
            text += ' ';
        if (item.kind == LayoutItem::Gap)
            text += "g" + std::to_string(item.bits);
        else if (item.kind == LayoutItem::Group)
            text += "@" + (item.byte ? std::to_string(*item.byte) : "") + "[" + Text(item.items) + "]";
        else
            text += std::to_string(item.param) + (item.isOverlapping ? "!" : "");
        if (item.position)
            text += "^" + std::to_string(*item.position / 8);
        if (item.position && *item.position % 8 != 0)
            text += "." + std::to_string(*item.position % 8);
    }
    return text;
}

Placement At(std::uint64_t byte, std::uint64_t bits, std::uint32_t bit = 0) {
    return {byte, bit, bits};
}

Placement Behind(std::uint64_t bits) {
    return {std::nullopt, 0, bits};
}

constexpr auto unknown = std::nullopt;

} // namespace

TEST(ParamLayoutTest, NothingIsEmptyOrOneGap) {
    EXPECT_EQ(Text(LayOut({}, unknown)), "");
    EXPECT_EQ(Text(LayOut({}, 16)), "g16");
}

TEST(ParamLayoutTest, WholeBytesStandBesideEachOther) {
    EXPECT_EQ(Text(LayOut({At(0, 8), At(1, 16), At(3, 8)}, unknown)), "0 1 2");
    EXPECT_EQ(Text(LayOut({Behind(8), Behind(16), Behind(8)}, unknown)), "0 1 2");
}

TEST(ParamLayoutTest, FreeBytesBeforeBetweenAndBehindAreGaps) {
    EXPECT_EQ(Text(LayOut({At(1, 8), At(4, 8)}, 64)), "g8 0 g16 1 g24");
    EXPECT_EQ(Text(LayOut({At(0, 8)}, 8)), "0");
    EXPECT_EQ(Text(LayOut({At(0, 16)}, 8)), "0");
}

TEST(ParamLayoutTest, PositionsDecideTheOrderAndEqualOnesTheDescription) {
    EXPECT_EQ(Text(LayOut({At(2, 8), At(0, 8), At(1, 8)}, unknown)), "1 2 0");
    EXPECT_EQ(Text(LayOut({At(0, 8), At(0, 8)}, unknown)), "0 1!^0");
}

TEST(ParamLayoutTest, BitsOfOneByteMakeAGroupWithGaps) {
    EXPECT_EQ(Text(LayOut({At(0, 4, 0), At(0, 4, 4)}, unknown)), "@0[0 1]");
    EXPECT_EQ(Text(LayOut({At(1, 2, 1), At(1, 1, 7)}, unknown)), "g8 @1[g1 0 g4 1]");
    EXPECT_EQ(Text(LayOut({At(0, 1, 0)}, unknown)), "@0[0 g7]");
}

TEST(ParamLayoutTest, AValueOverAByteBoundaryGroupsAllBytesItTouches) {
    EXPECT_EQ(Text(LayOut({At(0, 12), At(0, 4, 4), At(2, 8)}, unknown)), "@0[0 1] 2");
    EXPECT_EQ(Text(LayOut({At(0, 12, 2)}, unknown)), "@0[g2 0 g2]");
}

TEST(ParamLayoutTest, WithTheHighByteFirstAGroupCountsFromItsLastByte) {
    const auto high = [](std::uint64_t byte, std::uint64_t bits, std::uint32_t bit) {
        return Placement{byte, bit, bits, Placement::HighByteFirst};
    };
    const auto low = [](std::uint64_t byte, std::uint64_t bits, std::uint32_t bit) {
        return Placement{byte, bit, bits, Placement::LowByteFirst};
    };
    EXPECT_EQ(Text(LayOut({high(0, 12, 4), high(1, 12, 0)}, unknown)), "@0[1 0]");
    EXPECT_EQ(Text(LayOut({high(0, 12, 0), At(0, 4, 4)}, unknown)), "@0[0 1]");
    EXPECT_EQ(Text(LayOut({high(0, 12, 0), At(1, 4, 4)}, unknown)), "@0[0 1!^1.4 g4]");
    EXPECT_EQ(Text(LayOut({high(2, 10, 3), At(4, 8)}, 48)), "g16 @2[g3 0 g3] 1 g8");
    EXPECT_EQ(Text(LayOut({high(0, 12, 4), At(2, 2, 1)}, unknown)), "@0[g4 0] @2[g1 1 g5]");
    EXPECT_EQ(Text(LayOut({high(0, 2, 0), high(0, 4, 4)}, unknown)), "@0[0 g2 1]");
    EXPECT_EQ(Text(LayOut({low(0, 12, 0), At(1, 4, 4)}, unknown)), "@0[0 1]");
    EXPECT_EQ(Text(LayOut({low(0, 12, 0), high(1, 12, 4)}, unknown)), "@0[0 1]");
    EXPECT_EQ(Text(LayOut({At(0, 4, 4), At(0, 6, 6), At(1, 6, 0)}, unknown)), "@0[2 1 0]");
    EXPECT_EQ(Text(LayOut({low(0, 12, 0), At(1, 12, 4)}, unknown)), "@0[0 1]");
}

TEST(ParamLayoutTest, OverlapsAreMarkedAndLeaveNoGap) {
    EXPECT_EQ(Text(LayOut({At(0, 16), At(1, 8), At(2, 8)}, unknown)), "0 1!^1 2");
    EXPECT_EQ(Text(LayOut({At(0, 4, 0), At(0, 4, 2)}, unknown)), "@0[0 1!^0.2 g2]");
    EXPECT_EQ(Text(LayOut({At(0, 16), At(0, 1, 5), At(1, 1, 0), At(2, 8)}, unknown)), "@0[0 2!^1 1!^0.5] 3");
    const Placement low{0, 0, 16, Placement::LowByteFirst};
    EXPECT_EQ(Text(LayOut({low, At(0, 1, 5), At(1, 1, 0)}, unknown)), "@0[0 1!^0.5 2!^1]");
    EXPECT_EQ(Text(LayOut({At(0, 16), {1, 0, unknown}}, unknown)), "0 1!^1");
}

TEST(ParamLayoutTest, BehindAnUnknownLengthThereAreNoGapsUntilTheNextKnownPosition) {
    EXPECT_EQ(Text(LayOut({At(0, 8), {1, 0, unknown}, Behind(8), At(20, 8), At(22, 8)}, 400)), "0 1 2 3^20 g8 4 g216");
    EXPECT_EQ(Text(LayOut({{unknown, 0, unknown}, Behind(8)}, 64)), "0 1");
    EXPECT_EQ(Text(LayOut({{1, 0, unknown}, At(6, 16), {unknown, 4, 4}, {7, 0, unknown}, {9, 0, unknown}}, unknown)),
              "g8 0 1^6 3!^7 @8[g4 2]^8 4");
    EXPECT_EQ(Text(LayOut({{1, 0, unknown}, At(3, 4, 2)}, unknown)), "g8 0 @3[g2 1 g2]^3");
}

TEST(ParamLayoutTest, BitsBehindAnUnknownLengthAreAGroupInBytesOfTheirOwn) {
    EXPECT_EQ(Text(LayOut({{1, 0, unknown}, {unknown, 4, 4}, Behind(8)}, unknown)), "g8 0 @[g4 1] 2");
    EXPECT_EQ(Text(LayOut({{1, 0, unknown}, {unknown, 2, 10}, {unknown, 1, unknown}}, unknown)),
              "g8 0 @[g2 1 g4] g1 2");
}

TEST(ParamLayoutTest, AGapBeforeAnUnknownLengthIsKept) {
    EXPECT_EQ(Text(LayOut({At(0, 8), {3, 0, unknown}}, unknown)), "0 g16 1");
}

TEST(ParamLayoutTest, WithoutPositionAParameterBeginsAtTheNextWholeByte) {
    EXPECT_EQ(Text(LayOut({At(0, 4), Behind(8)}, unknown)), "@0[0 g4] 1");
}
