#include "support/Imports.h"

#include <gtest/gtest.h>

using namespace ImportDame;
using OdxTests::Attribute;
using OdxTests::BaseVariant;
using OdxTests::Imported;
using OdxTests::TemporaryFile;

namespace {

const std::string coded = "<DIAG-CODED-TYPE xsi:type='STANDARD-LENGTH-TYPE' BASE-DATA-TYPE='A_UINT32' CONDENSED='true'>"
                          "<BIT-LENGTH>8</BIT-LENGTH></DIAG-CODED-TYPE>";

std::string Dop(const std::string& method) {
    return "<DIAG-DATA-DICTIONARY-SPEC><DATA-OBJECT-PROPS><DATA-OBJECT-PROP ID='dop'><SHORT-NAME>Dop</SHORT-NAME>"
           "<COMPU-METHOD>" +
           method + "</COMPU-METHOD>" + coded + "</DATA-OBJECT-PROP></DATA-OBJECT-PROPS></DIAG-DATA-DICTIONARY-SPEC>";
}

const std::string linear = "<COMPU-SCALES><COMPU-SCALE><COMPU-RATIONAL-COEFFS><COMPU-NUMERATOR><V>1</V><V>2</V>"
                           "</COMPU-NUMERATOR></COMPU-RATIONAL-COEFFS></COMPU-SCALE></COMPU-SCALES>";

/// Every attribute of the collection, "NAME=value NAME=value".
std::wstring All(VAttributeCollection& attributes) {
    std::wstring text;
    for (VAttribute& attribute : attributes)
        text += (text.empty() ? L"" : L" ") + std::wstring(attribute.GetQualifier()) + L"=" + attribute.GetValue();
    return text;
}

const std::string library = "<LIBRARYS><LIBRARY ID='lib'><SHORT-NAME>L</SHORT-NAME><CODE-FILE>l.jar</CODE-FILE>"
                            "<SYNTAX>JAR</SYNTAX><REVISION>7</REVISION></LIBRARY></LIBRARYS>";
const std::string program = "<PROG-CODE><CODE-FILE>p.jar</CODE-FILE><LIBRARY-REFS><LIBRARY-REF ID-REF='lib'/>"
                            "</LIBRARY-REFS></PROG-CODE>";

/// A service, a job and what they use, all of this name.
std::string LongNames(const std::string& name) {
    const auto named = [&](const std::string& tag, const std::string& id, const std::string& content = "") {
        return "<" + tag + " ID='" + id + "'><SHORT-NAME>" + name + id + "</SHORT-NAME>" + content + "</" + tag + ">";
    };
    return BaseVariant(
        "<FUNCT-CLASSS>" + named("FUNCT-CLASS", "f") + named("FUNCT-CLASS", "g") + "</FUNCT-CLASSS><STATE-CHARTS>" +
        "<STATE-CHART ID='sc'><SHORT-NAME>SC</SHORT-NAME><STATES>" + named("STATE", "st") +
        "</STATES></STATE-CHART></STATE-CHARTS><DIAG-DATA-DICTIONARY-SPEC><DATA-OBJECT-PROPS><DATA-OBJECT-PROP "
        "ID='dop'><SHORT-NAME>Dop</SHORT-NAME><COMPU-METHOD><CATEGORY>IDENTICAL</CATEGORY></COMPU-METHOD>" +
        coded + "<PHYSICAL-TYPE BASE-DATA-TYPE='A_UNICODE2STRING'/><UNIT-REF ID-REF='u'/></DATA-OBJECT-PROP>" +
        named("DATA-OBJECT-PROP", "long", coded) +
        "</DATA-OBJECT-PROPS><STRUCTURES><STRUCTURE ID='str'><SHORT-NAME>Str</SHORT-NAME><PARAMS><PARAM "
        "xsi:type='TABLE-KEY' ID='k'><SHORT-NAME>K</SHORT-NAME><TABLE-ROW-REF ID-REF='row'/></PARAM></PARAMS>"
        "</STRUCTURE></STRUCTURES><TABLES><TABLE ID='t'><SHORT-NAME>T</SHORT-NAME><KEY-DOP-REF ID-REF='dop'/>"
        "<TABLE-ROW ID='row'><SHORT-NAME>Row</SHORT-NAME><KEY>" +
        name +
        "</KEY></TABLE-ROW></TABLE></TABLES><ENV-DATA-DESCS><ENV-DATA-DESC ID='e'><SHORT-NAME>E</SHORT-NAME>"
        "<ENV-DATAS>" +
        named("ENV-DATA", "env", "<DTC-VALUES><DTC-VALUE>1</DTC-VALUE></DTC-VALUES>") +
        "</ENV-DATAS></ENV-DATA-DESC></ENV-DATA-DESCS><UNIT-SPEC><UNITS><UNIT ID='u'><SHORT-NAME>U</SHORT-NAME>"
        "<DISPLAY-NAME>" +
        name +
        "</DISPLAY-NAME></UNIT></UNITS></UNIT-SPEC></DIAG-DATA-DICTIONARY-SPEC><DIAG-COMMS><DIAG-SERVICE ID='s'>"
        "<SHORT-NAME>S</SHORT-NAME><SDGS><SDG SI='" +
        name + "'><SD SI='own'>1</SD></SDG></SDGS><FUNCT-CLASS-REFS><FUNCT-CLASS-REF ID-REF='f'/><FUNCT-CLASS-REF " +
        "ID-REF='g'/></FUNCT-CLASS-REFS><PRE-CONDITION-STATE-REFS><PRE-CONDITION-STATE-REF ID-REF='st'/>"
        "</PRE-CONDITION-STATE-REFS><REQUEST-REF ID-REF='rq'/><POS-RESPONSE-REFS><POS-RESPONSE-REF ID-REF='pr'/>"
        "</POS-RESPONSE-REFS></DIAG-SERVICE><SINGLE-ECU-JOB "
        "ID='j'><SHORT-NAME>J</SHORT-NAME><PROG-CODES><PROG-CODE>"
        "<CODE-FILE>p.jar</CODE-FILE><LIBRARY-REFS><LIBRARY-REF "
        "ID-REF='lib'/></LIBRARY-REFS></PROG-CODE></PROG-CODES>"
        "<INPUT-PARAMS><INPUT-PARAM><SHORT-NAME>P</SHORT-NAME><DOP-BASE-REF ID-REF='long'/></INPUT-PARAM>"
        "</INPUT-PARAMS></SINGLE-ECU-JOB></DIAG-COMMS><REQUESTS>" +
        named("REQUEST", "rq",
              "<PARAMS><PARAM xsi:type='CODED-CONST'><SHORT-NAME>A</SHORT-NAME><CODED-VALUE>34</CODED-VALUE>" + coded +
                  "</PARAM><PARAM xsi:type='CODED-CONST'><SHORT-NAME>B</SHORT-NAME><CODED-VALUE>1"
                  "</CODED-VALUE>" +
                  coded + "</PARAM></PARAMS>") +
        "</REQUESTS><POS-RESPONSES>" + named("POS-RESPONSE", "pr") + "</POS-RESPONSES><LIBRARYS>" +
        named("LIBRARY", "lib", "<DESC>" + name + "</DESC><CODE-FILE>" + name + "</CODE-FILE>") + "</LIBRARYS>");
}

} // namespace

TEST(DetailsTest, TheWayBackOfALinearConversionAndItsDefaultAreAttributes) {
    const TemporaryFile file(
        "b.odx-d", BaseVariant(Dop("<CATEGORY>LINEAR</CATEGORY><COMPU-INTERNAL-TO-PHYS>" + linear +
                                   "<COMPU-DEFAULT-VALUE><V>9</V></COMPU-DEFAULT-VALUE></COMPU-INTERNAL-TO-PHYS>"
                                   "<COMPU-PHYS-TO-INTERNAL><COMPU-DEFAULT-VALUE><V>3</V></COMPU-DEFAULT-VALUE>"
                                   "</COMPU-PHYS-TO-INTERNAL>")));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "");
    EXPECT_EQ(All(imported.DataType<VLinearDataType>(L"Dop").Attributes()),
              L"CONDENSED=true COMPU-DEFAULT-VALUE/V=9 COMPU-PHYS-TO-INTERNAL/COMPU-DEFAULT-VALUE/V=3");
    EXPECT_EQ(imported.ledger.Total().notRepresented, 0U);
}

TEST(DetailsTest, LimitsOfWholeNumbersThatAreNoneAreReported) {
    const auto scale = [](const std::string& lower, const std::string& upper) {
        return "<COMPU-SCALE><LOWER-LIMIT>" + lower + "</LOWER-LIMIT><UPPER-LIMIT>" + upper +
               "</UPPER-LIMIT><COMPU-CONST><VT>t</VT></COMPU-CONST></COMPU-SCALE>";
    };
    const TemporaryFile file(
        "b.odx-d", BaseVariant(Dop("<CATEGORY>TEXTTABLE</CATEGORY><COMPU-INTERNAL-TO-PHYS><COMPU-SCALES>" +
                                   scale("0x10", "17.0") + scale("0.5", "none") + scale("5", "18446744073709551616") +
                                   "</COMPU-SCALES></COMPU-INTERNAL-TO-PHYS>")));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0502 ODX0501 ODX0503");
    std::wstring rows;
    for (VTextTableRow& row : imported.DataType<VTextTableDataType>(L"Dop").TextTableRowCollection())
        rows += OdxTests::Describe(row.GetRange());
    EXPECT_EQ(rows, L"[16,17][5,18446744073709551616]");
}

TEST(DetailsTest, TheInverseOfATextTablesDefaultIsAnAttribute) {
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant(Dop("<CATEGORY>TEXTTABLE</CATEGORY><COMPU-INTERNAL-TO-PHYS><COMPU-SCALES><COMPU-SCALE><LOWER-LIMIT>"
                        "0</LOWER-LIMIT><COMPU-CONST><VT>off</VT></COMPU-CONST></COMPU-SCALE></COMPU-SCALES>"
                        "<COMPU-DEFAULT-VALUE><VT>on</VT><COMPU-INVERSE-VALUE><V>5</V></COMPU-INVERSE-VALUE>"
                        "</COMPU-DEFAULT-VALUE></COMPU-INTERNAL-TO-PHYS>")));
    Imported imported(file.Path());
    VTextTableDataType& table = imported.DataType<VTextTableDataType>(L"Dop");
    EXPECT_STREQ(table.TextTableRowCollection().DefaultValue().GetText(), L"on");
    EXPECT_EQ(All(table.Attributes()), L"CONDENSED=true COMPU-INVERSE-VALUE/V=5");
    EXPECT_EQ(imported.ledger.Total().notRepresented, 0U);
}

TEST(DetailsTest, ALibraryIsKeptWithAllThatItSays) {
    const TemporaryFile file("b.odx-d", BaseVariant(Dop("<CATEGORY>COMPUCODE</CATEGORY><COMPU-INTERNAL-TO-PHYS>" +
                                                        program + "</COMPU-INTERNAL-TO-PHYS>") +
                                                    library));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "");
    VAttributeCollection& attributes = imported.DataType<VProcedureDataType>(L"Dop").Attributes();
    EXPECT_EQ(Attribute(attributes, L"LIBRARY"), L"L");
    EXPECT_EQ(All(attributes.Find(L"LIBRARY")->Attributes()), L"CODE-FILE=l.jar SYNTAX=JAR REVISION=7");
    EXPECT_EQ(imported.ledger.Total().notRepresented, 0U);
}

TEST(DetailsTest, AJobKeepsItsParametersLibrariesAudienceAndStates) {
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant(
            "<ADDITIONAL-AUDIENCES><ADDITIONAL-AUDIENCE ID='aa'><SHORT-NAME>Workshop</SHORT-NAME></ADDITIONAL-AUDIENCE>"
            "</ADDITIONAL-AUDIENCES><STATE-CHARTS><STATE-CHART ID='sc'><SHORT-NAME>SC</SHORT-NAME><STATES><STATE "
            "ID='s1'><SHORT-NAME>Open</SHORT-NAME></STATE></STATES></STATE-CHART></STATE-CHARTS>" +
            Dop("<CATEGORY>IDENTICAL</CATEGORY>") +
            "<DIAG-COMMS><SINGLE-ECU-JOB ID='j'><SHORT-NAME>Job</SHORT-NAME><AUDIENCE IS-SUPPLIER='true' "
            "IS-AFTERSALES='false'><ENABLED-AUDIENCE-REFS><ENABLED-AUDIENCE-REF ID-REF='aa'/></ENABLED-AUDIENCE-REFS>"
            "</AUDIENCE><PRE-CONDITION-STATE-REFS><PRE-CONDITION-STATE-REF ID-REF='s1'><VALUE>1</VALUE>"
            "</PRE-CONDITION-STATE-REF></PRE-CONDITION-STATE-REFS><PROG-CODES>" +
            program +
            "</PROG-CODES><INPUT-PARAMS><INPUT-PARAM SEMANTIC='DATA'><SHORT-NAME>Kind</SHORT-NAME><LONG-NAME>Kind of "
            "reset</LONG-NAME><PHYSICAL-DEFAULT-VALUE>soft</PHYSICAL-DEFAULT-VALUE><DOP-BASE-REF ID-REF='dop'/>"
            "</INPUT-PARAM></INPUT-PARAMS><OUTPUT-PARAMS><OUTPUT-PARAM ID='op'><SHORT-NAME>Result</SHORT-NAME>"
            "<DOP-BASE-REF ID-REF='dop'/></OUTPUT-PARAM></OUTPUT-PARAMS></SINGLE-ECU-JOB></DIAG-COMMS>" +
            library));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "");
    VDiagComm& job = *imported.document.GetBaseVariant().DiagCommCollection().Begin();
    EXPECT_EQ(All(job.Attributes()),
              L"AUDIENCE/IS-SUPPLIER=true AUDIENCE/IS-AFTERSALES=false AUDIENCE/ENABLED-AUDIENCE=Workshop "
              L"PRE-CONDITION-STATE=Open LIBRARY=L PROG-CODES/PROG-CODE/CODE-FILE=p.jar "
              L"PROG-CODES/PROG-CODE/LIBRARY-REFS/LIBRARY-REF=lib INPUT-PARAM=Kind OUTPUT-PARAM=Result");
    VAttribute& input = *job.Attributes().Find(L"INPUT-PARAM");
    EXPECT_STREQ(input.GetName(), L"Kind of reset");
    EXPECT_EQ(All(input.Attributes()), L"SEMANTIC=DATA DOP-BASE=Dop PHYSICAL-DEFAULT-VALUE=soft");
}

TEST(DetailsTest, NamesOfNoHonestLengthAreShortenedWhereOtherObjectsMentionThem) {
    const std::string name(100000, 'n');
    const TemporaryFile file("b.odx-d", LongNames(name));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "");
    const std::wstring shortened = std::wstring(512, L'n') + L"\u2026";
    auto& comms = imported.document.GetBaseVariant().DiagCommCollection();
    auto& service = dynamic_cast<VDiagService&>(*comms.Begin());
    EXPECT_EQ(service.GetFunctClass(), shortened);
    for (const wchar_t* each : {L"REQUEST", L"FUNCT-CLASS", L"PRE-CONDITION-STATE", L"POS-RESPONSE"})
        EXPECT_EQ(Attribute(service.Attributes(), each), shortened);
    EXPECT_EQ(Attribute(service.Attributes(), (shortened + L"/own").c_str()), L"1");
    EXPECT_EQ(service.DiagServiceShapeCollection().Begin()->GetQualifier(), shortened);
    VDiagComm& job = *++comms.Begin();
    VAttribute& used = *job.Attributes().Find(L"LIBRARY");
    EXPECT_EQ(used.GetValue(), shortened);
    EXPECT_EQ(Attribute(used.Attributes(), L"CODE-FILE"), shortened);
    EXPECT_EQ(used.GetDescription(), std::wstring(4096, L'n') + L"\u2026");
    EXPECT_EQ(Attribute(job.Attributes().Find(L"INPUT-PARAM")->Attributes(), L"DOP-BASE"), shortened);
    EXPECT_EQ(imported.DataType<VIdentityDataType>(L"Dop").PhysicalDisplayProperties().GetUnit(), shortened);
    VInterchangeable& key = *imported.DataType<VPacketDataType>(L"Str").InterchangeableCollection().Begin();
    EXPECT_EQ(dynamic_cast<VDataObject&>(key).GetConstValue().Get(), std::wstring(name.begin(), name.end())); // a value
    for (VCase& made : imported.DataType<VMuxDataType>(L"E").GetCaseCollection())
        EXPECT_EQ(made.GetQualifier(), shortened);
    const std::wstring whole(name.begin(), name.end());
    EXPECT_NO_THROW(imported.DataType<VPacketDataType>((whole + L"rq").c_str())); // the object itself has all of it
}

TEST(DetailsTest, AJobParameterNeedsADataObject) {
    const TemporaryFile file("b.odx-d",
                             BaseVariant("<DIAG-COMMS><SINGLE-ECU-JOB ID='j'><SHORT-NAME>Job</SHORT-NAME><INPUT-PARAMS>"
                                         "<INPUT-PARAM><SHORT-NAME>P</SHORT-NAME><DOP-BASE-REF ID-REF='j'/>"
                                         "</INPUT-PARAM></INPUT-PARAMS></SINGLE-ECU-JOB></DIAG-COMMS>"));
    EXPECT_EQ(Imported(file.Path()).Codes(), "ODX0307");
}

TEST(DetailsTest, VariantsOfNoHonestLengthAreShortenedWhereOtherObjectsMentionThem) {
    const std::string base(100000, 'b'), variant(100000, 'v');
    const std::string dop = "<DIAG-DATA-DICTIONARY-SPEC><DATA-OBJECT-PROPS><DATA-OBJECT-PROP ID='";
    const std::string temperature = "'><SHORT-NAME>T</SHORT-NAME><COMPU-METHOD><CATEGORY>IDENTICAL</CATEGORY>"
                                    "</COMPU-METHOD>" +
                                    coded + "</DATA-OBJECT-PROP></DATA-OBJECT-PROPS>";
    const TemporaryFile file(
        "b.odx-d",
        "<ODX MODEL-VERSION='2.2.0' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'><DIAG-LAYER-CONTAINER "
        "ID='c'><SHORT-NAME>C</SHORT-NAME><BASE-VARIANTS><BASE-VARIANT ID='b'><SHORT-NAME>" +
            base + "</SHORT-NAME>" + dop + "t" + temperature +
            "<STRUCTURES><STRUCTURE ID='s'><SHORT-NAME>S</SHORT-NAME><PARAMS><PARAM xsi:type='VALUE'><SHORT-NAME>P"
            "</SHORT-NAME><DOP-SNREF SHORT-NAME='T'/></PARAM></PARAMS></STRUCTURE></STRUCTURES>"
            "</DIAG-DATA-DICTIONARY-SPEC></BASE-VARIANT></BASE-VARIANTS><ECU-VARIANTS><ECU-VARIANT "
            "ID='v'><SHORT-NAME>" +
            variant + "</SHORT-NAME>" + dop + "tv" + temperature +
            "</DIAG-DATA-DICTIONARY-SPEC><PARENT-REFS><PARENT-REF ID-REF='b'/></PARENT-REFS></ECU-VARIANT>"
            "</ECU-VARIANTS></DIAG-LAYER-CONTAINER></ODX>");
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "");
    VEcuVariant& made = *imported.document.GetBaseVariant().GetEcuVariantCollection().Begin();
    EXPECT_EQ(made.GetReferenceFromVariantQualifier(), std::wstring(512, L'b') + L"\u2026");
    EXPECT_EQ(made.GetTargetVariantQualifier(), std::wstring(variant.begin(), variant.end()));
    std::size_t repeated = 0;
    for (VDataType& type : imported.document.DataTypeCollection())
        if (type.Attributes().Find(L"ECU-VARIANT") != type.Attributes().End()) {
            EXPECT_EQ(Attribute(type.Attributes(), L"ECU-VARIANT"), std::wstring(512, L'v') + L"\u2026");
            ++repeated;
        }
    EXPECT_EQ(repeated, 1U) << "the structure, whose T is another one there";
}
