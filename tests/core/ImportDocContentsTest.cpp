#include <ImportDame/Attribute.h>
#include <ImportDame/AttributeCollection.h>
#include <ImportDame/BaseVariant.h>
#include <ImportDame/DataTypeCollection.h>
#include <ImportDame/EcuVariant.h>
#include <ImportDame/EcuVariantCollection.h>
#include <ImportDame/EndMarkerIterDataType.h>
#include <ImportDame/EndOfServiceIterDataType.h>
#include <ImportDame/FormulaDataType.h>
#include <ImportDame/IdentityDataType.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/InterchangeableCollection.h>
#include <ImportDame/LinearDataType.h>
#include <ImportDame/MuxDataType.h>
#include <ImportDame/NumeratorIterDataType.h>
#include <ImportDame/PacketDataType.h>
#include <ImportDame/PiecewiseLinearDataType.h>
#include <ImportDame/ProcedureDataType.h>
#include <ImportDame/StaticIterDataType.h>
#include <ImportDame/TextTableDataType.h>
#include <ImportDame/TroubleCode.h>
#include <ImportDame/TroubleCodeCollection.h>
#include <ImportDame/TroubleCodeCollectionCollection.h>
#include <ImportDame/Unit.h>
#include <ImportDame/UnitCollection.h>
#include <ImportDame/ValueTableDataType.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <typeinfo>
#include <vector>

using namespace ImportDame;

namespace {

using Deaths = std::vector<std::string>;

/// Notes what it sees of the document when it dies.
class DyingDataType : public VLinearDataType {
public:
    DyingDataType(VDataTypeCollection& collection, Deaths& deaths) : VLinearDataType(collection), m_deaths(deaths) {}

    ~DyingDataType() override {
        VImportDoc& document = ImportDoc();
        m_deaths.push_back("data type, " + std::to_string(document.DataTypeCollection().Count()) + " left, " +
                           std::to_string(document.TroubleCodeCollectionCollection().Count()) +
                           " trouble code collections, " + (document.IsConstructed() ? "alive" : "not alive"));
    }

private:
    Deaths& m_deaths;
};

class DyingTroubleCodeCollection : public VTroubleCodeCollection {
public:
    DyingTroubleCodeCollection(VImportDoc& document, Deaths& deaths)
        : VTroubleCodeCollection(document), m_deaths(deaths) {}

    ~DyingTroubleCodeCollection() override {
        VImportDoc& document = ImportDoc();
        m_deaths.push_back("trouble code collection, " +
                           std::to_string(document.TroubleCodeCollectionCollection().Count()) + " left, " +
                           std::to_string(document.UnitCollection().Count()) + " units");
    }

private:
    Deaths& m_deaths;
};

TEST(VImportDocContentsTest, AreEmptyAtFirstAndBelongToTheDocument) {
    VImportDoc document;
    EXPECT_TRUE(document.DataTypeCollection().IsEmpty());
    EXPECT_TRUE(document.TroubleCodeCollectionCollection().IsEmpty());
    EXPECT_TRUE(document.InterchangeableCollection().IsEmpty());
    EXPECT_TRUE(document.UnitCollection().IsEmpty());
    EXPECT_TRUE(document.GetBaseVariant().GetEcuVariantCollection().IsEmpty());
    EXPECT_TRUE(document.GetBaseVariant().DiagCommCollection().IsEmpty());
    EXPECT_EQ(&document.DataTypeCollection().ImportDoc(), &document);
    EXPECT_EQ(&document.TroubleCodeCollectionCollection().ImportDoc(), &document);
    EXPECT_EQ(&document.InterchangeableCollection().ImportDoc(), &document);
    EXPECT_EQ(&document.GetBaseVariant().ImportDoc(), &document);
    EXPECT_EQ(&document.GetBaseVariant().GetEcuVariantCollection().ImportDoc(), &document);
    EXPECT_EQ(&document.UnitCollection().AddNewUnit().ImportDoc(), &document);
}

TEST(VImportDocContentsTest, AreTheSameObjectsAtEveryCallAndOthersInEveryDocument) {
    VImportDoc document;
    VImportDoc other;
    EXPECT_EQ(&document.DataTypeCollection(), &document.DataTypeCollection());
    EXPECT_NE(&document.DataTypeCollection(), &other.DataTypeCollection());
    EXPECT_EQ(&document.TroubleCodeCollectionCollection(), &document.TroubleCodeCollectionCollection());
    EXPECT_NE(&document.TroubleCodeCollectionCollection(), &other.TroubleCodeCollectionCollection());
    EXPECT_EQ(&document.InterchangeableCollection(), &document.InterchangeableCollection());
    EXPECT_NE(&document.InterchangeableCollection(), &other.InterchangeableCollection());
    EXPECT_EQ(&document.GetBaseVariant(), &document.GetBaseVariant());
    EXPECT_NE(&document.GetBaseVariant(), &other.GetBaseVariant());
    EXPECT_EQ(&document.UnitCollection(), &document.UnitCollection());
    EXPECT_NE(&document.UnitCollection(), &other.UnitCollection());
}

TEST(VImportDocContentsTest, DieInOrderDataTypesFirstAfterTheDocumentLeftTheLivingOnes) {
    Deaths deaths;
    {
        VImportDoc document;
        for (int i = 0; i < 2; ++i) {
            auto codes = std::make_unique<DyingTroubleCodeCollection>(document, deaths);
            document.TroubleCodeCollectionCollection().Append(*codes);
            codes.release();
            auto dataType = std::make_unique<DyingDataType>(document.DataTypeCollection(), deaths);
            document.DataTypeCollection().AppendDataType(*dataType);
            dataType.release();
        }
        document.UnitCollection().AddNewUnit();
    }
    EXPECT_EQ(deaths, (Deaths{"data type, 1 left, 2 trouble code collections, not alive",
                              "data type, 0 left, 2 trouble code collections, not alive",
                              "trouble code collection, 1 left, 1 units", "trouble code collection, 0 left, 1 units"}));
}

/// Two objects made by one factory, which have to be given up at the end.
template <class T>
class Made {
public:
    Made(VImportDoc& document, T& (VImportDoc::*make)())
        : first((document.*make)(), &Destroy), second((document.*make)(), &Destroy) {
        EXPECT_NE(&*first, &*second);
        EXPECT_TRUE(typeid(*first) == typeid(T) && typeid(*second) == typeid(T));
        EXPECT_EQ(&first->ImportDoc(), &document);
    }

private:
    static void Destroy(T* object) { object->Destroy(); }

    struct Owner : std::unique_ptr<T, void (*)(T*)> {
        Owner(T& object, void (*destroy)(T*)) : std::unique_ptr<T, void (*)(T*)>(&object, destroy) {}
    };

public:
    Owner first;
    Owner second;
};

template <class T>
void ExpectMadeDataTypes(VImportDoc& document, T& (VImportDoc::*make)()) {
    const Made<T> made(document, make);
    EXPECT_EQ(&made.first->DataTypeCollection(), &document.DataTypeCollection());
    EXPECT_STREQ(made.first->GetQualifier(), L"");
    EXPECT_TRUE(made.first->IsImported());
    EXPECT_TRUE(document.DataTypeCollection().IsEmpty());
}

TEST(VImportDocFactoriesTest, MakeDataTypesOfEveryKindThatNoCollectionHolds) {
    VImportDoc document;
    ExpectMadeDataTypes(document, &VImportDoc::MakeFormulaDataType);
    ExpectMadeDataTypes(document, &VImportDoc::MakeIdentityDataType);
    ExpectMadeDataTypes(document, &VImportDoc::MakeLinearDataType);
    ExpectMadeDataTypes(document, &VImportDoc::MakePiecewiseLinearDataType);
    ExpectMadeDataTypes(document, &VImportDoc::MakeProcedureDataType);
    ExpectMadeDataTypes(document, &VImportDoc::MakeTextTableDataType);
    ExpectMadeDataTypes(document, &VImportDoc::MakeValueTableDataType);
    ExpectMadeDataTypes(document, &VImportDoc::MakeMuxDataType);
    ExpectMadeDataTypes(document, &VImportDoc::MakePacketDataType);
    ExpectMadeDataTypes(document, &VImportDoc::MakeEndMarkerIterDataType);
    ExpectMadeDataTypes(document, &VImportDoc::MakeEndOfServiceIterDataType);
    ExpectMadeDataTypes(document, &VImportDoc::MakeNumeratorIterDataType);
    ExpectMadeDataTypes(document, &VImportDoc::MakeStaticIterDataType);
}

TEST(VImportDocFactoriesTest, MakeAttributesAndTroubleCodesThatNoCollectionHolds) {
    VImportDoc document;
    const Made<VAttribute> attribute(document, &VImportDoc::MakeAttribute);
    EXPECT_STREQ(attribute.first->GetValue(), L"");
    const Made<VAttributeCollection> attributes(document, &VImportDoc::MakeAttributeCollection);
    EXPECT_TRUE(attributes.first->IsEmpty());
    const Made<VTroubleCode> troubleCode(document, &VImportDoc::MakeTroubleCode);
    EXPECT_STREQ(troubleCode.first->GetErrorText(), L"");
    const Made<VTroubleCodeCollection> troubleCodes(document, &VImportDoc::MakeTroubleCodeCollection);
    EXPECT_TRUE(troubleCodes.first->IsEmpty());
    EXPECT_TRUE(document.TroubleCodeCollectionCollection().IsEmpty());
}

TEST(VImportDocFactoriesTest, AMadeObjectCountsOnceItIsAppended) {
    VImportDoc document;
    VLinearDataType& linear = document.MakeLinearDataType();
    EXPECT_EQ(document.DataTypeCollection().Count(), 0U);
    document.DataTypeCollection().AppendLinearDataType(linear);
    EXPECT_EQ(document.DataTypeCollection().Count(), 1U);
    EXPECT_EQ(&*document.DataTypeCollection().Begin(), &linear);
    VTroubleCodeCollection& codes = document.MakeTroubleCodeCollection();
    codes.Append(document.MakeTroubleCode());
    document.TroubleCodeCollectionCollection().Append(codes);
    EXPECT_EQ(document.TroubleCodeCollectionCollection().Count(), 1U);
    EXPECT_EQ(document.TroubleCodeCollectionCollection().TroubleCodesCount(), 1U);
}

TEST(VImportDocFactoriesTest, AMadeObjectThatWasNeverAppendedOutlivesItsDocument) {
    auto document = std::make_unique<VImportDoc>();
    VPacketDataType& packet = document->MakePacketDataType();
    packet.InterchangeableCollection().AddNewGapObject();
    VTroubleCodeCollection& codes = document->MakeTroubleCodeCollection();
    codes.AppendNew();
    VAttribute& attribute = document->MakeAttribute();
    document.reset();
    packet.SetQualifier(L"still here");
    packet.SetDid(5);
    packet.InterchangeableCollection().Clear();
    codes.Clear();
    attribute.SetValue(L"value");
    EXPECT_STREQ(packet.GetQualifier(), L"still here");
    EXPECT_EQ(packet.GetDid(), 5U);
    EXPECT_STREQ(attribute.GetValue(), L"value");
    packet.Destroy();
    codes.Destroy();
    attribute.Destroy();
}

} // namespace
