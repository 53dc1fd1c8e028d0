#include "support/Imports.h"

#include <gtest/gtest.h>

using namespace ImportDame;
using OdxTests::Attribute;
using OdxTests::Describe;
using OdxTests::Imported;
using OdxTests::TemporaryFile;

namespace {

std::string Dop(const std::string& id, int bits) {
    return "<DATA-OBJECT-PROPS><DATA-OBJECT-PROP ID='" + id +
           "'><SHORT-NAME>Temp</SHORT-NAME><DIAG-CODED-TYPE xsi:type='STANDARD-LENGTH-TYPE' BASE-DATA-TYPE='A_UINT32'>"
           "<BIT-LENGTH>" +
           std::to_string(bits) +
           "</BIT-LENGTH></DIAG-CODED-TYPE><PHYSICAL-TYPE BASE-DATA-TYPE='A_UINT32'/></DATA-OBJECT-PROP>"
           "</DATA-OBJECT-PROPS>";
}

std::string Param(const std::string& name, const std::string& link, int byte) {
    return "<PARAM xsi:type='VALUE'><SHORT-NAME>" + name + "</SHORT-NAME><BYTE-POSITION>" + std::to_string(byte) +
           "</BYTE-POSITION>" + link + "</PARAM>";
}

const std::string base =
    "<DIAG-COMMS><DIAG-SERVICE ID='ds'><SHORT-NAME>Read</SHORT-NAME><REQUEST-REF ID-REF='rq'/><POS-RESPONSE-REFS>"
    "<POS-RESPONSE-REF ID-REF='pr'/></POS-RESPONSE-REFS></DIAG-SERVICE></DIAG-COMMS>"
    "<DIAG-DATA-DICTIONARY-SPEC>" +
    Dop("temp", 8) + "<STRUCTURES><STRUCTURE ID='st'><SHORT-NAME>State</SHORT-NAME><PARAMS>" +
    Param("First", "<DOP-SNREF SHORT-NAME='Temp'/>", 0) + Param("Second", "<DOP-SNREF SHORT-NAME='Temp'/>", 4) +
    "</PARAMS></STRUCTURE><STRUCTURE ID='other'><SHORT-NAME>Other</SHORT-NAME><PARAMS>" +
    Param("Fixed", "<DOP-REF ID-REF='temp'/>", 0) +
    "</PARAMS></STRUCTURE></STRUCTURES></DIAG-DATA-DICTIONARY-SPEC>"
    "<REQUESTS><REQUEST ID='rq'><SHORT-NAME>RQ</SHORT-NAME><PARAMS><PARAM xsi:type='CODED-CONST'><SHORT-NAME>SID"
    "</SHORT-NAME><BYTE-POSITION>0</BYTE-POSITION><CODED-VALUE>34</CODED-VALUE><DIAG-CODED-TYPE "
    "xsi:type='STANDARD-LENGTH-TYPE' BASE-DATA-TYPE='A_UINT32'><BIT-LENGTH>8</BIT-LENGTH></DIAG-CODED-TYPE></PARAM>"
    "</PARAMS></REQUEST></REQUESTS><POS-RESPONSES><POS-RESPONSE ID='pr'><SHORT-NAME>PR</SHORT-NAME><PARAMS>" +
    Param("Whole", "<DOP-REF ID-REF='st'/>", 1) + "</PARAMS></POS-RESPONSE></POS-RESPONSES>";

std::string Variant(const std::string& name, const std::string& content, const std::string& exclusions = {}) {
    return "<ECU-VARIANT ID='ev." + name + "'><SHORT-NAME>" + name + "</SHORT-NAME>" + content +
           "<PARENT-REFS><PARENT-REF ID-REF='b'>" + exclusions + "</PARENT-REF></PARENT-REFS></ECU-VARIANT>";
}

std::string Document(const std::string& variants) {
    std::string xml = OdxTests::BaseVariant(base);
    const std::string end = "</BASE-VARIANTS>";
    xml.insert(xml.find(end) + end.size(), "<ECU-VARIANTS>" + variants + "</ECU-VARIANTS>");
    return xml;
}

/// "State, State for V, …": the data types with the variant that each is repeated for.
std::wstring Types(Imported& imported) {
    std::wstring text;
    for (VDataType& type : imported.document.DataTypeCollection()) {
        const std::wstring variant = Attribute(type.Attributes(), L"ECU-VARIANT");
        text += (text.empty() ? L"" : L", ") + std::wstring(type.GetQualifier());
        if (variant != L"(none)")
            text += L" for " + variant;
    }
    return text;
}

VPacketDataType& PacketFor(Imported& imported, const wchar_t* name, const wchar_t* variant) {
    for (VDataType& type : imported.document.DataTypeCollection())
        if (std::wstring(type.GetQualifier()) == name && Attribute(type.Attributes(), L"ECU-VARIANT") == variant)
            return dynamic_cast<VPacketDataType&>(type);
    throw std::runtime_error("no such packet");
}

} // namespace

TEST(VariantViewsTest, WhatAVariantSeesOtherwiseIsThereOnceMore) {
    const TemporaryFile file("b.odx-d", Document(Variant("V", "<DIAG-DATA-DICTIONARY-SPEC>" + Dop("temp.v", 16) +
                                                                  "</DIAG-DATA-DICTIONARY-SPEC>") +
                                                 Variant("W", "")));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "");
    EXPECT_TRUE(imported.ledger.AddsUp());
    EXPECT_EQ(Types(imported), L"Temp, State, Other, Temp, State for V, RQ, PR, PR for V, A_UINT32_8");
    EXPECT_EQ(Describe(PacketFor(imported, L"State", L"(none)").InterchangeableCollection()),
              L"First:Temp gap:24 Second:Temp");
    EXPECT_EQ(Describe(PacketFor(imported, L"State", L"V").InterchangeableCollection()),
              L"First:Temp gap:16 Second:Temp");
}

TEST(VariantViewsTest, ARepeatedPacketHasTheRepeatedTypes) {
    const TemporaryFile file("b.odx-d", Document(Variant("V", "<DIAG-DATA-DICTIONARY-SPEC>" + Dop("temp.v", 16) +
                                                                  "</DIAG-DATA-DICTIONARY-SPEC>")));
    Imported imported(file.Path());
    const auto typeOfFirst = [](VPacketDataType& packet) {
        return dynamic_cast<VDataObject&>(*packet.InterchangeableCollection().Begin()).GetDataType();
    };
    VPacketDataType& state = PacketFor(imported, L"State", L"V");
    const auto& temp = dynamic_cast<VIdentityDataType&>(*typeOfFirst(state));
    EXPECT_EQ(const_cast<VIdentityDataType&>(temp).CodedProperties().CodedAtomProperties().GetBitLength(), 16U);
    VInterchangeableCollection& response = PacketFor(imported, L"PR", L"V").InterchangeableCollection();
    auto member = response.Begin();
    ++member; // behind the gap of one byte
    EXPECT_EQ(dynamic_cast<VDataObject&>(*member).GetDataType(), &state);
}

TEST(VariantViewsTest, AnExcludedObjectIsMissedOnlyByTheVariantThatExcludesIt) {
    const TemporaryFile file(
        "b.odx-d", Document(Variant("V", "",
                                    "<NOT-INHERITED-DOPS><NOT-INHERITED-DOP><DOP-BASE-SNREF SHORT-NAME='Temp'/>"
                                    "</NOT-INHERITED-DOP></NOT-INHERITED-DOPS>") +
                            Variant("W", "")));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0309 ODX0309"); // both parameters of the structure
    EXPECT_NE(imported.diagnostics.Kept()[0].message.find("\"V\" has no object \"Temp\""), std::string::npos);
    EXPECT_EQ(Types(imported), L"Temp, State, Other, State for V, RQ, PR, PR for V, A_UINT32_8");
}

TEST(VariantViewsTest, SharedDataThatOnlyTheVariantHasMakeADifference) {
    std::string xml = Document(Variant("V", ""));
    const std::string parent = "<PARENT-REF ID-REF='b'></PARENT-REF>";
    xml.insert(xml.find(parent), "<PARENT-REF ID-REF='esd'/>");
    const std::string start = "<BASE-VARIANTS>";
    xml.insert(xml.find(start), "<ECU-SHARED-DATAS><ECU-SHARED-DATA ID='esd'><SHORT-NAME>Shared</SHORT-NAME>"
                                "<DIAG-DATA-DICTIONARY-SPEC>" +
                                    Dop("temp.s", 32) +
                                    "</DIAG-DATA-DICTIONARY-SPEC></ECU-SHARED-DATA></ECU-SHARED-DATAS>");
    const TemporaryFile file("b.odx-d", xml);
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "");
    EXPECT_EQ(Describe(PacketFor(imported, L"State", L"V").InterchangeableCollection()), L"First:Temp Second:Temp");
}

TEST(VariantViewsTest, SharedDataThatOnlyTheVariantHasFindTheObjectsOfTheBase) {
    std::string xml = Document(Variant("V", ""));
    const std::string parent = "<PARENT-REF ID-REF='b'></PARENT-REF>";
    xml.insert(xml.find(parent), "<PARENT-REF ID-REF='esd'/>");
    const std::string start = "<BASE-VARIANTS>";
    xml.insert(xml.find(start), "<ECU-SHARED-DATAS><ECU-SHARED-DATA ID='esd'><SHORT-NAME>Shared</SHORT-NAME>"
                                "<DIAG-DATA-DICTIONARY-SPEC><STRUCTURES><STRUCTURE ID='more'><SHORT-NAME>More"
                                "</SHORT-NAME><PARAMS>" +
                                    Param("Third", "<DOP-SNREF SHORT-NAME='Temp'/>", 0) +
                                    Param("Fourth", "<DOP-SNREF SHORT-NAME='Nowhere'/>", 1) +
                                    "</PARAMS></STRUCTURE></STRUCTURES></DIAG-DATA-DICTIONARY-SPEC>"
                                    "</ECU-SHARED-DATA></ECU-SHARED-DATAS>");
    const TemporaryFile file("b.odx-d", xml);
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0309"); // the fourth
    EXPECT_EQ(Describe(PacketFor(imported, L"More", L"V").InterchangeableCollection()), L"Third:Temp Fourth:");
}

TEST(VariantViewsTest, RepeatedObjectsCountAsCopies) {
    const TemporaryFile file("b.odx-d", Document(Variant("V", "<DIAG-DATA-DICTIONARY-SPEC>" + Dop("temp.v", 16) +
                                                                  "</DIAG-DATA-DICTIONARY-SPEC>")));
    OdxImport::ImportOptions options;
    options.inputs = {file.Path()};
    for (const auto& [copies, types] : {std::pair(2, L"Temp, State, Other, Temp, RQ, PR, A_UINT32_8"),
                                        {4, L"Temp, State, Other, Temp, State for V, RQ, PR, A_UINT32_8"}}) {
        options.limits.copies = static_cast<std::uint64_t>(copies); // a packet counts with its parameters
        Imported imported(options);
        EXPECT_EQ(imported.Codes(), "ODX0707");
        EXPECT_EQ(Types(imported), types);
        EXPECT_TRUE(imported.ledger.AddsUp());
        if (copies == 4) {
            EXPECT_EQ(Describe(PacketFor(imported, L"State", L"V").InterchangeableCollection()),
                      L"First:Temp gap:16 Second:Temp");
        }
    }
}
