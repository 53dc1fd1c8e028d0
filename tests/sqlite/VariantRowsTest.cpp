#include "sqlite/Database.h"

#include <ImportDame/ImportDame.h>

namespace SqliteBackendTests {

namespace {

using namespace ImportDame;

class VariantRowsTest : public WrittenDocument {
protected:
    VImportDoc m_document;
    VBaseVariant& m_base = m_document.GetBaseVariant();
};

} // namespace

TEST_F(VariantRowsTest, AnEmptyDocumentHasItsTextsAndItsBaseVariant) {
    m_document.SetEcuName(L"ECM");
    m_document.SetLanguage(L"en");
    m_document.SetKDIVersion(L"2.2.0");
    Write(m_document);
    EXPECT_EQ(Query("SELECT * FROM document"), Rows{"1|ECM|en|2.2.0"});
    EXPECT_EQ(Query("SELECT * FROM variant"), Rows{"1|base variant|||NULL||NULL|NULL||0|||0|0"});
}

TEST_F(VariantRowsTest, EveryFieldOfAVariantIsStored) {
    VEcuVariant& variant = m_base.GetEcuVariantCollection().AddNewEcuVariant();
    variant.SetQualifier(L"EV1");
    variant.SetTargetVariantQualifier(L"Target");
    variant.SetReferenceFromVariantQualifier(L"Reference");
    variant.SetVariantIsLockedInTarget(true);
    Write(m_document);
    EXPECT_EQ(Query("SELECT * FROM variant WHERE id = 2"),
              Rows{"2|ECU variant|EV1||NULL||NULL|NULL||1|Target|Reference|1|1"});
}

TEST_F(VariantRowsTest, ServicesJobsAndShapesFollowTheirOrder) {
    VDiagService& service = m_base.DiagCommCollection().AddNewDiagService(0x22);
    service.SetQualifier(L"Read");
    service.SetSemantic(L"IDENTIFICATION");
    service.SetFunctClass(L"Ident");
    VDiagServiceShape& shape = service.DiagServiceShapeCollection().AddNewDiagServiceShape();
    shape.SetQualifier(L"Read_VIN");
    shape.SetSubValue(0xF190);
    service.DiagServiceShapeCollection().AddNewDiagServiceShape().SetQualifier(L"Read_SN");
    m_base.DiagCommCollection().AddNewDiagJob().SetQualifier(L"Job");
    m_base.GetEcuVariantCollection().AddNewEcuVariant().DiagCommCollection().AddNewDiagService();
    Write(m_document);
    EXPECT_EQ(
        Query("SELECT id, variant_id, position, kind, qualifier, service_id, semantic, functional_class "
              "FROM diag_comm"),
        (Rows{"1|1|0|service|Read|34|IDENTIFICATION|Ident", "2|1|1|job|Job|NULL|NULL|NULL", "3|2|0|service||0||"}));
    EXPECT_EQ(Query("SELECT id, diag_comm_id, position, qualifier, sub_value FROM service_shape"),
              (Rows{"1|1|0|Read_VIN|61840", "2|1|1|Read_SN|0"}));
}

TEST_F(VariantRowsTest, UnitsAreStored) {
    VUnit& unit = m_document.UnitCollection().AddNewUnit();
    unit.SetQualifier(L"kmh");
    unit.SetDisplayName(L"km/h");
    Write(m_document);
    EXPECT_EQ(Query("SELECT id, qualifier, display_name FROM unit"), Rows{"1|kmh|km/h"});
}

TEST_F(VariantRowsTest, AttributesOfEveryOwnerAreStoredWithIt) {
    VPacketDataType& packet = m_document.DataTypeCollection().AddNewPacketDataType();
    VMuxDataType& mux = m_document.DataTypeCollection().AddNewMuxDataType();
    VDiagService& service = m_base.DiagCommCollection().AddNewDiagService();
    packet.Attributes().AddNewAttribute().SetValue(L"data type");
    packet.InterchangeableCollection().AddNewGapObject().Attributes().AddNewAttribute().SetValue(L"gap");
    mux.GetCaseCollection().AddNewCase().Attributes().AddNewAttribute().SetValue(L"case");
    m_document.UnitCollection().AddNewUnit().Attributes().AddNewAttribute().SetValue(L"unit");
    m_base.Attributes().AddNewAttribute().SetValue(L"variant");
    service.Attributes().AddNewAttribute().SetValue(L"service");
    m_base.DiagCommCollection().AddNewDiagJob().Attributes().AddNewAttribute().SetValue(L"job");
    service.DiagServiceShapeCollection().AddNewDiagServiceShape().Attributes().AddNewAttribute().SetValue(L"shape");
    Write(m_document);
    EXPECT_EQ(Query("SELECT value, data_type_id, interchangeable_id, mux_case_id, unit_id, variant_id, diag_comm_id, "
                    "service_shape_id FROM attribute ORDER BY value"),
              (Rows{"case|NULL|NULL|1|NULL|NULL|NULL|NULL", "data type|1|NULL|NULL|NULL|NULL|NULL|NULL",
                    "gap|NULL|1|NULL|NULL|NULL|NULL|NULL", "job|NULL|NULL|NULL|NULL|NULL|2|NULL",
                    "service|NULL|NULL|NULL|NULL|NULL|1|NULL", "shape|NULL|NULL|NULL|NULL|NULL|NULL|1",
                    "unit|NULL|NULL|NULL|1|NULL|NULL|NULL", "variant|NULL|NULL|NULL|NULL|1|NULL|NULL"}));
}

TEST_F(VariantRowsTest, CountsEqualTheModels) {
    for (int number = 0; number < 7; ++number) {
        m_base.DiagCommCollection().AddNewDiagService();
        m_document.DataTypeCollection().AddNewLinearDataType();
        m_document.UnitCollection().AddNewUnit();
        m_document.TroubleCodeCollectionCollection().AppendNew().AppendNew().AppendItem(L"x");
    }
    const SqliteBackend::WriteResult& result = Write(m_document);
    EXPECT_EQ(result.RowsOf("diag_comm"), m_base.DiagCommCollection().Count());
    EXPECT_EQ(result.RowsOf("data_type"), m_document.DataTypeCollection().Count());
    EXPECT_EQ(result.RowsOf("unit"), m_document.UnitCollection().Count());
    EXPECT_EQ(result.RowsOf("trouble_code"), m_document.TroubleCodeCollectionCollection().TroubleCodesCount());
    for (const auto& [table, rows] : result.rows)
        EXPECT_EQ(Query("SELECT count(*) FROM " + table), Rows{std::to_string(rows)}) << table;
}

} // namespace SqliteBackendTests
