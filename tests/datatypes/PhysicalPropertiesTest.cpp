#include <ImportDame/PhysicalProperties.h>

#include <gtest/gtest.h>

#include <type_traits>

using namespace ImportDame;

namespace {

TEST(VPhysicalDisplayPropertiesTest, StartsDecimalUnsignedAndWithoutUnit) {
    static_assert(sizeof(VPhysicalDisplayProperties::VDisplayFormat) == 4);
    const VPhysicalDisplayProperties properties;
    EXPECT_EQ(static_cast<int>(properties.GetDisplayFormat()), 0);
    EXPECT_EQ(properties.GetPrecision(), 0U);
    EXPECT_STREQ(properties.GetUnit(), L"");
    EXPECT_FALSE(properties.IsSigned());
}

TEST(VPhysicalDisplayPropertiesTest, ComparesAndCopiesEveryField) {
    VPhysicalDisplayProperties reference;
    reference.SetUnit(L"m");
    VPhysicalDisplayProperties format(reference);
    format.SetDisplayFormat(VPhysicalDisplayProperties::hexadecimal);
    VPhysicalDisplayProperties precision(reference);
    precision.SetPrecision(1);
    VPhysicalDisplayProperties unit(reference);
    unit.SetUnit(L"M");
    VPhysicalDisplayProperties sign(reference);
    sign.SetSigned(true);
    EXPECT_TRUE(reference == VPhysicalDisplayProperties(reference));
    EXPECT_FALSE(reference != VPhysicalDisplayProperties(reference));
    for (const VPhysicalDisplayProperties* changed : {&format, &precision, &unit, &sign}) {
        EXPECT_FALSE(reference == *changed);
        EXPECT_TRUE(reference != *changed);
    }
    format.SetPrecision(4294967295U);
    format.SetSigned(true);
    const VPhysicalDisplayProperties copy(format);
    EXPECT_EQ(static_cast<int>(copy.GetDisplayFormat()), 1);
    EXPECT_EQ(copy.GetPrecision(), 4294967295U);
    EXPECT_STREQ(copy.GetUnit(), L"m");
    EXPECT_TRUE(copy.IsSigned());
}

TEST(VPhysicalDisplayPropertiesTest, TheUnitMayBeSetFromAPartOfItself) {
    VPhysicalDisplayProperties properties;
    properties.SetUnit(L"km/h");
    properties.SetUnit(properties.GetUnit() + 1);
    EXPECT_STREQ(properties.GetUnit(), L"m/h");
    properties.SetUnit(L"");
    EXPECT_STREQ(properties.GetUnit(), L"");
}

TEST(VPhysicalAtomPropertiesTest, StartsAsAnUnsignedByte) {
    VPhysicalAtomProperties properties;
    EXPECT_EQ(static_cast<int>(properties.GetEncoding()), 0);
    EXPECT_EQ(properties.GetBitLength(), 8U);
    EXPECT_TRUE(properties.IsNum());
    EXPECT_FALSE(properties.IsText());
    EXPECT_TRUE(properties.PhysicalDisplayProperties() == VPhysicalDisplayProperties());
}

TEST(VPhysicalAtomPropertiesTest, ForwardsToItsDisplayPart) {
    VPhysicalAtomProperties properties;
    properties.SetDisplayFormat(VPhysicalDisplayProperties::octal);
    properties.SetPrecision(4);
    properties.SetUnit(L"V");
    const VPhysicalDisplayProperties& display = properties.PhysicalDisplayProperties();
    EXPECT_EQ(static_cast<int>(display.GetDisplayFormat()), 3);
    EXPECT_EQ(display.GetPrecision(), 4U);
    EXPECT_STREQ(display.GetUnit(), L"V");
    properties.PhysicalDisplayProperties().SetUnit(L"A");
    EXPECT_STREQ(properties.GetUnit(), L"A");
    EXPECT_EQ(static_cast<int>(properties.GetDisplayFormat()), 3);
    EXPECT_EQ(properties.GetPrecision(), 4U);
}

TEST(VPhysicalAtomPropertiesTest, AreEqualWhenEveryFieldIs) {
    const VPhysicalAtomProperties reference;
    VPhysicalAtomProperties encoding;
    encoding.SetEncoding(VProperties::unicodeText);
    VPhysicalAtomProperties bitLength;
    bitLength.SetBitLength(16);
    VPhysicalAtomProperties display;
    display.PhysicalDisplayProperties().SetSigned(true);
    EXPECT_TRUE(reference == VPhysicalAtomProperties());
    EXPECT_FALSE(reference != VPhysicalAtomProperties());
    for (const VPhysicalAtomProperties* changed : {&encoding, &bitLength, &display}) {
        EXPECT_FALSE(reference == *changed);
        EXPECT_TRUE(reference != *changed);
    }
    const VPhysicalAtomProperties copy(bitLength);
    EXPECT_EQ(copy.GetBitLength(), 16U);
}

TEST(VPhysicalPropertiesTest, StartsAtomicWithTheDefaultsOfItsParts) {
    const VPhysicalProperties properties;
    EXPECT_EQ(static_cast<int>(properties.GetQuantity()), 0);
    EXPECT_EQ(static_cast<int>(properties.GetEncoding()), 0);
    EXPECT_EQ(properties.GetAtomicBitLength(), 8U);
    EXPECT_EQ(static_cast<int>(properties.GetDisplayFormat()), 0);
    EXPECT_EQ(properties.GetPrecision(), 0U);
    EXPECT_STREQ(properties.GetUnit(), L"");
    EXPECT_EQ(static_cast<int>(properties.GetSizeInfo()), 0);
    EXPECT_EQ(properties.GetMinLength(), 0U);
    EXPECT_EQ(properties.GetMaxLength(), 255U);
    EXPECT_TRUE(properties.IsNum());
    EXPECT_FALSE(properties.IsText());
}

TEST(VPhysicalPropertiesTest, ForwardsToItsParts) {
    VPhysicalProperties properties;
    properties.SetEncoding(VProperties::asciiText);
    properties.SetAtomicBitLength(7);
    properties.SetDisplayFormat(VPhysicalDisplayProperties::binary);
    properties.SetPrecision(2);
    properties.SetUnit(L"kg");
    properties.SetSizeInfo(VFieldProperties::minMaxLengthZero);
    properties.SetMinLength(3);
    properties.SetMaxLength(4);
    VPhysicalAtomProperties& atom = properties.PhysicalAtomProperties();
    EXPECT_EQ(static_cast<int>(atom.GetEncoding()), 5);
    EXPECT_EQ(atom.GetBitLength(), 7U);
    EXPECT_EQ(static_cast<int>(atom.PhysicalDisplayProperties().GetDisplayFormat()), 2);
    EXPECT_EQ(atom.PhysicalDisplayProperties().GetPrecision(), 2U);
    EXPECT_STREQ(atom.PhysicalDisplayProperties().GetUnit(), L"kg");
    EXPECT_EQ(static_cast<int>(properties.PhysicalFieldProperties().GetSizeInfo()), 4);
    EXPECT_EQ(properties.PhysicalFieldProperties().GetMinLength(), 3U);
    EXPECT_EQ(properties.PhysicalFieldProperties().GetMaxLength(), 4U);
    EXPECT_EQ(static_cast<int>(properties.GetEncoding()), 5);
    EXPECT_EQ(properties.GetAtomicBitLength(), 7U);
    EXPECT_EQ(static_cast<int>(properties.GetDisplayFormat()), 2);
    EXPECT_EQ(properties.GetPrecision(), 2U);
    EXPECT_STREQ(properties.GetUnit(), L"kg");
    EXPECT_EQ(static_cast<int>(properties.GetSizeInfo()), 4);
    EXPECT_EQ(properties.GetMinLength(), 3U);
    EXPECT_EQ(properties.GetMaxLength(), 4U);
}

TEST(VPhysicalPropertiesTest, EncodingsUpToFourAreNumbersAndTheNextTwoTexts) {
    for (const int encoding : {-1, 0, 1, 2, 3, 4, 5, 6, 7, 2147483647}) {
        const bool isNum = encoding >= 0 && encoding <= 4;
        const bool isText = encoding == 5 || encoding == 6;
        VPhysicalProperties properties;
        properties.SetEncoding(static_cast<VProperties::VEncoding>(encoding));
        EXPECT_EQ(properties.IsNum(), isNum) << encoding;
        EXPECT_EQ(properties.IsText(), isText) << encoding;
        EXPECT_EQ(properties.PhysicalAtomProperties().IsNum(), isNum) << encoding;
        EXPECT_EQ(properties.PhysicalAtomProperties().IsText(), isText) << encoding;
    }
}

TEST(VPhysicalPropertiesTest, OnlyFieldPropertiesSetHereMakeTheQuantityAField) {
    VPhysicalProperties properties;
    properties.SetEncoding(VProperties::asciiText);
    properties.SetAtomicBitLength(16);
    properties.SetDisplayFormat(VPhysicalDisplayProperties::octal);
    properties.SetPrecision(1);
    properties.SetUnit(L"s");
    properties.PhysicalFieldProperties().SetMinLength(1);
    properties.PhysicalFieldProperties().SetMaxLength(1);
    properties.PhysicalFieldProperties().SetSizeInfo(VFieldProperties::leadingLength);
    EXPECT_EQ(static_cast<int>(properties.GetQuantity()), 0);
    properties.SetMinLength(0);
    EXPECT_EQ(static_cast<int>(properties.GetQuantity()), 1);
    properties.SetQuantity(VProperties::atomic);
    EXPECT_EQ(static_cast<int>(properties.GetQuantity()), 0);
    properties.SetMaxLength(255);
    EXPECT_EQ(static_cast<int>(properties.GetQuantity()), 1);
    properties.SetQuantity(VProperties::atomic);
    properties.SetSizeInfo(VFieldProperties::standardLength);
    EXPECT_EQ(static_cast<int>(properties.GetQuantity()), 1);
}

TEST(VPhysicalPropertiesTest, AreEqualWhenBothPartsAndTheQuantityAre) {
    const VPhysicalProperties reference;
    VPhysicalProperties atom;
    atom.SetUnit(L"m");
    VPhysicalProperties fieldPart;
    fieldPart.PhysicalFieldProperties().SetMaxLength(1);
    VPhysicalProperties quantity;
    quantity.SetQuantity(VProperties::field);
    EXPECT_TRUE(reference == VPhysicalProperties());
    EXPECT_FALSE(reference != VPhysicalProperties());
    for (const VPhysicalProperties* changed : {&atom, &fieldPart, &quantity}) {
        EXPECT_FALSE(reference == *changed);
        EXPECT_TRUE(reference != *changed);
    }
    EXPECT_TRUE(atom == VPhysicalProperties(atom));
}

} // namespace
