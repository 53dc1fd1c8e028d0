#include "support/Fragments.h"
#include "support/Imports.h"

#include <gtest/gtest.h>

#include <string>

using namespace ImportDame;
using OdxTests::Attribute;
using OdxTests::BaseVariant;
using OdxTests::Coded;
using OdxTests::Coefficients;
using OdxTests::Describe;
using OdxTests::Dictionary;
using OdxTests::Dop;
using OdxTests::Imported;
using OdxTests::Method;
using OdxTests::Ranges;
using OdxTests::TemporaryFile;

namespace {

const std::string same = "<CATEGORY>IDENTICAL</CATEGORY>";

std::string Param(const std::string& type, const std::string& name, const std::string& content) {
    return "<PARAM ID='p." + name + "' xsi:type='" + type + "'><SHORT-NAME>" + name + "</SHORT-NAME>" + content +
           "</PARAM>";
}

std::string Structure(const std::string& params) {
    return "<STRUCTURES><STRUCTURE ID='st'><SHORT-NAME>St</SHORT-NAME><PARAMS>" + params +
           "</PARAMS></STRUCTURE></STRUCTURES>";
}

} // namespace

TEST(CodedTypesTest, ANumberWhoseBitsAKeyCountsIsOneNumber) {
    const auto keyed = [](const std::string& base) {
        return "<DIAG-CODED-TYPE xsi:type='PARAM-LENGTH-INFO-TYPE' BASE-DATA-TYPE='" + base +
               "'><LENGTH-KEY-REF ID-REF='p.Bits'/></DIAG-CODED-TYPE>";
    };
    const std::string limits = "<INTERNAL-CONSTR><LOWER-LIMIT>1</LOWER-LIMIT><UPPER-LIMIT INTERVAL-TYPE='OPEN'>10"
                               "</UPPER-LIMIT></INTERNAL-CONSTR>";
    const TemporaryFile file(
        "b.odx-d", BaseVariant(Dictionary(
                       Dop("count", Coded("A_UINT32", 8), "A_UINT32") +
                           Dop("address", keyed("A_UINT32"), "A_UINT32", same, limits) +
                           Dop("size", keyed("A_INT32"), "A_INT32",
                               Method("LINEAR", "<COMPU-SCALE>" + Coefficients("0 4") + "</COMPU-SCALE>")) +
                           Dop("bytes", keyed("A_BYTEFIELD"), "A_BYTEFIELD"),
                       Structure(Param("LENGTH-KEY", "Bits", "<DOP-REF ID-REF='count'/>") +
                                 Param("VALUE", "A", "<DOP-REF ID-REF='address'/>") +
                                 Param("VALUE", "B", "<BYTE-POSITION>9</BYTE-POSITION><DOP-REF ID-REF='bytes'/>")))));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "");
    auto& address = imported.DataType<VIdentityDataType>(L"address");
    EXPECT_EQ(address.CodedProperties().GetQuantity(), VProperties::atomic);
    EXPECT_EQ(address.CodedProperties().GetAtomicBitLength(), 32u);
    EXPECT_EQ(Attribute(address.Attributes(), L"LENGTH-KEY"), L"Bits");
    EXPECT_EQ(Ranges(address), L"[,0][10,]");
    auto& size = imported.DataType<VLinearDataType>(L"size");
    EXPECT_EQ(size.CodedAtomProperties().GetEncoding(), VProperties::twosComplement);
    EXPECT_EQ(Attribute(size.Attributes(), L"LENGTH-KEY"), L"Bits");
    auto& bytes = imported.DataType<VIdentityDataType>(L"bytes");
    EXPECT_EQ(bytes.CodedProperties().GetQuantity(), VProperties::field);
    EXPECT_EQ(bytes.CodedProperties().GetSizeInfo(), VFieldProperties::paramLength);
    EXPECT_EQ(Attribute(bytes.Attributes(), L"LENGTH-KEY"), L"(none)");
    // Where B lies does not follow from the most bits that A may have.
    EXPECT_EQ(Describe(imported.DataType<VPacketDataType>(L"St").InterchangeableCollection()),
              L"Bits:count A:address B:bytes");
}

TEST(CodedTypesTest, ConstantsOfUnequalCodedTypesHaveTypesOfTheirOwn) {
    const auto constant = [](const std::string& name, const std::string& base, const std::string& more,
                             const std::string& mask = "") {
        return Param("CODED-CONST", name,
                     "<CODED-VALUE>10</CODED-VALUE><DIAG-CODED-TYPE xsi:type='STANDARD-LENGTH-TYPE' BASE-DATA-TYPE='" +
                         base + "' " + more + "><BIT-LENGTH>16</BIT-LENGTH>" + mask + "</DIAG-CODED-TYPE>");
    };
    const std::string mask = "<BIT-MASK>0F0F</BIT-MASK>", text = "A_ASCIISTRING";
    const TemporaryFile file(
        "b.odx-d", BaseVariant(Dictionary("", Structure(constant("A", "A_UINT32", "CONDENSED='true'", mask) +
                                                        constant("B", "A_UINT32", "CONDENSED='false'", mask) +
                                                        constant("C", "A_UINT32", "", mask) + constant("D", text, "") +
                                                        constant("E", text, "BASE-TYPE-ENCODING='ISO-8859-1'") +
                                                        constant("F", text, "BASE-TYPE-ENCODING='ISO-8859-2'") +
                                                        constant("G", text, "BASE-TYPE-ENCODING='WINDOWS-1252'")))));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "");
    EXPECT_EQ(Describe(imported.DataType<VPacketDataType>(L"St").InterchangeableCollection()),
              L"A:A_UINT32_16_M3855_condensed=10 B:A_UINT32_16_M3855=10 C:A_UINT32_16_M3855=10 D:A_ASCIISTRING_8_x2=10 "
              L"E:A_ASCIISTRING_8_x2=10 F:A_ASCIISTRING_8_x2_ISO-8859-2=10 G:A_ASCIISTRING_8_x2_WINDOWS-1252=10");
    const auto attribute = [&](const wchar_t* type, const wchar_t* name) {
        return Attribute(imported.DataType<VIdentityDataType>(type).Attributes(), name);
    };
    EXPECT_EQ(attribute(L"A_UINT32_16_M3855_condensed", L"CONDENSED"), L"true");
    EXPECT_EQ(attribute(L"A_UINT32_16_M3855", L"CONDENSED"), L"(none)");
    EXPECT_EQ(attribute(L"A_ASCIISTRING_8_x2_ISO-8859-2", L"BASE-TYPE-ENCODING"), L"ISO-8859-2");
    EXPECT_EQ(attribute(L"A_ASCIISTRING_8_x2", L"BASE-TYPE-ENCODING"), L"(none)");
}

TEST(CodedTypesTest, AMaskOf32OnesOfAWiderNumberIsAnAttribute) {
    const auto masked = [](int bits, const std::string& mask) {
        return Coded("A_UINT32", bits, "<BIT-MASK>" + mask + "</BIT-MASK>");
    };
    const TemporaryFile file("b.odx-d", BaseVariant(Dictionary(Dop("wide", masked(40, "00FFFFFFFF"), "A_UINT32") +
                                                               Dop("part", masked(40, "00FFFFFFFE"), "A_UINT32") +
                                                               Dop("whole", masked(32, "FFFFFFFF"), "A_UINT32"))));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "");
    EXPECT_EQ(Attribute(imported.DataType<VIdentityDataType>(L"wide").Attributes(), L"BIT-MASK"), L"00FFFFFFFF");
    auto& part = imported.DataType<VIdentityDataType>(L"part");
    EXPECT_EQ(part.CodedProperties().GetBitMask(), 0xFFFFFFFEu);
    EXPECT_EQ(Attribute(part.Attributes(), L"BIT-MASK"), L"(none)");
    EXPECT_EQ(Attribute(imported.DataType<VIdentityDataType>(L"whole").Attributes(), L"BIT-MASK"), L"(none)");
}

TEST(CodedTypesTest, ConstantsThatTheirCodedTypeCannotHoldAreReported) {
    const auto constant = [](const std::string& name, const std::string& base, int bits, const std::string& value) {
        return Param("CODED-CONST", name, "<CODED-VALUE>" + value + "</CODED-VALUE>" + Coded(base, bits));
    };
    const std::string responses = "<CODED-VALUES><CODED-VALUE>0x12</CODED-VALUE><CODED-VALUE>300</CODED-VALUE>"
                                  "<CODED-VALUE>19.0</CODED-VALUE></CODED-VALUES>";
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant(Dictionary(
            "", Structure(constant("A", "A_BYTEFIELD", 16, "00fF") + constant("B", "A_BYTEFIELD", 16, "0x00FF") +
                          constant("C", "A_BYTEFIELD", 16, "00 FF") + constant("D", "A_FLOAT32", 32, "1.5") +
                          constant("E", "A_FLOAT32", 32, "1,5") + constant("F", "A_UINT32", 8, "-1") +
                          constant("G", "A_UINT32", 8, "255") + constant("H", "A_UINT32", 8, "256") +
                          constant("I", "A_INT32", 8, "-128") + constant("J", "A_INT32", 8, "128") +
                          constant("K", "A_ASCIISTRING", 16, "1,") +
                          Param("NRC-CONST", "L", responses + Coded("A_UINT32", 8))))));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0502 ODX0506 ODX0503 ODX0504 ODX0504 ODX0504 ODX0502 ODX0504");
    auto& members = imported.DataType<VPacketDataType>(L"St").InterchangeableCollection();
    EXPECT_EQ(Describe(members), L"A:A_BYTEFIELD_8_x2=00fF B:A_BYTEFIELD_8_x2=00FF C:A_BYTEFIELD_8_x2 "
                                 L"D:A_FLOAT32_32=1.5 E:A_FLOAT32_32 F:A_UINT32_8 G:A_UINT32_8=255 H:A_UINT32_8 "
                                 L"I:A_INT32_8=-128 J:A_INT32_8 K:A_ASCIISTRING_8_x2=1, L:A_UINT32_8");
    EXPECT_EQ(imported.ledger.AllRows().find("CODED-VALUE")->second.counts.dropped, 6u);
}

TEST(CodedTypesTest, ALengthInFrontNeedsItsBits) {
    const auto leading = [](const std::string& content) {
        return "<DIAG-CODED-TYPE xsi:type='LEADING-LENGTH-INFO-TYPE' BASE-DATA-TYPE='A_BYTEFIELD'>" + content +
               "</DIAG-CODED-TYPE>";
    };
    const std::string bytes = "A_BYTEFIELD";
    const TemporaryFile file("b.odx-d",
                             BaseVariant(Dictionary(Dop("none", leading(""), bytes) +
                                                    Dop("zero", leading("<BIT-LENGTH>0</BIT-LENGTH>"), bytes) +
                                                    Dop("most", leading("<BIT-LENGTH>32</BIT-LENGTH>"), bytes) +
                                                    Dop("more", leading("<BIT-LENGTH>33</BIT-LENGTH>"), bytes))));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0509 ODX0606 ODX0606");
    EXPECT_EQ(Attribute(imported.DataType<VIdentityDataType>(L"most").Attributes(), L"LENGTH-FIELD-BITS"), L"32");
    EXPECT_EQ(Attribute(imported.DataType<VIdentityDataType>(L"more").Attributes(), L"LENGTH-FIELD-BITS"), L"(none)");
}

TEST(CodedTypesTest, BytesMayBeDigits) {
    const auto encoded = [](const std::string& base, const std::string& encoding) {
        return "<DIAG-CODED-TYPE xsi:type='STANDARD-LENGTH-TYPE' BASE-DATA-TYPE='" + base + "' BASE-TYPE-ENCODING='" +
               encoding + "'><BIT-LENGTH>32</BIT-LENGTH></DIAG-CODED-TYPE>";
    };
    const TemporaryFile file("b.odx-d",
                             BaseVariant(Dictionary(Dop("packed", encoded("A_BYTEFIELD", "BCD-P"), "A_BYTEFIELD") +
                                                    Dop("unpacked", encoded("A_BYTEFIELD", "BCD-UP"), "A_BYTEFIELD") +
                                                    Dop("text", encoded("A_ASCIISTRING", "BCD-P"), "A_UNICODE2STRING") +
                                                    Dop("signed", encoded("A_BYTEFIELD", "2C"), "A_BYTEFIELD"))));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0508 ODX0508");
    auto& packed = imported.DataType<VIdentityDataType>(L"packed");
    EXPECT_EQ(Attribute(packed.Attributes(), L"BASE-TYPE-ENCODING"), L"BCD-P");
    EXPECT_EQ(packed.CodedProperties().GetEncoding(), VProperties::byteField);
    EXPECT_EQ(packed.CodedProperties().GetMinLength(), 4u);
}
