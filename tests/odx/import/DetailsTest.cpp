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
                                   scale("0x10", "17.0") + scale("0.5", "none") + scale("", "18446744073709551616") +
                                   "</COMPU-SCALES></COMPU-INTERNAL-TO-PHYS>")));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0502 ODX0501 ODX0503 ODX0503");
    std::wstring rows;
    for (VTextTableRow& row : imported.DataType<VTextTableDataType>(L"Dop").TextTableRowCollection())
        rows += OdxTests::Describe(row.GetRange());
    EXPECT_EQ(rows, L"[16,17.0][0.5,][,18446744073709551616]");
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

TEST(DetailsTest, AJobParameterNeedsADataObject) {
    const TemporaryFile file("b.odx-d",
                             BaseVariant("<DIAG-COMMS><SINGLE-ECU-JOB ID='j'><SHORT-NAME>Job</SHORT-NAME><INPUT-PARAMS>"
                                         "<INPUT-PARAM><SHORT-NAME>P</SHORT-NAME><DOP-BASE-REF ID-REF='j'/>"
                                         "</INPUT-PARAM></INPUT-PARAMS></SINGLE-ECU-JOB></DIAG-COMMS>"));
    EXPECT_EQ(Imported(file.Path()).Codes(), "ODX0307");
}
