#include "support/Fragments.h"
#include "support/Imports.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

using namespace ImportDame;
using OdxTests::Attribute;
using OdxTests::BaseVariant;
using OdxTests::Coded;
using OdxTests::Describe;
using OdxTests::Dictionary;
using OdxTests::Dop;
using OdxTests::Imported;
using OdxTests::Ranges;
using OdxTests::TemporaryFile;

namespace {

std::string Const(const std::string& name, const std::string& position, const std::string& value, int bits) {
    return "<PARAM xsi:type='CODED-CONST'><SHORT-NAME>" + name + "</SHORT-NAME>" + position + "<CODED-VALUE>" + value +
           "</CODED-VALUE>" + Coded("A_UINT32", bits) + "</PARAM>";
}

std::string At(int byte, int bit) {
    return "<BYTE-POSITION>" + std::to_string(byte) + "</BYTE-POSITION><BIT-POSITION>" + std::to_string(bit) +
           "</BIT-POSITION>";
}

std::string Service(const std::string& params) {
    return "<DIAG-COMMS><DIAG-SERVICE ID='s'><SHORT-NAME>S</SHORT-NAME><REQUEST-REF ID-REF='rq'/></DIAG-SERVICE>"
           "</DIAG-COMMS><REQUESTS><REQUEST ID='rq'><SHORT-NAME>RQ</SHORT-NAME><PARAMS>" +
           params + "</PARAMS></REQUEST></REQUESTS>";
}

const std::string back = "<COMPU-PHYS-TO-INTERNAL><COMPU-SCALES><COMPU-SCALE><COMPU-RATIONAL-COEFFS><COMPU-NUMERATOR>"
                         "<V>0</V><V>3</V></COMPU-NUMERATOR></COMPU-RATIONAL-COEFFS></COMPU-SCALE></COMPU-SCALES>"
                         "</COMPU-PHYS-TO-INTERNAL>";

/// The sub values of the one service with these parameters in its request, with blanks between them.
std::wstring SubValues(const std::string& params) {
    const TemporaryFile file("b.odx-d", BaseVariant(Service(params)));
    Imported imported(file.Path());
    auto& service = dynamic_cast<VDiagService&>(*imported.document.GetBaseVariant().DiagCommCollection().Begin());
    std::wstring texts;
    for (VDiagServiceShape& shape : service.DiagServiceShapeCollection())
        texts += (texts.empty() ? L"" : L" ") + std::to_wstring(shape.GetSubValue());
    return texts;
}

std::wstring Linear(VLinearConversion& conversion) {
    return L"(" + std::to_wstring(conversion.GetFactorNumerator()) + L" x)/" +
           std::to_wstring(conversion.GetFactorDenominator()) + L" + " + std::to_wstring(conversion.GetOffset()) +
           L" " + Describe(conversion.GetRange());
}

} // namespace

TEST(ForeignDataTest, CasesOfAMultiplexerApplyToPhysicalValuesOfItsKey) {
    const std::string onOff = "<CATEGORY>TEXTTABLE</CATEGORY><COMPU-INTERNAL-TO-PHYS><COMPU-SCALES><COMPU-SCALE>"
                              "<LOWER-LIMIT>1</LOWER-LIMIT><COMPU-CONST><VT>on</VT></COMPU-CONST></COMPU-SCALE>"
                              "</COMPU-SCALES></COMPU-INTERNAL-TO-PHYS>";
    const auto mux = [](const std::string& key, const std::string& lower, const std::string& upper) {
        return "<MUX ID='m" + key + "'><SHORT-NAME>m" + key +
               "</SHORT-NAME><SWITCH-KEY><BYTE-POSITION>0</BYTE-POSITION><DATA-OBJECT-PROP-REF ID-REF='" + key +
               "'/></SWITCH-KEY><CASES><CASE><SHORT-NAME>C</SHORT-NAME><LOWER-LIMIT>" + lower +
               "</LOWER-LIMIT><UPPER-LIMIT INTERVAL-TYPE='OPEN'>" + upper + "</UPPER-LIMIT></CASE></CASES></MUX>";
    };
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant(Dictionary(
            Dop("word", Coded("A_UINT32", 8), "A_UNICODE2STRING", onOff) +
                Dop("real", Coded("A_UINT32", 8), "A_FLOAT64") + Dop("whole", Coded("A_FLOAT32", 32), "A_INT32"),
            "<MUXS>" + mux("word", "on", "on") + mux("real", "0.5", "20") + mux("whole", "-4", "20") + "</MUXS>")));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "");
    std::wstring ranges;
    for (const wchar_t* name : {L"mword", L"mreal", L"mwhole"})
        for (VCase& made : imported.DataType<VMuxDataType>(name).GetCaseCollection())
            ranges += Describe(made.Range()) + (made.Range().GetStartValue().IsPhysical() ? L"physical" : L"");
    EXPECT_EQ(ranges, L"[on,on]physical[0.5,20]physical[-4,19]physical");
}

TEST(ForeignDataTest, WhatPhysicalWholeNumbersMayBeIsNotInvalid) {
    const std::string limits = "<PHYS-CONSTR><LOWER-LIMIT>0</LOWER-LIMIT><UPPER-LIMIT>100</UPPER-LIMIT></PHYS-CONSTR>";
    const std::string same = "<CATEGORY>IDENTICAL</CATEGORY>";
    const TemporaryFile file("b.odx-d",
                             BaseVariant(Dictionary(Dop("natural", Coded("A_UINT32", 8), "A_UINT32", same, limits) +
                                                    Dop("whole", Coded("A_UINT32", 8), "A_INT32", same, limits) +
                                                    Dop("real", Coded("A_UINT32", 8), "A_FLOAT32", same, limits))));
    Imported imported(file.Path());
    EXPECT_EQ(Ranges(imported.DataType<VIdentityDataType>(L"natural")), L"[101,]physical");
    EXPECT_EQ(Ranges(imported.DataType<VIdentityDataType>(L"whole")), L"[,-1]physical[101,]physical");
    EXPECT_EQ(Ranges(imported.DataType<VIdentityDataType>(L"real")), L"[,0]physical[100,]physical");
}

TEST(ForeignDataTest, LimitsOf64BitsAreKeptToTheLastDigit) {
    const auto limits = [](const std::string& lower, const std::string& upper) {
        return "<INTERNAL-CONSTR><LOWER-LIMIT>" + lower + "</LOWER-LIMIT><UPPER-LIMIT>" + upper +
               "</UPPER-LIMIT></INTERNAL-CONSTR>";
    };
    const std::string same = "<CATEGORY>IDENTICAL</CATEGORY>", unsigned64 = Coded("A_UINT32", 64);
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant(Dictionary(
            Dop("all", unsigned64, "A_UINT32", same, limits("0", "18446744073709551615")) +
            Dop("most", unsigned64, "A_UINT32", same, limits("9223372036854775808", "18446744073709551614")) +
            Dop("signed", Coded("A_INT32", 64), "A_INT32", same,
                limits("-9223372036854775807", "9223372036854775807")) +
            Dop("63bits", Coded("A_UINT32", 63), "A_UINT32", same, limits("0", "9223372036854775807")))));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "");
    EXPECT_EQ(Ranges(imported.DataType<VIdentityDataType>(L"all")), L"");
    EXPECT_EQ(Ranges(imported.DataType<VIdentityDataType>(L"most")), L"[,9223372036854775807][18446744073709551615,]");
    EXPECT_EQ(Ranges(imported.DataType<VIdentityDataType>(L"signed")),
              L"[,-9223372036854775808][9223372036854775808,]");
    EXPECT_EQ(Ranges(imported.DataType<VIdentityDataType>(L"63bits")), L"");
}

TEST(ForeignDataTest, AConstantOf64BitsIsKept) {
    const TemporaryFile file("b.odx-d", BaseVariant(Service(Const("SID", At(0, 0), "49.0", 8) +
                                                            Const("Key", At(1, 0), "18446744073709551615", 64))));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "");
    EXPECT_EQ(Describe(imported.DataType<VPacketDataType>(L"RQ").InterchangeableCollection()),
              L"SID:A_UINT32_8=49 Key:A_UINT32_64=18446744073709551615");
}

TEST(ForeignDataTest, TheTwoBytesOfAnIdentifierMayBeConstantsOfTheirOwn) {
    const auto byte = [](int position, const std::string& value, int bits = 8, int bit = 0) {
        return Const("P" + std::to_string(position) + std::to_string(bit), At(position, bit), value, bits);
    };
    const std::string high = byte(1, "241"), low = byte(2, "144");
    for (const char* serviceId : {"34", "36", "46", "47"})
        EXPECT_EQ(SubValues(byte(0, serviceId).append(high).append(low)), L"61840") << serviceId;
    EXPECT_EQ(SubValues(byte(0, "34") + low + high), L"61840");
    EXPECT_EQ(SubValues(Const("SID", "", "34", 8) + Const("H", "", "241", 8) + Const("L", "", "144", 8)), L"61840");
    EXPECT_EQ(SubValues(byte(0, "34") + byte(1, "1", 4) + byte(1, "15", 4, 4) + low), L"61840");

    EXPECT_EQ(SubValues(byte(0, "34") + byte(1, "61840", 16)), L"61840");
    EXPECT_EQ(SubValues(byte(0, "34") + byte(1, "61840", 16) + byte(2, "7")), L"61840") << "wide";
    EXPECT_EQ(SubValues(byte(0, "34") + high), L"241") << "no low byte";
    EXPECT_EQ(SubValues(byte(0, "34") + high + byte(2, "9", 4)), L"241") << "half a low byte";
    EXPECT_EQ(SubValues(byte(0, "34") + low + byte(3, "1")), L"") << "no high byte";
    for (const char* serviceId : {"25", "44", "49"}) // a subfunction is what comes first there
        EXPECT_EQ(SubValues(byte(0, serviceId).append(byte(1, "1")).append(low)), L"1") << serviceId;
}

TEST(ForeignDataTest, ALinearConversionWithTheWayBackOnlyIsTurnedRound) {
    const auto method = [](const std::string& category, const std::string& scales) {
        return "<CATEGORY>" + category + "</CATEGORY><COMPU-PHYS-TO-INTERNAL><COMPU-SCALES>" + scales +
               "</COMPU-SCALES></COMPU-PHYS-TO-INTERNAL>";
    };
    const auto scale = [](const std::string& limits, const std::string& numerator, const std::string& denominator) {
        return "<COMPU-SCALE>" + limits + "<COMPU-RATIONAL-COEFFS><COMPU-NUMERATOR>" + numerator +
               "</COMPU-NUMERATOR><COMPU-DENOMINATOR>" + denominator +
               "</COMPU-DENOMINATOR></COMPU-RATIONAL-COEFFS></COMPU-SCALE>";
    };
    const std::string word = Coded("A_UINT32", 16);
    const std::string falls = "<LOWER-LIMIT>-40</LOWER-LIMIT><UPPER-LIMIT>100.1</UPPER-LIMIT>",
                      rises = "<LOWER-LIMIT INTERVAL-TYPE='INFINITE'/><UPPER-LIMIT>12.5</UPPER-LIMIT>";
    const TemporaryFile file(
        "b.odx-d", BaseVariant(Dictionary(
                       Dop("whole", word, "A_FLOAT64", method("LINEAR", scale("", "<V>40</V><V>2</V>", "<V>1</V>"))) +
                       Dop("pieces", word, "A_FLOAT64",
                           method("SCALE-LINEAR", scale(falls, "<V>2000</V><V>-10</V>", "<V>1</V>") +
                                                      scale(rises, "<V>1</V><V>4</V>", "<V>2</V>"))) +
                       Dop("flat", word, "A_FLOAT64", method("LINEAR", scale("", "<V>40</V>", "<V>1</V>"))))));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0614 ODX0614 ODX0614 ODX0602");
    EXPECT_TRUE(imported.ledger.AddsUp());
    VLinearConversion& whole = imported.DataType<VLinearDataType>(L"whole").LinearConversion();
    EXPECT_EQ(Linear(whole), L"(1.000000 x)/2 + -20.000000 [,]");
    EXPECT_EQ(Attribute(imported.DataType<VLinearDataType>(L"whole").Attributes(),
                        L"COMPU-PHYS-TO-INTERNAL/COMPU-SCALES/COMPU-SCALE/COMPU-RATIONAL-COEFFS/COMPU-NUMERATOR/V"),
              L"40");
    std::set<std::wstring> pieces; // the collection is ordered by addresses
    for (VLinearConversion& piece : imported.DataType<VPiecewiseLinearDataType>(L"pieces").LinearConversionCollection())
        pieces.insert(Linear(piece));
    EXPECT_EQ(pieces, (std::set<std::wstring>{L"(-1.000000 x)/10 + 200.000000 [999,2400]",
                                              L"(2.000000 x)/4 + -0.250000 [,26]"}));
}

TEST(ForeignDataTest, ALevelThatIsNoNumberIsReportedAndDropped) {
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant("<DIAG-DATA-DICTIONARY-SPEC><DTC-DOPS><DTC-DOP ID='d'><SHORT-NAME>D</SHORT-NAME>" +
                    Coded("A_UINT32", 24) +
                    "<DTCS><DTC "
                    "ID='t'><SHORT-NAME>T</SHORT-NAME><TROUBLE-CODE>1</TROUBLE-CODE><TEXT>t</TEXT><LEVEL>high</LEVEL>"
                    "</DTC><DTC "
                    "ID='u'><SHORT-NAME>U</SHORT-NAME><TROUBLE-CODE>2</TROUBLE-CODE><TEXT>u</TEXT><LEVEL/></DTC></DTCS>"
                    "</DTC-DOP></DTC-DOPS></DIAG-DATA-DICTIONARY-SPEC>"));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0503 ODX0503");
    EXPECT_EQ(imported.ledger.AllRows().find("LEVEL")->second.counts.dropped, 2u);
    EXPECT_TRUE(imported.ledger.AddsUp());
    EXPECT_EQ(imported.document.TroubleCodeCollectionCollection().TroubleCodesCount(), 2u);
}

TEST(ForeignDataTest, AConversionMayHaveTheWayBackOnly) {
    const TemporaryFile file(
        "b.odx-d", BaseVariant(Dictionary(
                       Dop("formula", Coded("A_UINT32", 8), "A_FLOAT64", "<CATEGORY>RAT-FUNC</CATEGORY>" + back) +
                       Dop("program", Coded("A_UINT32", 8), "A_FLOAT64",
                           "<CATEGORY>COMPUCODE</CATEGORY><COMPU-PHYS-TO-INTERNAL><PROG-CODE><CODE-FILE>p.jar"
                           "</CODE-FILE></PROG-CODE></COMPU-PHYS-TO-INTERNAL>"))));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "");
    auto& formula = imported.DataType<VFormulaDataType>(L"formula");
    EXPECT_STREQ(formula.GetCodedToPhysFormula(), L"");
    EXPECT_STREQ(formula.GetPhysToCodedFormula(), L"3*x");
    auto& program = imported.DataType<VProcedureDataType>(L"program");
    EXPECT_EQ(program.CodedToPhysFunctionCollection().Count(), 0u);
    EXPECT_EQ(program.PhysToCodedFunctionCollection().Count(), 1u);
}

TEST(ForeignDataTest, AMaskOfMoreThan32BitsAndOneOfBytesAreAttributes) {
    const TemporaryFile file(
        "b.odx-d", BaseVariant(Dictionary(
                       Dop("wide", Coded("A_UINT32", 64, "<BIT-MASK>FF00000000000000</BIT-MASK>"), "A_UINT32") +
                       Dop("bytes", Coded("A_BYTEFIELD", 16, "<BIT-MASK>0FF0</BIT-MASK>"), "A_BYTEFIELD") +
                       Dop("narrow", Coded("A_UINT32", 64, "<BIT-MASK>00000000000000F0</BIT-MASK>"), "A_UINT32"))));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "");
    auto& wide = imported.DataType<VIdentityDataType>(L"wide");
    EXPECT_EQ(Attribute(wide.Attributes(), L"BIT-MASK"), L"FF00000000000000");
    EXPECT_FALSE(wide.CodedProperties().HasBitMask());
    auto& bytes = imported.DataType<VIdentityDataType>(L"bytes");
    EXPECT_EQ(Attribute(bytes.Attributes(), L"BIT-MASK"), L"0FF0");
    EXPECT_FALSE(bytes.CodedProperties().HasBitMask());
    auto& narrow = imported.DataType<VIdentityDataType>(L"narrow");
    EXPECT_EQ(Attribute(narrow.Attributes(), L"BIT-MASK"), L"(none)");
    EXPECT_EQ(narrow.CodedProperties().GetBitMask(), 0xF0u);
}

TEST(ForeignDataTest, ConstantsThatShareTheSecondByteAreTheSubValueTogether) {
    const std::string sid = Const("SID", At(0, 0), "39", 8), echo = Const("Suppress", At(1, 7), "0", 1);
    for (const auto& [params, sub] :
         {std::pair(echo + Const("Sub", At(1, 0), "5", 7), 5u),
          std::pair(Const("Sub", At(1, 0), "5", 7) + Const("Suppress", At(1, 7), "1", 1), 0x85u),
          std::pair(Const("High", At(1, 4), "2", 4), 0x20u)}) {
        const TemporaryFile file("b.odx-d", BaseVariant(Service(sid + params)));
        Imported imported(file.Path());
        auto& service = dynamic_cast<VDiagService&>(*imported.document.GetBaseVariant().DiagCommCollection().Begin());
        EXPECT_EQ((*service.DiagServiceShapeCollection().Begin()).GetSubValue(), sub) << params;
    }
}

TEST(ForeignDataTest, ValuesOverBytesLieByTheirByteOrder) {
    const auto structure = [](const std::string& order) {
        const std::string coded = "<DIAG-CODED-TYPE xsi:type='STANDARD-LENGTH-TYPE' BASE-DATA-TYPE='A_UINT32' "
                                  "IS-HIGHLOW-BYTE-ORDER='" +
                                  order + "'><BIT-LENGTH>12</BIT-LENGTH></DIAG-CODED-TYPE>";
        const auto param = [](const std::string& name, const std::string& position) {
            return "<PARAM xsi:type='VALUE'><SHORT-NAME>" + name + "</SHORT-NAME>" + position +
                   "<DOP-REF ID-REF='dop'/></PARAM>";
        };
        return BaseVariant(Dictionary(Dop("dop", coded, "A_UINT32"),
                                      "<STRUCTURES><STRUCTURE ID='st'><SHORT-NAME>St</SHORT-NAME><PARAMS>" +
                                          param("A", At(0, order == "true" ? 4 : 0)) +
                                          param("B", At(1, order == "true" ? 0 : 4)) +
                                          "</PARAMS></STRUCTURE></STRUCTURES>"));
    };
    const TemporaryFile high("h.odx-d", structure("true")), low("l.odx-d", structure("false"));
    Imported highFirst(high.Path()), lowFirst(low.Path());
    EXPECT_EQ(highFirst.Codes(), "");
    EXPECT_EQ(Describe(highFirst.DataType<VPacketDataType>(L"St").InterchangeableCollection()), L"[B:dop A:dop]");
    EXPECT_EQ(lowFirst.Codes(), "");
    EXPECT_EQ(Describe(lowFirst.DataType<VPacketDataType>(L"St").InterchangeableCollection()), L"[A:dop B:dop]");
}

TEST(ForeignDataTest, ATableKeyThatNamesARowIsFixed) {
    const auto key = [](const std::string& name, const std::string& links) {
        return "<PARAM xsi:type='TABLE-KEY'><SHORT-NAME>" + name + "</SHORT-NAME>" + links + "</PARAM>";
    };
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant(Dictionary(Dop("did", Coded("A_UINT32", 16), "A_UINT32"),
                               "<TABLES><TABLE ID='t'><SHORT-NAME>T</SHORT-NAME><KEY-DOP-REF ID-REF='did'/><TABLE-ROW "
                               "ID='r1'><SHORT-NAME>R1</SHORT-NAME><KEY>61840</KEY></TABLE-ROW><TABLE-ROW ID='r2'>"
                               "<SHORT-NAME>R2</SHORT-NAME><KEY>61841</KEY></TABLE-ROW></TABLE></TABLES>") +
                    Service(Const("SID", At(0, 0), "34", 8) + key("A", "<TABLE-ROW-REF ID-REF='r2'/>") +
                            key("B", "<TABLE-REF ID-REF='t'/><TABLE-ROW-SNREF SHORT-NAME='R1'/>") +
                            key("C", "<TABLE-REF ID-REF='t'/>") +
                            key("D", "<TABLE-REF ID-REF='t'/><TABLE-ROW-SNREF SHORT-NAME='R3'/>"))));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0309");
    EXPECT_EQ(Describe(imported.DataType<VPacketDataType>(L"RQ").InterchangeableCollection()),
              L"SID:A_UINT32_8=34 A:did=61841 B:did=61840 C:did D:did");
}

TEST(ForeignDataTest, EveryFunctionalClassThatIsNamedCountsAsImported) {
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant("<FUNCT-CLASSS><FUNCT-CLASS ID='f1'><SHORT-NAME>One</SHORT-NAME></FUNCT-CLASS><FUNCT-CLASS ID='f2'>"
                    "<SHORT-NAME>Two</SHORT-NAME></FUNCT-CLASS><FUNCT-CLASS ID='f3'><SHORT-NAME>Three</SHORT-NAME>"
                    "</FUNCT-CLASS></FUNCT-CLASSS><DIAG-COMMS><SINGLE-ECU-JOB ID='j'><SHORT-NAME>J</SHORT-NAME>"
                    "<FUNCT-CLASS-REFS><FUNCT-CLASS-REF ID-REF='f1'/><FUNCT-CLASS-REF ID-REF='f2'/></FUNCT-CLASS-REFS>"
                    "</SINGLE-ECU-JOB></DIAG-COMMS>"));
    Imported imported(file.Path());
    EXPECT_EQ(imported.ledger.AllRows().find("FUNCT-CLASS")->second.counts.imported, 2u);
    EXPECT_EQ(imported.ledger.AllRows().find("FUNCT-CLASS")->second.counts.notRepresented, 1u);
}

TEST(ForeignDataTest, LongNamesAndValuesDoNotFillReportsNorSources) {
    std::string unknown;
    for (int i = 0; i < 50; ++i)
        unknown += "<FOO/>";
    std::string xml = BaseVariant(unknown + Dictionary(Dop("dop", Coded("A_UINT32", 8), "A_UINT32",
                                                           "<CATEGORY>" + std::string(100000, 'c') + "</CATEGORY>")));
    const std::string name = "<SHORT-NAME>B</SHORT-NAME>";
    xml.replace(xml.find(name), name.size(), "<SHORT-NAME>" + std::string(100000, 'B') + "</SHORT-NAME>");
    const TemporaryFile file("b.odx-d", xml);
    Imported imported(file.Path());
    EXPECT_EQ(imported.diagnostics.Count(OdxImport::Rule::ElementUnknown), 50u);
    for (const OdxImport::Diagnostic& each : imported.diagnostics.Kept()) {
        EXPECT_LT(each.message.size(), 1100u);
        EXPECT_LT(each.where.path.size(), 2000u);
    }
    EXPECT_LT(std::wstring(imported.DataType<VIdentityDataType>(L"dop").GetSourceInfo()).size(), 600u);
    EXPECT_EQ(std::wstring(imported.document.GetBaseVariant().GetQualifier()), std::wstring(100000, L'B'));
}

TEST(ForeignDataTest, VariantsNameTheirGlobalNegativeResponses) {
    std::string xml = BaseVariant("<GLOBAL-NEG-RESPONSES><GLOBAL-NEG-RESPONSE ID='g1'><SHORT-NAME>G1</SHORT-NAME>"
                                  "</GLOBAL-NEG-RESPONSE><GLOBAL-NEG-RESPONSE ID='g2'><SHORT-NAME>G2</SHORT-NAME>"
                                  "</GLOBAL-NEG-RESPONSE></GLOBAL-NEG-RESPONSES>");
    const std::string end = "</BASE-VARIANTS>";
    xml.insert(xml.find(end) + end.size(),
               "<ECU-VARIANTS><ECU-VARIANT ID='v'><SHORT-NAME>V</SHORT-NAME><PARENT-REFS><PARENT-REF ID-REF='b' "
               "xsi:type='BASE-VARIANT-REF'><NOT-INHERITED-GLOBAL-NEG-RESPONSES><NOT-INHERITED-GLOBAL-NEG-RESPONSE>"
               "<GLOBAL-NEG-RESPONSE-SNREF SHORT-NAME='G1'/></NOT-INHERITED-GLOBAL-NEG-RESPONSE>"
               "</NOT-INHERITED-GLOBAL-NEG-RESPONSES></PARENT-REF></PARENT-REFS></ECU-VARIANT></ECU-VARIANTS>");
    const TemporaryFile file("b.odx-d", xml);
    Imported imported(file.Path());
    const auto names = [](VVariant& variant) {
        std::wstring text;
        for (VAttribute& attribute : variant.Attributes())
            if (std::wstring_view(attribute.GetQualifier()) == L"GLOBAL-NEG-RESPONSE")
                text += attribute.GetValue() + std::wstring(L" ");
        return text;
    };
    VBaseVariant& base = imported.document.GetBaseVariant();
    EXPECT_EQ(names(base), L"G1 G2 ");
    EXPECT_EQ(names(*base.GetEcuVariantCollection().Begin()), L"G2 ");
}

TEST(ForeignDataTest, ARecordHasAllSpecialDataOfOneName) {
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant("<DIAG-DATA-DICTIONARY-SPEC><DTC-DOPS><DTC-DOP ID='d'><SHORT-NAME>D</SHORT-NAME>" +
                    Coded("A_UINT32", 24) +
                    "<DTCS><DTC ID='c'><SHORT-NAME>C</SHORT-NAME><TROUBLE-CODE>1</TROUBLE-CODE><TEXT>t</TEXT><SDGS>"
                    "<SDG SI='ecu'><SD SI='a'>one</SD><SD SI='b'>two</SD><SD SI='a' TI='x'></SD><SD SI='a'>four</SD>"
                    "</SDG></SDGS></DTC></DTCS></DTC-DOP></DTC-DOPS></DIAG-DATA-DICTIONARY-SPEC>"));
    Imported imported(file.Path());
    VTroubleCode& code = *(*imported.document.TroubleCodeCollectionCollection().Begin()).Begin();
    EXPECT_STREQ(code.GetItem(4), L"one; ; four");
    EXPECT_STREQ(code.GetItem(5), L"two");
}

TEST(ForeignDataTest, FormattedWordsStayApart) {
    const TemporaryFile file("b.odx-d", BaseVariant("<DESC><p>See <b>section</b> <i>four</i>: H<sub>2</sub>O,\n"
                                                    "<u>x</u><sup>2</sup></p></DESC>"));
    Imported imported(file.Path());
    EXPECT_STREQ(imported.document.GetBaseVariant().GetDescription(), L"See section four: H2O, x2");
}

TEST(ForeignDataTest, CoefficientsOfZeroDoNotMakeAConversionLessLinear) {
    const std::string method = "<CATEGORY>LINEAR</CATEGORY><COMPU-INTERNAL-TO-PHYS><COMPU-SCALES><COMPU-SCALE>"
                               "<COMPU-RATIONAL-COEFFS><COMPU-NUMERATOR><V>3</V><V>1</V><V>0</V></COMPU-NUMERATOR>"
                               "<COMPU-DENOMINATOR><V>2</V><V>0.0</V></COMPU-DENOMINATOR></COMPU-RATIONAL-COEFFS>"
                               "</COMPU-SCALE></COMPU-SCALES></COMPU-INTERNAL-TO-PHYS>";
    const TemporaryFile file("b.odx-d", BaseVariant(Dictionary(Dop("dop", Coded("A_UINT32", 8), "A_FLOAT64", method))));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "");
    VLinearConversion& conversion = imported.DataType<VLinearDataType>(L"dop").LinearConversion();
    EXPECT_EQ(conversion.GetFactorNumerator(), 1.0);
    EXPECT_EQ(conversion.GetFactorDenominator(), 2u);
    EXPECT_EQ(conversion.GetOffset(), 1.5);
}

TEST(ForeignDataTest, AnOpenLowerLimitAloneHasNoEnd) {
    const auto scale = [](const std::string& lower) {
        return "<SCALE-CONSTR VALIDITY='NOT-VALID'><LOWER-LIMIT" + lower + "</LOWER-LIMIT></SCALE-CONSTR>";
    };
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant(Dictionary(Dop("dop", Coded("A_UINT32", 16), "A_UINT32", "<CATEGORY>IDENTICAL</CATEGORY>",
                                   "<INTERNAL-CONSTR><SCALE-CONSTRS>" + scale(">5") +
                                       scale(" INTERVAL-TYPE='OPEN'>100") + "</SCALE-CONSTRS></INTERNAL-CONSTR>"))));
    Imported imported(file.Path());
    EXPECT_EQ(Ranges(imported.DataType<VIdentityDataType>(L"dop")), L"[101,][5,5]");
}

TEST(ForeignDataTest, TheUnitOfATextTableIsAnAttribute) {
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant(Dictionary(Dop("dop", Coded("A_UINT32", 8), "A_UNICODE2STRING",
                                   "<CATEGORY>TEXTTABLE</CATEGORY><COMPU-INTERNAL-TO-PHYS><COMPU-SCALES><COMPU-SCALE>"
                                   "<LOWER-LIMIT>1</LOWER-LIMIT><COMPU-CONST><VT>12</VT></COMPU-CONST></COMPU-SCALE>"
                                   "</COMPU-SCALES></COMPU-INTERNAL-TO-PHYS>",
                                   "<UNIT-REF ID-REF='v'/>"),
                               "<UNIT-SPEC><UNITS><UNIT ID='v'><SHORT-NAME>Volt</SHORT-NAME><DISPLAY-NAME>V"
                               "</DISPLAY-NAME></UNIT></UNITS></UNIT-SPEC>")));
    Imported imported(file.Path());
    EXPECT_EQ(Attribute(imported.DataType<VTextTableDataType>(L"dop").Attributes(), L"UNIT"), L"V");
}

TEST(ForeignDataTest, LinksAndValuesThatCannotBeUsedAreDroppedInTheAccount) {
    const auto param = [](const std::string& name, const std::string& link) {
        return "<PARAM xsi:type='VALUE'><SHORT-NAME>" + name + "</SHORT-NAME><BYTE-POSITION>" +
               (name == "C" ? "far" : "0") + "</BYTE-POSITION>" + link + "</PARAM>";
    };
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant("<PARENT-REFS><PARENT-REF xsi:type='PROTOCOL-REF' ID-REF='gone'><NOT-INHERITED-DOPS/></PARENT-REF>"
                    "</PARENT-REFS><IMPORT-REFS><IMPORT-REF ID-REF='gone'/></IMPORT-REFS>" +
                    Dictionary(Dop("dop", Coded("A_UINT32", 8), "A_UINT32"),
                               "<STRUCTURES><STRUCTURE ID='st'><SHORT-NAME>St</SHORT-NAME><PARAMS>" +
                                   param("A", "<DOP-REF ID-REF='gone'/>") + param("B", "<DOP-SNREF SHORT-NAME='no'/>") +
                                   param("C", "<DOP-REF ID-REF='dop'/>") + param("D", "<DOP-REF ID-REF='b'/>") +
                                   "</PARAMS></STRUCTURE></STRUCTURES>")));
    Imported imported(file.Path());
    const auto dropped = [&](const char* kind) { return imported.ledger.AllRows().find(kind)->second.counts.dropped; };
    EXPECT_EQ(dropped("PARENT-REF"), 1u);
    EXPECT_EQ(dropped("NOT-INHERITED-DOPS"), 1u);
    EXPECT_EQ(dropped("IMPORT-REF"), 1u);
    EXPECT_EQ(dropped("DOP-REF"), 2u);
    EXPECT_EQ(dropped("DOP-SNREF"), 1u);
    EXPECT_EQ(dropped("BYTE-POSITION"), 1u);
    EXPECT_EQ(dropped("PARAM"), 0u);
    EXPECT_EQ(imported.ledger.Total().dropped, 7u);
    EXPECT_TRUE(imported.ledger.AddsUp());
}
