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
