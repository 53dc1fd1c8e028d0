#include "support/Imports.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

using namespace ImportDame;
using OdxTests::Attribute;
using OdxTests::BaseVariant;
using OdxTests::Describe;
using OdxTests::Imported;
using OdxTests::TemporaryFile;

namespace {

std::string Coded(const std::string& base, int bits, const std::string& more = "") {
    return "<DIAG-CODED-TYPE xsi:type='STANDARD-LENGTH-TYPE' BASE-DATA-TYPE='" + base + "' " + more + "><BIT-LENGTH>" +
           std::to_string(bits) + "</BIT-LENGTH></DIAG-CODED-TYPE>";
}

const std::string lowFirst = "IS-HIGHLOW-BYTE-ORDER='false'";

std::string At(int byte) {
    return "<BYTE-POSITION>" + std::to_string(byte) + "</BYTE-POSITION>";
}

std::string Const(const std::string& name, const std::string& position, const std::string& value,
                  const std::string& coded, const std::string& semantic = "") {
    return "<PARAM xsi:type='CODED-CONST'" + (semantic.empty() ? "" : " SEMANTIC='" + semantic + "'") +
           "><SHORT-NAME>" + name + "</SHORT-NAME>" + position + "<CODED-VALUE>" + value + "</CODED-VALUE>" + coded +
           "</PARAM>";
}

std::string Byte(int position, const std::string& value, const std::string& semantic = "") {
    return Const("P" + std::to_string(position), At(position), value, Coded("A_UINT32", 8), semantic);
}

std::string Hex(int position, const std::string& digits, const std::string& semantic = "") {
    return Const("P" + std::to_string(position), At(position), digits,
                 Coded("A_BYTEFIELD", static_cast<int>(digits.size()) * 4), semantic);
}

std::string Dop(const std::string& name, const std::string& coded) {
    return "<DATA-OBJECT-PROP ID='" + name + "'><SHORT-NAME>" + name +
           "</SHORT-NAME><COMPU-METHOD><CATEGORY>IDENTICAL</CATEGORY></COMPU-METHOD>" + coded +
           "<PHYSICAL-TYPE BASE-DATA-TYPE='A_UINT32'/></DATA-OBJECT-PROP>";
}

std::string Dictionary(const std::string& dops, const std::string& more = "") {
    return "<DIAG-DATA-DICTIONARY-SPEC><DATA-OBJECT-PROPS>" + dops + "</DATA-OBJECT-PROPS>" + more +
           "</DIAG-DATA-DICTIONARY-SPEC>";
}

std::string Value(const std::string& name, const std::string& position, const std::string& dop) {
    return "<PARAM xsi:type='VALUE'><SHORT-NAME>" + name + "</SHORT-NAME>" + position + "<DOP-REF ID-REF='" + dop +
           "'/></PARAM>";
}

/// A service with these parameters in its request.
std::string Service(const std::string& params) {
    return "<DIAG-COMMS><DIAG-SERVICE ID='s'><SHORT-NAME>S</SHORT-NAME><REQUEST-REF ID-REF='rq'/></DIAG-SERVICE>"
           "</DIAG-COMMS><REQUESTS><REQUEST ID='rq'><SHORT-NAME>RQ</SHORT-NAME><PARAMS>" +
           params + "</PARAMS></REQUEST></REQUESTS>";
}

/// Codes of the problems, then service id, sub values and DID of the service with these parameters, in hexadecimal
/// digits: "ODX0702 0 sub 1 did F190".
std::string Numbers(const std::string& params) {
    const TemporaryFile file("b.odx-d", BaseVariant(Service(params)));
    Imported imported(file.Path());
    std::ostringstream text;
    text << imported.Codes() << (imported.Codes().empty() ? "" : " ") << std::hex << std::uppercase;
    auto& service = dynamic_cast<VDiagService&>(*imported.document.GetBaseVariant().DiagCommCollection().Begin());
    text << service.GetServiceId();
    for (VDiagServiceShape& shape : service.DiagServiceShapeCollection())
        text << " sub " << shape.GetSubValue();
    if (auto& packet = imported.DataType<VPacketDataType>(L"RQ"); packet.HasDid())
        text << " did " << packet.GetDid();
    return text.str();
}

/// Every member with its attributes BYTE-POSITION and BIT-POSITION: "Bits_0{A B@1.4} C@6". Gaps have no name.
std::wstring Positions(VInterchangeableCollection& members) {
    std::wstring text;
    for (VInterchangeable& member : members) {
        text += (&member == &*members.Begin() ? L"" : L" ") + std::wstring(member.GetQualifier());
        if (auto* group = dynamic_cast<VBitField*>(&member))
            text += L"{" + Positions(group->InterchangeableCollection()) + L"}";
        const std::wstring byte = Attribute(member.Attributes(), L"BYTE-POSITION");
        const std::wstring bit = Attribute(member.Attributes(), L"BIT-POSITION");
        text += byte == L"(none)" ? L"" : L"@" + byte;
        text += bit == L"(none)" ? L"" : L"." + bit;
    }
    return text;
}

} // namespace

TEST(MessagesTest, ConstantsOfByteFieldsAreHexadecimalDigits) {
    EXPECT_EQ(Numbers(Hex(0, "22", "SERVICE-ID") + Hex(1, "0100", "ID")), "22 sub 100 did 100");
    EXPECT_EQ(Numbers(Hex(0, "3E", "SERVICE-ID") + Hex(1, "80", "SUBFUNCTION")), "3E sub 80");
    EXPECT_EQ(Numbers(Hex(0, "3E") + Hex(1, "00")), "3E sub 0");
    EXPECT_EQ(Numbers(Byte(0, "34") + Hex(1, "F190", "DATA-ID")), "22 sub F190 did F190");
    EXPECT_EQ(Numbers(Const("SID", At(0), "0x2e", Coded("A_BYTEFIELD", 8)) + Hex(1, "f190", "ID")),
              "ODX0502 2E sub F190 did F190");
    EXPECT_EQ(Numbers(Byte(0, "34") + Const("DID", At(1), "61840", Coded("A_BYTEFIELD", 24), "ID")),
              "ODX0505 22 sub 61840 did 61840");
    EXPECT_EQ(Numbers(Byte(0, "34") + Hex(1, "0102030405", "ID")), "22") << "more than 32 bits are no identifier";
    EXPECT_EQ(Numbers(Hex(0, "G1")), "ODX0702 ODX0506 0");
}

TEST(MessagesTest, ConstantsOfTextsAreTheirCharacters) {
    EXPECT_EQ(Numbers(Const("SID", At(0), "1", Coded("A_ASCIISTRING", 8)) +
                      Const("Sub", At(1), "AB", Coded("A_ASCIISTRING", 16), "ID")),
              "31 sub 4142 did 4142");
}

TEST(MessagesTest, AnIdentifierMayBeInTwoConstants) {
    EXPECT_EQ(Numbers(Byte(0, "34") + Byte(1, "241", "ID") + Byte(2, "144", "ID")), "22 sub F190 did F190");
    EXPECT_EQ(Numbers(Byte(0, "34") + Byte(2, "144", "DATA-ID") + Byte(1, "241", "DATA-ID")), "22 sub F190 did F190");
    EXPECT_EQ(Numbers(Byte(0, "34") + Byte(1, "241", "ID") + Byte(2, "144")), "22 sub F190 did F1");
    EXPECT_EQ(Numbers(Byte(0, "33") + Byte(1, "241", "ID") + Byte(3, "144", "ID")), "21 sub F1 did F1");
    EXPECT_EQ(Numbers(Byte(0, "34") + Hex(1, "F190", "ID") + Hex(3, "F191", "ID")), "22 sub F190 did F190");
}

TEST(MessagesTest, AConstantOfSeveralBytesThatStandsFirstIsCutIntoThem) {
    const auto first = [](const std::string& value, int bits, const std::string& more = "") {
        return Const("First", At(0), value, Coded("A_UINT32", bits, more));
    };
    const std::string behind = Const("Behind", "", "5", Coded("A_UINT32", 8));
    EXPECT_EQ(Numbers(first("4099", 16) + behind), "10 sub 3");
    EXPECT_EQ(Numbers(first("784", 16, lowFirst) + behind), "10 sub 3");
    EXPECT_EQ(Numbers(first("2290064", 24)), "22 sub F190");
    EXPECT_EQ(Numbers(Hex(0, "22F190010203") + behind), "22 sub F190");
    EXPECT_EQ(Numbers(first("1627", 12)), "65B") << "no whole bytes";
}

TEST(MessagesTest, ConstantsStandBehindWhatIsBeforeThem) {
    const std::string coded = Coded("A_UINT32", 8), wide = Coded("A_UINT32", 16);
    EXPECT_EQ(Numbers(Const("A", "", "34", coded) + Const("B", "", "61840", wide, "ID") + Const("C", "", "1", coded)),
              "22 sub F190 did F190");
    EXPECT_EQ(Numbers(Const("A", "", "47", coded) +
                      "<PARAM xsi:type='RESERVED'><SHORT-NAME>R</SHORT-NAME><BIT-LENGTH>16</BIT-LENGTH></PARAM>" +
                      Const("C", "", "1", coded)),
              "2F");
}

TEST(MessagesTest, ATableKeyOverBytesLiesByTheByteOrderOfItsTablesKey) {
    const auto message = [](const std::string& order) {
        const auto positions = [](int byte, int bit) {
            return At(byte) + "<BIT-POSITION>" + std::to_string(bit) + "</BIT-POSITION>";
        };
        const bool isLowFirst = !order.empty();
        return BaseVariant(
            Dictionary(Dop("u12", Coded("A_UINT32", 12, order)) + Dop("u4", Coded("A_UINT32", 4)),
                       "<TABLES><TABLE ID='t'><SHORT-NAME>T</SHORT-NAME><KEY-DOP-REF ID-REF='u12'/></TABLE></TABLES>") +
            Service("<PARAM xsi:type='TABLE-KEY' ID='k'><SHORT-NAME>K</SHORT-NAME>" + positions(0, isLowFirst ? 0 : 4) +
                    "<TABLE-REF ID-REF='t'/></PARAM>" + Value("V", positions(1, isLowFirst ? 4 : 0), "u4")));
    };
    const TemporaryFile high("h.odx-d", message("")), low("l.odx-d", message(lowFirst));
    Imported highFirst(high.Path()), lowIsFirst(low.Path());
    EXPECT_EQ(highFirst.Codes(), "ODX0702");
    EXPECT_EQ(Describe(highFirst.DataType<VPacketDataType>(L"RQ").InterchangeableCollection()), L"[V:u4 K:u12]");
    EXPECT_EQ(lowIsFirst.Codes(), "ODX0702");
    EXPECT_EQ(Describe(lowIsFirst.DataType<VPacketDataType>(L"RQ").InterchangeableCollection()), L"[K:u12 V:u4]");
}

TEST(MessagesTest, TheFirstServiceThatHasATroubleCodeHoweverDeepReadsIt) {
    const auto service = [](const std::string& name, const std::string& response) {
        return "<DIAG-SERVICE ID='" + name + "'><SHORT-NAME>" + name +
               "</SHORT-NAME><POS-RESPONSE-REFS><POS-RESPONSE-REF ID-REF='" + response +
               "'/></POS-RESPONSE-REFS></DIAG-SERVICE>";
    };
    const auto response = [](const std::string& name, const std::string& params) {
        return "<POS-RESPONSE ID='" + name + "'><SHORT-NAME>" + name + "</SHORT-NAME><PARAMS>" + params +
               "</PARAMS></POS-RESPONSE>";
    };
    const auto dtcDop = [](const std::string& name) {
        return "<DTC-DOP ID='" + name + "'><SHORT-NAME>" + name + "</SHORT-NAME>" + Coded("A_UINT32", 24) +
               "<PHYSICAL-TYPE BASE-DATA-TYPE='A_UINT32'/><COMPU-METHOD><CATEGORY>IDENTICAL</CATEGORY></COMPU-METHOD>"
               "<DTCS><DTC ID='d" +
               name + "'><SHORT-NAME>D</SHORT-NAME><TROUBLE-CODE>1</TROUBLE-CODE><TEXT>t</TEXT></DTC></DTCS></DTC-DOP>";
    };
    const std::string text =
        "<DATA-OBJECT-PROP ID='text'><SHORT-NAME>text</SHORT-NAME><COMPU-METHOD><CATEGORY>IDENTICAL"
        "</CATEGORY></COMPU-METHOD><DIAG-CODED-TYPE xsi:type='MIN-MAX-LENGTH-TYPE' "
        "BASE-DATA-TYPE='A_ASCIISTRING' TERMINATION='ZERO'/></DATA-OBJECT-PROP>";
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant("<DIAG-DATA-DICTIONARY-SPEC><DTC-DOPS>" + dtcDop("dtcs") + dtcDop("more") +
                    "</DTC-DOPS><DATA-OBJECT-PROPS>" + Dop("u8", Coded("A_UINT32", 8)) + text +
                    "</DATA-OBJECT-PROPS><STRUCTURES><STRUCTURE ID='rec'><SHORT-NAME>rec</SHORT-NAME><PARAMS>" +
                    Value("Flags", "", "u8") + Value("InRecord", "", "dtcs") +
                    "</PARAMS></STRUCTURE></STRUCTURES><END-OF-PDU-FIELDS><END-OF-PDU-FIELD ID='list'><SHORT-NAME>list"
                    "</SHORT-NAME><BASIC-STRUCTURE-REF ID-REF='rec'/></END-OF-PDU-FIELD></END-OF-PDU-FIELDS>"
                    "</DIAG-DATA-DICTIONARY-SPEC><DIAG-COMMS>" +
                    service("Deep", "deep") + service("Flat", "flat") + "</DIAG-COMMS><POS-RESPONSES>" +
                    response("flat", Value("Name", "", "text") + Value("InFlat", "", "dtcs") + Value("B", "", "more")) +
                    response("deep", Value("X", At(0), "u8") + Value("List", At(3), "list")) + "</POS-RESPONSES>"));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0701 ODX0701");
    std::wstring mappings;
    for (const wchar_t* name : {L"dtcs", L"more"}) {
        VServiceMapping& mapping = imported.document.TroubleCodeCollectionCollection().Find(name)->ServiceMapping();
        mappings += std::wstring(mapping.GetService()) + L" " + mapping.GetPrimitive() + L" " + mapping.GetInstance() +
                    L" " + std::to_wstring(mapping.GetBitPosition()) + L";";
    }
    EXPECT_EQ(mappings, L"Deep deep InRecord 32;Flat flat B 0;");
}

/// A search through the response for each of them would take minutes.
TEST(MessagesTest, ManyCollectionsOfOneResponseHaveTheirPositions) {
    constexpr int count = 10000;
    std::string collections, params;
    for (int i = 0; i < count; ++i) {
        const std::string name = "d" + std::to_string(i);
        collections += "<DTC-DOP ID='" + name + "'><SHORT-NAME>" + name + "</SHORT-NAME>" + Coded("A_UINT32", 24) +
                       "<COMPU-METHOD><CATEGORY>IDENTICAL</CATEGORY></COMPU-METHOD></DTC-DOP>";
        params += Value("P" + name, "", name);
    }
    const TemporaryFile file(
        "b.odx-d", BaseVariant("<DIAG-DATA-DICTIONARY-SPEC><DTC-DOPS>" + collections +
                               "</DTC-DOPS></DIAG-DATA-DICTIONARY-SPEC><DIAG-COMMS><DIAG-SERVICE ID='s'><SHORT-NAME>S"
                               "</SHORT-NAME><POS-RESPONSE-REFS><POS-RESPONSE-REF ID-REF='r'/></POS-RESPONSE-REFS>"
                               "</DIAG-SERVICE></DIAG-COMMS><POS-RESPONSES><POS-RESPONSE ID='r'><SHORT-NAME>R"
                               "</SHORT-NAME><PARAMS>" +
                               params + "</PARAMS></POS-RESPONSE></POS-RESPONSES>"));
    Imported imported(file.Path());
    int position = 0;
    for (VTroubleCodeCollection& collection : imported.document.TroubleCodeCollectionCollection()) {
        ASSERT_EQ(collection.ServiceMapping().GetBitPosition(), position);
        position += 24;
    }
    EXPECT_EQ(position, 24 * count);
}

TEST(MessagesTest, ADefaultCaseWithoutStructureIsAnAttribute) {
    const auto mux = [](const std::string& name, const std::string& otherwise) {
        return "<MUX ID='" + name + "'><SHORT-NAME>" + name + "</SHORT-NAME>" + At(1) + "<SWITCH-KEY>" + At(0) +
               "<DATA-OBJECT-PROP-REF ID-REF='u8'/></SWITCH-KEY>" + otherwise + "</MUX>";
    };
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant(Dictionary(
            Dop("u8", Coded("A_UINT32", 8)),
            "<STRUCTURES><STRUCTURE ID='st'><SHORT-NAME>st</SHORT-NAME></STRUCTURE></STRUCTURES><MUXS>" +
                mux("empty", "<DEFAULT-CASE><SHORT-NAME>Nothing</SHORT-NAME></DEFAULT-CASE>") +
                mux("full", "<DEFAULT-CASE><SHORT-NAME>Other</SHORT-NAME><STRUCTURE-REF ID-REF='st'/></DEFAULT-CASE>") +
                mux("none", "") + "</MUXS>")));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "");
    std::wstring texts;
    for (const wchar_t* name : {L"empty", L"full", L"none"}) {
        auto& type = imported.DataType<VMuxDataType>(name);
        texts += Attribute(type.Attributes(), L"DEFAULT-CASE") + L" " + Describe(type.GetDefaultCase()) + L";";
    }
    EXPECT_EQ(texts, L"Nothing ;(none) Other:st;(none) ;");
}

TEST(MessagesTest, ValuesWrittenWith0xAreReadAlikeWhereverTheyStand) {
    const auto envData = [](const std::string& name, const std::string& value) {
        return "<ENV-DATA ID='" + name + "'><SHORT-NAME>" + name + "</SHORT-NAME><DTC-VALUES><DTC-VALUE>" + value +
               "</DTC-VALUE></DTC-VALUES></ENV-DATA>";
    };
    const std::string key = "<PARAM xsi:type='TABLE-KEY' ID='k'><SHORT-NAME>K</SHORT-NAME><TABLE-ROW-REF ID-REF='r1'/>"
                            "</PARAM>";
    const std::string nrc = "<PARAM xsi:type='NRC-CONST'><SHORT-NAME>N</SHORT-NAME><CODED-VALUES><CODED-VALUE>0x11"
                            "</CODED-VALUE><CODED-VALUE>49</CODED-VALUE><CODED-VALUE>x</CODED-VALUE></CODED-VALUES>" +
                            Coded("A_UINT32", 8) + "</PARAM>";
    const std::string empty =
        "<PARAM xsi:type='NRC-CONST'><SHORT-NAME>E</SHORT-NAME><CODED-VALUES/>" + Coded("A_UINT32", 8) + "</PARAM>";
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant(Dictionary(
            Dop("u8", Coded("A_UINT32", 8)),
            "<DYNAMIC-ENDMARKER-FIELDS><DYNAMIC-ENDMARKER-FIELD ID='f'><SHORT-NAME>F</SHORT-NAME>"
            "<BASIC-STRUCTURE-REF ID-REF='st'/><DATA-OBJECT-PROP-REF ID-REF='u8'><TERMINATION-VALUE>0xFF"
            "</TERMINATION-VALUE></DATA-OBJECT-PROP-REF></DYNAMIC-ENDMARKER-FIELD>"
            "</DYNAMIC-ENDMARKER-FIELDS><STRUCTURES><STRUCTURE ID='st'><SHORT-NAME>St</SHORT-NAME><PARAMS>" +
                key + nrc + empty +
                "</PARAMS></STRUCTURE></STRUCTURES><TABLES><TABLE ID='t'><SHORT-NAME>T</SHORT-NAME>"
                "<KEY-DOP-REF ID-REF='u8'/><TABLE-ROW ID='r1'><SHORT-NAME>R1</SHORT-NAME><KEY>0x05</KEY>"
                "<STRUCTURE-REF ID-REF='st'/></TABLE-ROW><TABLE-ROW ID='r2'><SHORT-NAME>R2</SHORT-NAME>"
                "<KEY>7.0</KEY></TABLE-ROW></TABLE></TABLES><ENV-DATA-DESCS><ENV-DATA-DESC ID='e'>"
                "<SHORT-NAME>E</SHORT-NAME><ENV-DATAS>" +
                envData("E1", "0x1234") + envData("E2", "12") + "</ENV-DATAS></ENV-DATA-DESC>" + "</ENV-DATA-DESCS>")));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0502 ODX0502 ODX0503 ODX0509 ODX0502 ODX0502");
    std::wstring ranges;
    for (const wchar_t* name : {L"T", L"E"})
        for (VCase& made : imported.DataType<VMuxDataType>(name).GetCaseCollection())
            ranges += Describe(made.Range());
    EXPECT_EQ(ranges, L"[5,5][7,7][4660,4660][12,12]");
    EXPECT_STREQ(imported.DataType<VEndMarkerIterDataType>(L"F").TerminationValue().Get(), L"255");
    auto& members = imported.DataType<VPacketDataType>(L"St").InterchangeableCollection();
    EXPECT_EQ(Describe(members), L"K:u8=5 N:A_UINT32_8 E:A_UINT32_8");
    VInterchangeable& nrcs = *++members.Begin();
    EXPECT_EQ(Attribute(nrcs.Attributes(), L"CODED-VALUES"), L"17 49");
}

TEST(MessagesTest, PositionsThatTheMembersBeforeDoNotTellAreAttributes) {
    const std::string text =
        "<DATA-OBJECT-PROP ID='text'><SHORT-NAME>text</SHORT-NAME><COMPU-METHOD><CATEGORY>IDENTICAL"
        "</CATEGORY></COMPU-METHOD><DIAG-CODED-TYPE xsi:type='MIN-MAX-LENGTH-TYPE' "
        "BASE-DATA-TYPE='A_ASCIISTRING' TERMINATION='ZERO'/></DATA-OBJECT-PROP>";
    const auto bit = [](int position) { return "<BIT-POSITION>" + std::to_string(position) + "</BIT-POSITION>"; };
    const auto structure = [](const std::string& name, const std::string& params) {
        return "<STRUCTURE ID='" + name + "'><SHORT-NAME>" + name + "</SHORT-NAME><PARAMS>" + params +
               "</PARAMS></STRUCTURE>";
    };
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant(Dictionary(Dop("u16", Coded("A_UINT32", 16)) + Dop("low16", Coded("A_UINT32", 16, lowFirst)) +
                                   Dop("u4", Coded("A_UINT32", 4)) + Dop("u1", Coded("A_UINT32", 1)) + text,
                               "<STRUCTURES>" +
                                   structure("over", Value("All", At(0), "u16") + Value("F5", At(0) + bit(5), "u1") +
                                                         Value("F0", At(1) + bit(0), "u1")) +
                                   structure("low", Value("All", At(0), "low16") + Value("F0", At(0) + bit(0), "u1") +
                                                        Value("F8", At(1) + bit(0), "u1")) +
                                   structure("open", Value("Text", At(1), "text") + Value("Crc", At(6), "u16") +
                                                         Value("Next", At(8), "u16")) +
                                   structure("bits", Value("Text", At(0), "text") + Value("High", bit(4), "u4")) +
                                   "</STRUCTURES>")));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0608 ODX0608 ODX0608 ODX0608");
    const auto members = [&](const wchar_t* name) -> VInterchangeableCollection& {
        return imported.DataType<VPacketDataType>(name).InterchangeableCollection();
    };
    EXPECT_EQ(Positions(members(L"over")), L"Bits_0{All F0@1 F5@0.5}");
    EXPECT_EQ(Positions(members(L"low")), L"Bits_0{All F0@0 F8@1}");
    EXPECT_EQ(Positions(members(L"open")), L" Text Crc@6 Next");
    EXPECT_EQ(Positions(members(L"bits")), L"Text Bits_High{ High}");
}

namespace {

std::string Limit(const std::string& tag, const std::string& value, const std::string& interval) {
    return "<" + tag + (interval.empty() ? "" : " INTERVAL-TYPE='" + interval + "'") + ">" + value + "</" + tag + ">";
}

std::string Case(const std::string& name, const std::string& lower, const std::string& upper,
                 const std::string& lowerInterval = "", const std::string& upperInterval = "") {
    return "<CASE><SHORT-NAME>" + name + "</SHORT-NAME>" + Limit("LOWER-LIMIT", lower, lowerInterval) +
           Limit("UPPER-LIMIT", upper, upperInterval) + "</CASE>";
}

/// Names of the cases that are reported to overlap another one: "B(A) C(A)".
std::string Overlaps(const std::string& cases, const std::string& physical = "A_UINT32") {
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant(Dictionary(
            "<DATA-OBJECT-PROP ID='key'><SHORT-NAME>key</SHORT-NAME><COMPU-METHOD><CATEGORY>IDENTICAL"
            "</CATEGORY></COMPU-METHOD>" +
                Coded("A_UINT32", 8) + "<PHYSICAL-TYPE BASE-DATA-TYPE='" + physical + "'/></DATA-OBJECT-PROP>",
            "<MUXS><MUX ID='m'><SHORT-NAME>M</SHORT-NAME>" + At(1) + "<SWITCH-KEY>" + At(0) +
                "<DATA-OBJECT-PROP-REF ID-REF='key'/></SWITCH-KEY><CASES>" + cases + "</CASES></MUX></MUXS>")));
    const Imported imported(file.Path());
    std::string text;
    for (const OdxImport::Diagnostic& problem : imported.diagnostics.Kept()) {
        if (problem.rule != OdxImport::Rule::CasesOverlap)
            continue;
        const std::string& path = problem.where.path;
        const std::string& message = problem.message;
        const std::size_t quote = message.find('"');
        text += (text.empty() ? "" : " ") + path.substr(path.rfind('/') + 1) + "(" +
                message.substr(quote + 1, message.rfind('"') - quote - 1) + ")";
    }
    return text;
}

} // namespace

TEST(MessagesTest, CasesThatApplyToAValueOfAnyOtherCaseAreReported) {
    EXPECT_EQ(Overlaps(Case("A", "0", "100") + Case("B", "5", "6") + Case("C", "50", "60") + Case("D", "101", "102")),
              "B(A) C(A)");
    EXPECT_EQ(Overlaps(Case("A", "1", "5", "", "OPEN") + Case("B", "3", "3") + Case("C", "5", "6")), "B(A)");
    EXPECT_EQ(Overlaps(Case("A", "0x10", "0x20") + Case("B", "32", "33")), "B(A)");
    EXPECT_EQ(Overlaps(Case("A", "10", "", "", "INFINITE") + Case("B", "500", "500") + Case("C", "1", "9")), "B(A)");
    EXPECT_EQ(Overlaps(Case("A", "", "10", "INFINITE") + Case("B", "3", "3") + Case("C", "11", "12")), "B(A)");
    EXPECT_EQ(Overlaps(Case("A", "x", "10") + Case("B", "3", "3")), "") << "where it begins is not known";
    EXPECT_EQ(Overlaps(Case("A", "9", "1") + Case("B", "3", "3")), "") << "no value is in it";
}

TEST(MessagesTest, OpenEndsOfRealNumbersDoNotOverlap) {
    const std::string real = "A_FLOAT64";
    EXPECT_EQ(Overlaps(Case("A", "0.5", "2.5", "", "OPEN") + Case("B", "2.5", "3"), real), "");
    EXPECT_EQ(Overlaps(Case("A", "2.5", "3", "OPEN") + Case("B", "0", "2.5"), real), "");
    EXPECT_EQ(Overlaps(Case("A", "0.5", "2.5", "", "OPEN") + Case("B", "2.4", "3"), real), "B(A)");
    EXPECT_EQ(Overlaps(Case("A", "0.5", "2.5") + Case("B", "2.5", "3"), real), "B(A)");
}

TEST(MessagesTest, OnlyALengthKeyTellsALength) {
    const auto blob = [](const std::string& name, const std::string& key) {
        return "<DATA-OBJECT-PROP ID='" + name + "'><SHORT-NAME>" + name +
               "</SHORT-NAME><COMPU-METHOD><CATEGORY>IDENTICAL</CATEGORY></COMPU-METHOD><DIAG-CODED-TYPE "
               "xsi:type='PARAM-LENGTH-INFO-TYPE' BASE-DATA-TYPE='A_BYTEFIELD'><LENGTH-KEY-REF ID-REF='" +
               key + "'/></DIAG-CODED-TYPE></DATA-OBJECT-PROP>";
    };
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant(Dictionary(Dop("u8", Coded("A_UINT32", 8)) + blob("right", "lk") + blob("wrong", "tk"),
                               "<TABLES><TABLE ID='t'><SHORT-NAME>T</SHORT-NAME><KEY-DOP-REF ID-REF='u8'/></TABLE>"
                               "</TABLES><STRUCTURES><STRUCTURE ID='st'><SHORT-NAME>St</SHORT-NAME><PARAMS>"
                               "<PARAM xsi:type='LENGTH-KEY' ID='lk'><SHORT-NAME>L</SHORT-NAME><DOP-REF ID-REF='u8'/>"
                               "</PARAM><PARAM xsi:type='TABLE-KEY' ID='tk'><SHORT-NAME>T</SHORT-NAME><TABLE-REF "
                               "ID-REF='t'/></PARAM>" +
                                   Value("Right", "", "right") + Value("Wrong", "", "wrong") +
                                   "</PARAMS></STRUCTURE></STRUCTURES>")));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0307");
    auto member = imported.DataType<VPacketDataType>(L"St").InterchangeableCollection().Begin();
    ++member;
    EXPECT_TRUE(dynamic_cast<VDataObject&>(*++member).HasSelectorDataObject());
    EXPECT_FALSE(dynamic_cast<VDataObject&>(*++member).HasSelectorDataObject());
    EXPECT_EQ(imported.ledger.AllRows().find("LENGTH-KEY-REF")->second.counts.dropped, 1u);
}

TEST(MessagesTest, ParametersAndCasesOfOneNameAreReported) {
    const std::string same = Case("A", "1", "1") + Case("B", "2", "2") + Case("A", "3", "3");
    const TemporaryFile file(
        "b.odx-d", BaseVariant(Dictionary(
                       Dop("u8", Coded("A_UINT32", 8)),
                       "<STRUCTURES><STRUCTURE ID='st'><SHORT-NAME>St</SHORT-NAME><PARAMS>" + Value("A", "", "u8") +
                           Value("B", "", "u8") + Value("B", "", "u8") +
                           "</PARAMS></STRUCTURE></STRUCTURES><MUXS><MUX ID='m'><SHORT-NAME>M</SHORT-NAME>" + At(1) +
                           "<SWITCH-KEY>" + At(0) + "<DATA-OBJECT-PROP-REF ID-REF='u8'/></SWITCH-KEY><CASES>" + same +
                           "</CASES></MUX></MUXS>")));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0304 ODX0304");
    EXPECT_EQ(Describe(imported.DataType<VPacketDataType>(L"St").InterchangeableCollection()), L"A:u8 B:u8 B:u8");
}

TEST(MessagesTest, ReservedBitsWithoutLengthAreAByteForTheLayoutToo) {
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant(Dictionary(Dop("u4", Coded("A_UINT32", 4)),
                               "<STRUCTURES><STRUCTURE ID='st'><SHORT-NAME>St</SHORT-NAME><PARAMS>"
                               "<PARAM xsi:type='RESERVED'><SHORT-NAME>R</SHORT-NAME></PARAM>"
                               "<PARAM xsi:type='MATCHING-REQUEST-PARAM'><SHORT-NAME>M</SHORT-NAME></PARAM>" +
                                   Value("A", At(3), "u4") + "</PARAMS></STRUCTURE></STRUCTURES>")));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0509 ODX0509");
    EXPECT_EQ(Describe(imported.DataType<VPacketDataType>(L"St").InterchangeableCollection()),
              L"Rgap:8 M:A_BYTEFIELD_8_x1 gap:8 [A:u4 gap:4]");
}

TEST(MessagesTest, HowServicesAreRelatedIsNotRepresented) {
    const TemporaryFile file(
        "b.odx-d", BaseVariant("<DIAG-COMMS><DIAG-SERVICE ID='s'><SHORT-NAME>S</SHORT-NAME><RELATED-DIAG-COMM-REFS>"
                               "<RELATED-DIAG-COMM-REF ID-REF='s'><RELATION-TYPE>START</RELATION-TYPE>"
                               "</RELATED-DIAG-COMM-REF></RELATED-DIAG-COMM-REFS></DIAG-SERVICE></DIAG-COMMS>"));
    const Imported imported(file.Path());
    const OdxImport::Ledger::Reasons& reasons = imported.ledger.AllRows().find("RELATION-TYPE")->second.reasons;
    ASSERT_EQ(reasons.size(), 1u);
    EXPECT_EQ(reasons.begin()->first.first, OdxImport::Fate::NotRepresented);
    EXPECT_EQ(reasons.begin()->first.second, "how services are related has no place in the model");
}

TEST(MessagesTest, WhiteSpaceAroundAttributesDoesNotCount) {
    const TemporaryFile file(
        "b.odx-d", BaseVariant(Dictionary(Dop("u8", Coded("A_UINT32", 8)),
                                          "<STRUCTURES><STRUCTURE ID='st'><SHORT-NAME>St</SHORT-NAME><PARAMS>"
                                          "<PARAM xsi:type=' VALUE\n' SEMANTIC=' DATA '><SHORT-NAME>A</SHORT-NAME>"
                                          "<DOP-REF ID-REF=' u8 '/></PARAM></PARAMS></STRUCTURE></STRUCTURES>")));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "");
    auto& members = imported.DataType<VPacketDataType>(L"St").InterchangeableCollection();
    EXPECT_EQ(Describe(members), L"A:u8");
    EXPECT_EQ(dynamic_cast<VDataObject&>(*members.Begin()).GetSemantics(), VBaseDataObject::data);
}
