// The documents that tools/odxload writes: whole, of the size that was asked for, and with everything in them.

#include "LoadTemplate.h"
#include "support/Imports.h"

#include <ImportDame/ImportDame.h>

#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <typeindex>

using namespace OdxTests;
using OdxLoad::Encoding;
using OdxLoad::LoadTemplate;

namespace {

constexpr std::array<const char*, 9> templates{
    "ecu-variants", "environment-data", "inherited",       "mixed",        "nested-groups",
    "services",     "short-name-links", "structure-chain", "trouble-codes"};

constexpr std::array encodings{Encoding::Utf8, Encoding::Latin1, Encoding::Utf16Le, Encoding::Utf16Be};

std::string ReadTemplate(const std::string& name) {
    std::ifstream in(ODX_LOAD_TEMPLATES_DIR "/" + name + ".xml", std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::string Written(const LoadTemplate& load, std::uint64_t repetitions) {
    std::ostringstream out;
    load.Write(out, repetitions);
    return out.str();
}

std::string Written(const std::string& name, std::uint64_t repetitions, Encoding encoding = Encoding::Utf8) {
    return Written(LoadTemplate(ReadTemplate(name), encoding), repetitions);
}

/// What the import of so many repetitions reports, and how many elements were dropped.
std::string Problems(const std::string& name, std::uint64_t repetitions, Encoding encoding = Encoding::Utf8) {
    const TemporaryFile file("load.odx-d", Written(name, repetitions, encoding));
    Imported imported(file.Path());
    if (imported.result.status != OdxImport::ImportStatus::Completed)
        return "not imported";
    if (!imported.ledger.AddsUp())
        return "the ledger does not add up";
    if (imported.ledger.Total().dropped != 0)
        return "elements were dropped";
    return imported.Codes();
}

std::map<std::type_index, int> KindsOf(ImportDame::VDataTypeCollection& types) {
    std::map<std::type_index, int> kinds;
    for (ImportDame::VDataType& type : types)
        ++kinds[typeid(type)];
    return kinds;
}

} // namespace

TEST(LoadTest, PartsAreRepeatedWithTheirNumbers) {
    const LoadTemplate load("<a>\n<?repeat?>\n<b n=\"@\" before=\"@-\"/>\n<?end?>\n</a>\n", Encoding::Utf8);
    EXPECT_EQ(Written(load, 2),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a>\n<b n=\"0000001\" before=\"0000000\"/>\n"
              "<b n=\"0000002\" before=\"0000001\"/>\n</a>\n");
}

TEST(LoadTest, APartWithoutEndIsRefused) {
    EXPECT_THROW(LoadTemplate("<a>\n<?repeat?>\n<b/>\n</a>\n", Encoding::Utf8), std::invalid_argument);
}

TEST(LoadTest, CharactersThatAnEncodingLacksBecomeReferences) {
    EXPECT_EQ(OdxLoad::Encode("K\xC3\xBChl \xF0\x9F\x9A\x97", Encoding::Latin1), "K\xFChl &#128663;");
    EXPECT_EQ(OdxLoad::Encode("\xC3\xBC\xF0\x9F\x9A\x97", Encoding::Utf16Be), std::string("\0\xFC\xD8\x3D\xDE\x97", 6));
    EXPECT_EQ(OdxLoad::Encode("\xC3\xBC\xF0\x9F\x9A\x97", Encoding::Utf16Le), std::string("\xFC\0\x3D\xD8\x97\xDE", 6));
}

TEST(LoadTest, ADocumentHasTheSizeThatIsForetold) {
    for (const Encoding encoding : encodings) {
        const LoadTemplate load(ReadTemplate("mixed"), encoding);
        EXPECT_EQ(Written(load, 3).size(), load.SizeOf(3));
        const std::uint64_t repetitions = load.RepetitionsFor(1000000);
        EXPECT_NEAR(static_cast<double>(load.SizeOf(repetitions)), 1e6, 6e4);
    }
}

TEST(LoadTest, EveryTemplateIsImportedWithoutAProblem) {
    for (const char* name : templates)
        EXPECT_EQ(Problems(name, 3), "") << name;
}

TEST(LoadTest, EveryEncodingIsImportedWithoutAProblem) {
    for (const Encoding encoding : encodings)
        EXPECT_EQ(Problems("mixed", 3, encoding), "") << OdxLoad::DeclaredName(encoding);
}

TEST(LoadTest, EveryEncodingGivesTheSameTexts) {
    for (const Encoding encoding : encodings) {
        const TemporaryFile file("load.odx-d", Written("mixed", 1, encoding));
        Imported imported(file.Path());
        auto& type = imported.DataType<ImportDame::VLinearDataType>(L"Temperature_0000001");
        EXPECT_STREQ(type.Description().GetText(),
                     L"Measured at the outlet of device 0000001.\nK\u00FChlmittel \U0001F697");
        EXPECT_STREQ((*imported.document.UnitCollection().Begin()).Name().GetText(), L"unit of device 0000001");
    }
}

TEST(LoadTest, EveryKindOfObjectIsInTheMixedDocument) {
    using namespace ImportDame;
    const TemporaryFile file("load.odx-d", Written("mixed", 5));
    Imported imported(file.Path());
    auto kinds = KindsOf(imported.document.DataTypeCollection());
    EXPECT_EQ(kinds.size(), 13u);
    for (const std::type_index kind :
         {std::type_index(typeid(VLinearDataType)), std::type_index(typeid(VPiecewiseLinearDataType)),
          std::type_index(typeid(VValueTableDataType)), std::type_index(typeid(VProcedureDataType)),
          std::type_index(typeid(VStaticIterDataType)), std::type_index(typeid(VNumeratorIterDataType)),
          std::type_index(typeid(VEndMarkerIterDataType)), std::type_index(typeid(VEndOfServiceIterDataType))})
        EXPECT_EQ(kinds[kind], 5) << kind.name();
    EXPECT_EQ(kinds[typeid(VFormulaDataType)], 10);
    EXPECT_EQ(kinds[typeid(VTextTableDataType)], 11);
    EXPECT_EQ(kinds[typeid(VMuxDataType)], 15); // MUX, TABLE, ENV-DATA-DESC
    EXPECT_EQ(imported.document.TroubleCodeCollectionCollection().TroubleCodesCount(), 23u);
    EXPECT_EQ(imported.document.UnitCollection().Count(), 5u);
    VBaseVariant& base = imported.document.GetBaseVariant();
    EXPECT_EQ(base.DiagCommCollection().Count(), 25u);
    EXPECT_EQ(base.GetEcuVariantCollection().Count(), 1u);
}

TEST(LoadTest, EveryElementThatIsMappedIsInTheMixedDocument) {
    const TemporaryFile file("load.odx-d", Written("mixed", 1));
    Imported imported(file.Path());
    for (const char* tag : {"PROTOCOL",
                            "FUNCTIONAL-GROUP",
                            "ECU-SHARED-DATA",
                            "BASE-VARIANT",
                            "ECU-VARIANT",
                            "DTC-DOP",
                            "DTC",
                            "LINKED-DTC-DOP",
                            "ENV-DATA-DESC",
                            "ENV-DATA",
                            "DATA-OBJECT-PROP",
                            "COMPU-METHOD",
                            "INTERNAL-CONSTR",
                            "SCALE-CONSTR",
                            "STRUCTURE",
                            "STATIC-FIELD",
                            "DYNAMIC-LENGTH-FIELD",
                            "DYNAMIC-ENDMARKER-FIELD",
                            "END-OF-PDU-FIELD",
                            "MUX",
                            "CASE",
                            "DEFAULT-CASE",
                            "UNIT",
                            "TABLE",
                            "TABLE-ROW",
                            "DIAG-SERVICE",
                            "SINGLE-ECU-JOB",
                            "REQUEST",
                            "POS-RESPONSE",
                            "NEG-RESPONSE",
                            "GLOBAL-NEG-RESPONSE",
                            "PARAM",
                            "SDG",
                            "SD",
                            "ADMIN-DATA",
                            "LONG-NAME",
                            "DESC",
                            "FUNCT-CLASS",
                            "LIBRARY",
                            "PARENT-REF"}) {
        const auto row = imported.ledger.AllRows().find(tag);
        ASSERT_NE(row, imported.ledger.AllRows().end()) << tag;
        EXPECT_NE(row->second.counts.imported, 0u) << tag;
    }
}
