#include "sqlite/Database.h"

#include <ImportDame/ImportDame.h>

namespace SqliteBackendTests {

namespace {

using namespace ImportDame;

class TroubleCodeRowsTest : public WrittenDocument {
protected:
    VImportDoc m_document;
};

} // namespace

TEST_F(TroubleCodeRowsTest, ACollectionHasItsSettingsAndItsServiceMapping) {
    VTroubleCodeCollection& collection = m_document.TroubleCodeCollectionCollection().AppendNew();
    collection.SetSourceName(L"Engine");
    collection.SetObjectIdentifier(L"_3");
    collection.SetMaxBitLength(24);
    collection.SetFormatIdentifier(VTroubleCodeCollection::iso14229Format);
    collection.ServiceMapping() = VServiceMapping(L"V", L"C", L"I", L"S", L"P", -8);
    collection.ServiceMapping().SetDtcPoolType(VServiceMapping::mirrorMemory);
    m_document.TroubleCodeCollectionCollection().AppendNew();
    Write(m_document);
    EXPECT_EQ(Query("SELECT * FROM trouble_code_collection"),
              (Rows{"1|Engine|_3|24|1|V|C|I|S|P|-8|1", "2||NULL|NULL|NULL||||||0|NULL"}));
}

TEST_F(TroubleCodeRowsTest, ARecordTemplateHasItsItemsInOrder) {
    VTroubleCodeCollection& collection = m_document.TroubleCodeCollectionCollection().AppendNew();
    VItemMapping mapping(true);
    mapping.SetContent(L"Level");
    mapping.SetIndex(7);
    mapping.SetItemMappingType(VItemMapping::snapshotDataMapping);
    collection.RecordTemplateMapping().Append(mapping);
    VItemMapping plain;
    collection.RecordTemplateMapping().Append(plain);
    Write(m_document);
    EXPECT_EQ(Query("SELECT * FROM record_template_item"), (Rows{"1|0|Level|2|7|1", "1|1||0|0|0"}));
}

TEST_F(TroubleCodeRowsTest, ATroubleCodeHasItsRecord) {
    VTroubleCodeCollection& collection = m_document.TroubleCodeCollectionCollection().AppendNew();
    VTroubleCode& code = collection.AppendNew();
    code.SetCode(0xFFFFFFFFU);
    code.SetErrorText(L"Short circuit");
    code.ErrorText().SetTextId(L"T5");
    code.SetObjectIdentifier(L"_9");
    code.AppendItem(L"P0001");
    code.InsertEnumRecordItem(1, L"low", 0);
    code.Item(1).SetTextId(L"T6");
    collection.AppendNew().IsImported(false);
    Write(m_document);
    EXPECT_EQ(Query("SELECT * FROM trouble_code"),
              (Rows{"1|1|0|4294967295|Short circuit|T5|_9|1", "2|1|1|0||NULL|NULL|0"}));
    EXPECT_EQ(Query("SELECT * FROM record_item"), (Rows{"1|0|P0001|NULL|NULL", "1|1|low|T6|0"}));
}

TEST_F(TroubleCodeRowsTest, PositionsCountWithinTheirCollection) {
    VTroubleCodeCollectionCollection& collections = m_document.TroubleCodeCollectionCollection();
    collections.AppendNew().AppendNew();
    VTroubleCodeCollection& second = collections.AppendNew();
    second.AppendNew();
    second.AppendNew();
    Write(m_document);
    EXPECT_EQ(Query("SELECT id, trouble_code_collection_id, position FROM trouble_code"),
              (Rows{"1|1|0", "2|2|0", "3|2|1"}));
}

TEST_F(TroubleCodeRowsTest, AttributesOfTroubleCodesAndOfAttributesHaveTheirOwner) {
    VTroubleCode& code = m_document.TroubleCodeCollectionCollection().AppendNew().AppendNew();
    VAttribute& first = code.Attributes().AddNewAttribute();
    first.SetQualifier(L"SI");
    first.SetName(L"caption");
    first.SetValue(L"one");
    first.Attributes().AddNewAttribute().SetValue(L"nested");
    code.Attributes().AddNewAttribute().SetValue(L"two");
    Write(m_document);
    EXPECT_EQ(Query("SELECT id, trouble_code_id, attribute_id, position, qualifier, name, value FROM attribute"),
              (Rows{"1|1|NULL|0|SI|caption|one", "2|NULL|1|0|||nested", "3|1|NULL|1|||two"}));
}

TEST_F(TroubleCodeRowsTest, AttributesMayNestDeeply) {
    VAttributeCollection* attributes = &m_document.UnitCollection().AddNewUnit().Attributes();
    for (int level = 0; level < 2000; ++level)
        attributes = &attributes->AddNewAttribute().Attributes();
    EXPECT_EQ(Write(m_document).RowsOf("attribute"), 2000U);
    EXPECT_EQ(Query("SELECT count(unit_id), count(attribute_id) FROM attribute"), Rows{"1|1999"});
}

} // namespace SqliteBackendTests
