#include "support/Sample.h"

#include <gtest/gtest.h>

using namespace ImportDame;
using OdxTests::Attribute;
using OdxTests::Sample;

namespace {

class Kinds final : public VDiagCommVisitor {
public:
    std::wstring text;

    void VisitDiagService(VDiagService& service) override {
        text += std::wstring(L" ") + service.GetQualifier() + L":" + std::to_wstring(service.GetServiceId());
        for (VDiagServiceShape& shape : service.DiagServiceShapeCollection())
            text += std::wstring(L"/") + std::to_wstring(shape.GetSubValue());
    }

    void VisitDiagJob(VDiagJob& job) override { text += std::wstring(L" job:") + job.GetQualifier(); }
};

std::wstring Services(VVariant& variant) {
    Kinds kinds;
    for (VDiagComm& each : variant.DiagCommCollection())
        kinds.DispatchDiagComm(each);
    return kinds.text;
}

VDiagComm& Service(const wchar_t* qualifier) {
    VDiagCommCollection& services = Sample().document.GetBaseVariant().DiagCommCollection();
    services.InitCache();
    return *services.GetFromCache(qualifier);
}

VTroubleCodeCollection& Faults(const wchar_t* name) {
    return *Sample().document.TroubleCodeCollectionCollection().Find(name);
}

std::vector<std::wstring> Record(VTroubleCode& code) {
    std::vector<std::wstring> texts;
    for (VRecordItem& item : code.RecordItemCollection())
        texts.emplace_back(item.Text().GetText());
    return texts;
}

} // namespace

TEST(SampleServicesTest, TheDocumentIsNamedByTheBaseVariantAndItsAdministrativeData) {
    VImportDoc& document = Sample().document;
    EXPECT_STREQ(document.GetEcuName(), L"CoolantPump");
    EXPECT_STREQ(document.GetLanguage(), L"en-US");
    EXPECT_STREQ(document.GetKDIVersion(), L"1.1");
    EXPECT_EQ(Sample().result.baseVariant, "CoolantPump");
    EXPECT_EQ(Sample().result.status, OdxImport::ImportStatus::Completed);
}

TEST(SampleServicesTest, OnlyTheCatalogueOfTheArchiveIsReported) {
    EXPECT_EQ(Sample().Codes(), "ODX0111");
}

TEST(SampleServicesTest, TheBaseVariantHasItsOwnAndTheInheritedServices) {
    VBaseVariant& variant = Sample().document.GetBaseVariant();
    EXPECT_EQ(Services(variant),
              L" ReadState:34/4660 ReadFaults:25/2 ExchangeAll:49 job:Bleed TesterPresent:62/128 StartSession:16");
    EXPECT_TRUE(variant.IsImportedCompletly());
    EXPECT_STREQ(variant.GetQualifier(), L"CoolantPump");
    EXPECT_STREQ(variant.GetTargetVariantQualifier(), L"CoolantPump");
    EXPECT_STREQ(variant.GetName(), L"Electric coolant pump");
}

TEST(SampleServicesTest, EcuVariantsOverrideExcludeAndInherit) {
    VEcuVariantCollection& variants = Sample().document.GetBaseVariant().GetEcuVariantCollection();
    ASSERT_EQ(variants.Count(), 2u);
    VEcuVariant& large = *variants.Find(L"CoolantPump_Large");
    EXPECT_EQ(Services(large),
              L" Boost:47 ReadState:34/4662 ReadFaults:25/2 ExchangeAll:49 TesterPresent:62/128 StartSession:16");
    EXPECT_STREQ(large.GetReferenceFromVariantQualifier(), L"CoolantPump");
    EXPECT_TRUE(large.IsImportedCompletly());
    VEcuVariant& small = *variants.Find(L"CoolantPump_Small");
    EXPECT_EQ(Services(small), Services(Sample().document.GetBaseVariant()));
}

TEST(SampleServicesTest, ServicesHaveSemanticClassNamesAndWhatTheyExchange) {
    auto& service = dynamic_cast<VDiagService&>(Service(L"ReadState"));
    EXPECT_STREQ(service.GetSemantic(), L"CURRENTDATA");
    EXPECT_STREQ(service.GetFunctClass(), L"Identification");
    EXPECT_STREQ(service.GetName(), L"Read the state of the pump");
    EXPECT_STREQ(service.Name().GetTextId(), L"ds.readState.ln");
    EXPECT_STREQ(service.GetObjectIdentifier(), L"ds.readState");
    EXPECT_STREQ(service.GetSourceInfo(), L"BASE-VARIANT CoolantPump");
    EXPECT_EQ(Attribute(service.Attributes(), L"REQUEST"), L"RQ_ReadState");
    EXPECT_EQ(Attribute(service.Attributes(), L"POS-RESPONSE"), L"PR_ReadState");
    EXPECT_EQ(Attribute(service.Attributes(), L"NEG-RESPONSE"), L"NR_General");
    EXPECT_EQ(Attribute(service.Attributes(), L"ADDRESSING"), L"PHYSICAL");
    EXPECT_STREQ(Service(L"TesterPresent").GetSourceInfo(), L"PROTOCOL UDS");
    EXPECT_EQ(Attribute(Service(L"Bleed").Attributes(), L"PROG-CODES/PROG-CODE/CODE-FILE"), L"bleed.jar");
}

TEST(SampleServicesTest, SpecialAndAdministrativeDataAreAttributes) {
    VAttributeCollection& attributes = Sample().document.GetBaseVariant().Attributes();
    EXPECT_EQ(Attribute(attributes, L"Project/platform"), L"P1");
    EXPECT_STREQ((*attributes.Find(L"Project/platform")).Name().GetTextId(), L"sd.platform");
    EXPECT_EQ(Attribute(attributes, L"Project/Contact/team"), L"Thermal");
    EXPECT_EQ(Attribute(attributes, L"ADMIN-DATA/LANGUAGE"), L"en-US");
    EXPECT_EQ(Attribute(attributes, L"ADMIN-DATA/DOC-REVISIONS/DOC-REVISION/REVISION-LABEL"), L"1.0");
}

TEST(SampleServicesTest, TroubleCodesHaveNumbersTextsAndRecordsByTheTemplate) {
    VTroubleCodeCollection& faults = Faults(L"PumpFaults");
    ASSERT_EQ(faults.Count(), 2u);
    EXPECT_EQ(faults.GetMaxBitLength(), 24u);
    EXPECT_STREQ(faults.GetObjectIdentifier(), L"dtcdop.pump");
    std::vector<std::wstring> columns;
    for (unsigned int i = 0; i < faults.RecordTemplateMapping().GetNumberOfTemplateItem(); ++i)
        columns.emplace_back(faults.RecordTemplateMapping().GetItemMapping(i).GetContent());
    EXPECT_EQ(columns, (std::vector<std::wstring>{L"SHORT-NAME", L"DISPLAY-TROUBLE-CODE", L"LEVEL", L"ENV-DATA",
                                                  L"Fault/reaction", L"Fault/lamp"}));

    VTroubleCode& dry = *faults.Find(4097u);
    EXPECT_STREQ(dry.GetErrorText(), L"Pump runs dry");
    EXPECT_STREQ(dry.ErrorText().GetTextId(), L"dtc.dry.t");
    EXPECT_STREQ(dry.GetObjectIdentifier(), L"dtc.dry");
    EXPECT_EQ(Record(dry), (std::vector<std::wstring>{L"DryRun", L"P1001", L"2", L"CommonEnvironment DryRunEnvironment",
                                                      L"derate", L"amber"}));
    VRecordItem& level = *dry.RecordItemCollection().FindByIndex(2);
    EXPECT_TRUE(level.IsEnumRecordItem());
    EXPECT_EQ(level.GetEnumIndex(), 2u);
    EXPECT_STREQ(dry.Item(4).GetTextId(), L"sd.derate");
    EXPECT_EQ(Attribute(dry.Attributes(), L"Fault/lamp"), L"amber");

    VTroubleCode& blocked = *faults.Find(8388609u);
    EXPECT_EQ(Record(blocked),
              (std::vector<std::wstring>{L"Blocked", L"C0001", L"", L"CommonEnvironment", L"", L"red"}));
    EXPECT_EQ(Attribute(blocked.Attributes(), L"IS-TEMPORARY"), L"true");
}

TEST(SampleServicesTest, LinkedTroubleCodesAreTakenOverButTheExcludedOnes) {
    std::vector<unsigned int> codes;
    for (VTroubleCode& code : Faults(L"AllFaults"))
        codes.push_back(code.GetCode());
    EXPECT_EQ(codes, (std::vector<unsigned int>{12, 4097}));
}

TEST(SampleServicesTest, ATroubleCodeCollectionNamesTheServiceThatReadsIt) {
    VServiceMapping& mapping = Faults(L"PumpFaults").ServiceMapping();
    EXPECT_STREQ(mapping.GetVariant(), L"CoolantPump");
    EXPECT_STREQ(mapping.GetClass(), L"FaultMemory");
    EXPECT_STREQ(mapping.GetService(), L"ReadFaults");
    EXPECT_STREQ(mapping.GetPrimitive(), L"PR_ReadFaults");
    EXPECT_STREQ(mapping.GetInstance(), L"Code");
    EXPECT_STREQ(Faults(L"AllFaults").ServiceMapping().GetService(), L"");
}

TEST(SampleServicesTest, TheLedgerAddsUpAndAgreesWithTheDocument) {
    const OdxImport::Ledger& ledger = Sample().ledger;
    EXPECT_TRUE(ledger.AddsUp());
    EXPECT_EQ(ledger.Total().dropped, 0u);
    const auto counts = [&](const char* kind) { return ledger.AllRows().find(kind)->second.counts; };
    EXPECT_EQ(counts("DTC").seen, 3u);
    EXPECT_EQ(counts("DTC").imported, 3u);
    EXPECT_EQ(counts("DIAG-SERVICE").imported, 7u);
    EXPECT_EQ(counts("UNIT").seen, 4u);
    EXPECT_EQ(counts("UNIT").imported, 3u);
    EXPECT_EQ(counts("COMPARAM").notRepresented, 1u);
    EXPECT_EQ(counts("ECU-VARIANT").imported, Sample().document.GetBaseVariant().GetEcuVariantCollection().Count());
}

TEST(SampleServicesTest, DocumentsAreListedWithTheirDigestsAndVersions) {
    const auto& documents = Sample().result.documents;
    ASSERT_EQ(documents.size(), 4u);
    EXPECT_TRUE(documents[0].file.ends_with("coolant-pump.pdx!coolant-pump-variants.odx-d"));
    EXPECT_EQ(documents[1].modelVersion, "2.2.0");
    EXPECT_EQ(documents[1].category, "DIAG-LAYER-CONTAINER");
    EXPECT_EQ(documents[1].shortName, "CoolantPumpLayers");
    EXPECT_EQ(documents[1].sha256.size(), 64u);
}
