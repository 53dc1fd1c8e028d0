#include <ImportDame/CodedProperties.h>

#include <gtest/gtest.h>

#include <type_traits>

using namespace ImportDame;

namespace {

TEST(VPropertiesTest, EnumerationsHoldAny32BitNumber) {
    static_assert(sizeof(VProperties::VEncoding) == 4);
    static_assert(sizeof(VProperties::VByteOrder) == 4);
    static_assert(sizeof(VProperties::VQuantity) == 4);
    static_assert(sizeof(VFieldProperties::VSizeInfo) == 4);
    static_assert(std::has_virtual_destructor_v<VProperties>);
    EXPECT_EQ(VProperties::atomic, 0);
    EXPECT_EQ(VProperties::field, 1);
    VCodedAtomProperties properties;
    properties.SetEncoding(static_cast<VProperties::VEncoding>(-2147483647 - 1));
    EXPECT_EQ(static_cast<int>(properties.GetEncoding()), -2147483647 - 1);
    properties.SetByteOrder(static_cast<VProperties::VByteOrder>(2147483647));
    EXPECT_EQ(static_cast<int>(properties.GetByteOrder()), 2147483647);
}

TEST(VCodedAtomPropertiesTest, StartsAsAnUnsignedByteWithTheNeutralMask) {
    const VCodedAtomProperties properties;
    EXPECT_EQ(static_cast<int>(properties.GetEncoding()), 0);
    EXPECT_EQ(static_cast<int>(properties.GetByteOrder()), 1);
    EXPECT_EQ(properties.GetBitLength(), 8U);
    EXPECT_EQ(properties.GetBitMask(), 0xFFFFFFFFU);
    EXPECT_TRUE(properties.IsNum());
    EXPECT_FALSE(properties.IsText());
    EXPECT_FALSE(properties.HasBitMask());
    EXPECT_EQ(VCodedAtomProperties::c_neutralBitMask, 0xFFFFFFFFU);
}

TEST(VCodedAtomPropertiesTest, KeepsWhatWasSet) {
    VCodedAtomProperties properties;
    properties.SetEncoding(VProperties::byteField);
    properties.SetByteOrder(VProperties::lowHigh);
    properties.SetBitLength(4294967295U);
    properties.SetBitMask(0x1234U);
    EXPECT_EQ(static_cast<int>(properties.GetEncoding()), 7);
    EXPECT_EQ(static_cast<int>(properties.GetByteOrder()), 0);
    EXPECT_EQ(properties.GetBitLength(), 4294967295U);
    EXPECT_EQ(properties.GetBitMask(), 0x1234U);
}

struct EncodingRow {
    int encoding;
    bool isNum;
    bool isText;
};

constexpr EncodingRow g_encodings[] = {
    {-2147483647 - 1, false, false},
    {-1, false, false},
    {0, true, false},
    {1, true, false},
    {2, true, false},
    {3, true, false},
    {4, true, false},
    {5, false, true},
    {6, false, true},
    {7, false, false},
    {8, false, false},
    {2147483647, false, false},
};

TEST(VCodedAtomPropertiesTest, EncodingsUpToFourAreNumbersAndTheNextTwoTexts) {
    for (const EncodingRow& row : g_encodings) {
        VCodedAtomProperties atom;
        atom.SetEncoding(static_cast<VProperties::VEncoding>(row.encoding));
        EXPECT_EQ(atom.IsNum(), row.isNum) << row.encoding;
        EXPECT_EQ(atom.IsText(), row.isText) << row.encoding;
        VCodedProperties coded;
        coded.SetEncoding(static_cast<VProperties::VEncoding>(row.encoding));
        EXPECT_EQ(coded.IsNum(), row.isNum) << row.encoding;
        EXPECT_EQ(coded.IsText(), row.isText) << row.encoding;
    }
}

TEST(VCodedAtomPropertiesTest, HasABitMaskWhenItClearsOneOfTheValuesBits) {
    struct Row {
        unsigned int bitLength;
        unsigned int bitMask;
        bool hasBitMask;
    };

    constexpr Row rows[] = {
        {0, 0xFFFFFFFF, false},
        {0, 0, false},
        {1, 0xFFFFFFFF, false},
        {1, 1, false},
        {1, 0xFFFFFFFE, true},
        {1, 0, true},
        {8, 0x000000FF, false},
        {8, 0x0000007F, true},
        {8, 0xFFFFFFFE, true},
        {8, 0, true},
        {31, 0x7FFFFFFF, false},
        {31, 0x3FFFFFFF, true},
        {31, 0xFFFFFFFE, true},
        {32, 0xFFFFFFFF, false},
        {32, 0xFFFFFFFE, true},
        {32, 0x7FFFFFFF, true},
        {33, 0xFFFFFFFF, false},
        {33, 0x7FFFFFFF, true},
        {4294967295U, 0xFFFFFFFF, false},
        {4294967295U, 0xFFFFFFFE, true},
    };
    for (const Row& row : rows) {
        VCodedAtomProperties atom;
        atom.SetBitLength(row.bitLength);
        atom.SetBitMask(row.bitMask);
        EXPECT_EQ(atom.HasBitMask(), row.hasBitMask) << row.bitLength << ' ' << row.bitMask;
        VCodedProperties coded;
        coded.SetAtomicBitLength(row.bitLength);
        coded.SetBitMask(row.bitMask);
        EXPECT_EQ(coded.HasBitMask(), row.hasBitMask) << row.bitLength << ' ' << row.bitMask;
    }
}

TEST(VCodedAtomPropertiesTest, AreEqualWhenEveryFieldIs) {
    const VCodedAtomProperties reference;
    VCodedAtomProperties other;
    EXPECT_TRUE(reference == other);
    EXPECT_FALSE(reference != other);
    const auto expectUnequal = [&](auto change) {
        VCodedAtomProperties changed;
        change(changed);
        EXPECT_FALSE(reference == changed);
        EXPECT_TRUE(reference != changed);
    };
    expectUnequal([](auto& changed) { changed.SetEncoding(VProperties::twosComplement); });
    expectUnequal([](auto& changed) { changed.SetByteOrder(VProperties::lowHigh); });
    expectUnequal([](auto& changed) { changed.SetBitLength(9); });
    expectUnequal([](auto& changed) { changed.SetBitMask(0x7FFFFFFF); });
    VCodedAtomProperties text;
    VCodedAtomProperties maskedText;
    text.SetEncoding(VProperties::asciiText);
    maskedText.SetEncoding(VProperties::asciiText);
    maskedText.SetBitMask(1);
    EXPECT_TRUE(text != maskedText); // also where the mask means nothing
}

TEST(VCodedAtomPropertiesTest, IsCopiedButNotAssigned) {
    static_assert(!std::is_copy_assignable_v<VCodedAtomProperties>);
    static_assert(!std::is_copy_assignable_v<VCodedProperties>);
    static_assert(!std::is_copy_assignable_v<VFieldProperties>);
    VCodedAtomProperties properties;
    properties.SetEncoding(VProperties::unicodeText);
    properties.SetByteOrder(VProperties::lowHigh);
    properties.SetBitLength(16);
    properties.SetBitMask(3);
    const VCodedAtomProperties copy(properties);
    EXPECT_EQ(static_cast<int>(copy.GetEncoding()), 6);
    EXPECT_EQ(static_cast<int>(copy.GetByteOrder()), 0);
    EXPECT_EQ(copy.GetBitLength(), 16U);
    EXPECT_EQ(copy.GetBitMask(), 3U);
}

TEST(VFieldPropertiesTest, StartsWithZeroTo255Elements) {
    const VFieldProperties properties;
    EXPECT_EQ(static_cast<int>(properties.GetSizeInfo()), 0);
    EXPECT_EQ(properties.GetMinLength(), 0U);
    EXPECT_EQ(properties.GetMaxLength(), 255U);
}

TEST(VFieldPropertiesTest, ComparesAndCopiesEveryField) {
    const VFieldProperties reference;
    VFieldProperties sizeInfo;
    sizeInfo.SetSizeInfo(VFieldProperties::leadingLength);
    VFieldProperties minLength;
    minLength.SetMinLength(1);
    VFieldProperties maxLength;
    maxLength.SetMaxLength(254);
    EXPECT_TRUE(reference == VFieldProperties());
    EXPECT_FALSE(reference != VFieldProperties());
    for (const VFieldProperties* changed : {&sizeInfo, &minLength, &maxLength}) {
        EXPECT_FALSE(reference == *changed);
        EXPECT_TRUE(reference != *changed);
    }
    sizeInfo.SetMinLength(7);
    sizeInfo.SetMaxLength(4294967295U);
    const VFieldProperties copy(sizeInfo);
    EXPECT_EQ(static_cast<int>(copy.GetSizeInfo()), 1);
    EXPECT_EQ(copy.GetMinLength(), 7U);
    EXPECT_EQ(copy.GetMaxLength(), 4294967295U);
}

TEST(VCodedPropertiesTest, StartsAtomicWithTheDefaultsOfItsParts) {
    const VCodedProperties properties;
    EXPECT_EQ(static_cast<int>(properties.GetQuantity()), 0);
    EXPECT_EQ(static_cast<int>(properties.GetEncoding()), 0);
    EXPECT_EQ(static_cast<int>(properties.GetByteOrder()), 1);
    EXPECT_EQ(properties.GetAtomicBitLength(), 8U);
    EXPECT_EQ(properties.GetBitMask(), 0xFFFFFFFFU);
    EXPECT_EQ(static_cast<int>(properties.GetSizeInfo()), 0);
    EXPECT_EQ(properties.GetMinLength(), 0U);
    EXPECT_EQ(properties.GetMaxLength(), 255U);
}

TEST(VCodedPropertiesTest, ForwardsToItsParts) {
    VCodedProperties properties;
    properties.SetEncoding(VProperties::floatingPoint);
    properties.SetByteOrder(VProperties::lowHigh);
    properties.SetAtomicBitLength(32);
    properties.SetBitMask(0xF0U);
    properties.SetSizeInfo(VFieldProperties::paramLength);
    properties.SetMinLength(2);
    properties.SetMaxLength(3);
    const VCodedAtomProperties& atom = properties.CodedAtomProperties();
    EXPECT_EQ(static_cast<int>(atom.GetEncoding()), 2);
    EXPECT_EQ(static_cast<int>(atom.GetByteOrder()), 0);
    EXPECT_EQ(atom.GetBitLength(), 32U);
    EXPECT_EQ(atom.GetBitMask(), 0xF0U);
    const VFieldProperties& fieldPart = properties.CodedFieldProperties();
    EXPECT_EQ(static_cast<int>(fieldPart.GetSizeInfo()), 2);
    EXPECT_EQ(fieldPart.GetMinLength(), 2U);
    EXPECT_EQ(fieldPart.GetMaxLength(), 3U);
    properties.CodedAtomProperties().SetBitLength(64);
    properties.CodedFieldProperties().SetMinLength(5);
    EXPECT_EQ(properties.GetAtomicBitLength(), 64U);
    EXPECT_EQ(properties.GetMinLength(), 5U);
    EXPECT_EQ(static_cast<int>(properties.GetEncoding()), 2);
    EXPECT_EQ(static_cast<int>(properties.GetByteOrder()), 0);
    EXPECT_EQ(properties.GetBitMask(), 0xF0U);
    EXPECT_EQ(static_cast<int>(properties.GetSizeInfo()), 2);
    EXPECT_EQ(properties.GetMaxLength(), 3U);
}

TEST(VCodedPropertiesTest, SettingAFieldPropertyMakesTheQuantityAField) {
    VCodedProperties minLength;
    minLength.SetMinLength(0); // also when nothing changes
    EXPECT_EQ(static_cast<int>(minLength.GetQuantity()), 1);
    VCodedProperties maxLength;
    maxLength.SetMaxLength(10);
    EXPECT_EQ(static_cast<int>(maxLength.GetQuantity()), 1);
    VCodedProperties sizeInfo;
    sizeInfo.SetSizeInfo(VFieldProperties::standardLength);
    EXPECT_EQ(static_cast<int>(sizeInfo.GetQuantity()), 1);
    sizeInfo.SetQuantity(VProperties::atomic);
    EXPECT_EQ(static_cast<int>(sizeInfo.GetQuantity()), 0);
}

TEST(VCodedPropertiesTest, NothingElseChangesTheQuantity) {
    VCodedProperties properties;
    properties.SetEncoding(VProperties::asciiText);
    properties.SetByteOrder(VProperties::lowHigh);
    properties.SetAtomicBitLength(16);
    properties.SetBitMask(1);
    properties.CodedFieldProperties().SetMaxLength(10);
    properties.CodedFieldProperties().SetMinLength(1);
    properties.CodedFieldProperties().SetSizeInfo(VFieldProperties::leadingLength);
    EXPECT_EQ(static_cast<int>(properties.GetQuantity()), 0);
    EXPECT_EQ(properties.GetMaxLength(), 10U);
    properties.SetQuantity(VProperties::field);
    properties.SetBitMask(2);
    EXPECT_EQ(static_cast<int>(properties.GetQuantity()), 1);
}

TEST(VCodedPropertiesTest, AreEqualWhenBothPartsAndTheQuantityAre) {
    const VCodedProperties reference;
    VCodedProperties atom;
    atom.SetAtomicBitLength(9);
    VCodedProperties fieldPart;
    fieldPart.CodedFieldProperties().SetMinLength(1);
    VCodedProperties quantity;
    quantity.SetQuantity(VProperties::field);
    EXPECT_TRUE(reference == VCodedProperties());
    EXPECT_FALSE(reference != VCodedProperties());
    for (const VCodedProperties* changed : {&atom, &fieldPart, &quantity}) {
        EXPECT_FALSE(reference == *changed);
        EXPECT_TRUE(reference != *changed);
    }
    EXPECT_TRUE(quantity == VCodedProperties(quantity));
}

} // namespace
