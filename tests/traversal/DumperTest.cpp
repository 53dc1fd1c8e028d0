#include "support/CapturedLog.h"
#include "traversal/RecordingTraverser.h"

#include <ImportDame/Case.h>
#include <ImportDame/CaseCollection.h>
#include <ImportDame/Dumper.h>
#include <ImportDame/InvalidRange.h>
#include <ImportDame/TextTableRow.h>
#include <ImportDame/TextTableRowCollection.h>

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <type_traits>

using namespace ImportDame;
using NArdenaSharedUtil::Logging::VLogging;
using TestSupport::CapturedLog;
using TestSupport::Named;

namespace {

static_assert(std::is_abstract_v<VDumper> && std::is_base_of_v<VImportDocTraverser, VDumper>);
static_assert(std::has_virtual_destructor_v<VDumper>);

using Lines = std::vector<std::wstring>;

/// Leaves the repetition kinds out.
class Dumper : public VDumper {
public:
    void VisitStaticIterDataType(VStaticIterDataType&) override {}

    void VisitNumeratorIterDataType(VNumeratorIterDataType&) override {}

    void VisitEndOfServiceIterDataType(VEndOfServiceIterDataType&) override {}

    void VisitEndMarkerIterDataType(VEndMarkerIterDataType&) override {}

    void PreProcessGapObject(VGapObject& gapObject) override {
        ++gapObjects;
        if (throws)
            throw std::runtime_error("a hook");
        VDumper::PreProcessGapObject(gapObject);
    }

    using VDumper::GetShiftingBlanks;
    using VDumper::VisitInvalidRangeCollection;

    bool throws = false;
    int gapObjects = 0;
};

VGapObject& AddGap(VInterchangeableCollection& collection, const wchar_t* qualifier, unsigned int bitLength) {
    VGapObject& gap = Named(collection.AddNewGapObject(), qualifier);
    gap.SetBitLength(bitLength);
    return gap;
}

VDataObject& AddObject(VInterchangeableCollection& collection, const wchar_t* qualifier, VDataType* dataType) {
    VDataObject& object = Named(collection.AddNewDataObject(), qualifier);
    object.SetDataType(dataType);
    return object;
}

VBitField& AddBitField(VInterchangeableCollection& collection, const wchar_t* qualifier, VDataType* dataType) {
    VBitField& bitField = Named(collection.AddNewBitField(), qualifier);
    bitField.SetDataType(dataType);
    return bitField;
}

class VDumperTest : public testing::Test {
protected:
    Lines DumpDocument() {
        const CapturedLog log;
        m_dumper.Dump(m_document);
        EXPECT_EQ(m_dumper.GetShiftingBlanks(), L"");
        return log.Lines();
    }

    Lines DumpInterchangeables() {
        const CapturedLog log;
        m_dumper.Dump(m_interchangeables);
        EXPECT_EQ(m_dumper.GetShiftingBlanks(), L"");
        return log.Lines();
    }

    VImportDoc m_document;
    VDataTypeCollection& m_dataTypes = m_document.DataTypeCollection();
    VInterchangeableCollection& m_interchangeables = m_document.InterchangeableCollection();
    Dumper m_dumper;
};

TEST_F(VDumperTest, AnEmptyDocumentHasTheLinesOfItsTwoCollections) {
    EXPECT_EQ(DumpDocument(), (Lines{L"IMPORTDAME DUMP:  start of data type collection",
                                     L"IMPORTDAME DUMP:  end of data type collection",
                                     L"IMPORTDAME DUMP:  start of interchangeable collection",
                                     L"IMPORTDAME DUMP:  end of interchangeable collection"}));
}

TEST_F(VDumperTest, APacketsMembersAreIndentedByFourBlanks) {
    VIdentityDataType& dataType = Named(m_dataTypes.AddNewIdentityDataType(), L"DT1");
    AddObject(Named(m_dataTypes.AddNewPacketDataType(), L"P1").InterchangeableCollection(), L"D1", &dataType);
    AddGap(m_interchangeables, L"G1", 8);
    EXPECT_EQ(
        DumpDocument(),
        (Lines{L"IMPORTDAME DUMP:  start of data type collection", L"IMPORTDAME DUMP:  IdentityDataType: 'DT1'",
               L"IMPORTDAME DUMP:  PacketDataType: 'P1'", L"IMPORTDAME DUMP:      DataObject: 'D1' has DataType 'DT1'",
               L"IMPORTDAME DUMP:  end of data type collection",
               L"IMPORTDAME DUMP:  start of interchangeable collection",
               L"IMPORTDAME DUMP:  GapObject: 'G1' has bit length '8'",
               L"IMPORTDAME DUMP:  end of interchangeable collection"}));
}

TEST_F(VDumperTest, ABitFieldsMembersAreWrittenDeeperAndThenOnceMoreAtItsOwnDepth) {
    VBitField& bitField = AddBitField(m_interchangeables, L"B", nullptr);
    AddGap(bitField.InterchangeableCollection(), L"G", 4294967295U);
    AddObject(bitField.InterchangeableCollection(), L"D", nullptr);
    EXPECT_EQ(DumpInterchangeables(), (Lines{L"IMPORTDAME DUMP:  BitField: 'B' has DataType ''",
                                             L"IMPORTDAME DUMP:      GapObject: 'G' has bit length '4294967295'",
                                             L"IMPORTDAME DUMP:      DataObject: 'D' has DataType ''",
                                             L"IMPORTDAME DUMP:  GapObject: 'G' has bit length '4294967295'",
                                             L"IMPORTDAME DUMP:  DataObject: 'D' has DataType ''"}));
}

TEST_F(VDumperTest, NestedBitFieldsMultiplyTheRepetition) {
    VBitField& outer = AddBitField(m_interchangeables, L"outer", nullptr);
    VBitField& inner = AddBitField(outer.InterchangeableCollection(), L"inner", nullptr);
    AddGap(inner.InterchangeableCollection(), L"G", 1);
    EXPECT_EQ(DumpInterchangeables(), (Lines{L"IMPORTDAME DUMP:  BitField: 'outer' has DataType ''",
                                             L"IMPORTDAME DUMP:      BitField: 'inner' has DataType ''",
                                             L"IMPORTDAME DUMP:          GapObject: 'G' has bit length '1'",
                                             L"IMPORTDAME DUMP:      GapObject: 'G' has bit length '1'",
                                             L"IMPORTDAME DUMP:  BitField: 'inner' has DataType ''",
                                             L"IMPORTDAME DUMP:      GapObject: 'G' has bit length '1'",
                                             L"IMPORTDAME DUMP:  GapObject: 'G' has bit length '1'"}));
}

TEST_F(VDumperTest, ACollectionAloneHasNoLinesForItsStartAndEnd) {
    EXPECT_EQ(DumpInterchangeables(), Lines{});
    AddGap(m_interchangeables, L"G", 0);
    EXPECT_EQ(DumpInterchangeables(), Lines{L"IMPORTDAME DUMP:  GapObject: 'G' has bit length '0'"});
}

TEST_F(VDumperTest, ATextTableHasOneLineForEachRow) {
    Named(m_dataTypes.AddNewTextTableDataType(), L"empty");
    VTextTableDataType& textTable = Named(m_dataTypes.AddNewTextTableDataType(), L"TT");
    textTable.TextTableRowCollection().AddNewTextTableRow().SetMappedValue(L"off");
    textTable.TextTableRowCollection().AddNewTextTableRow();
    textTable.TextTableRowCollection().AddNewTextTableRow().SetMappedValue(L"on");
    EXPECT_EQ(DumpDocument(),
              (Lines{L"IMPORTDAME DUMP:  start of data type collection",
                     L"IMPORTDAME DUMP:  TextTableDataType: 'empty'", L"IMPORTDAME DUMP:  TextTableDataType: 'TT'",
                     L"IMPORTDAME DUMP:      TextTableRow: 'off'", L"IMPORTDAME DUMP:      TextTableRow: ''",
                     L"IMPORTDAME DUMP:      TextTableRow: 'on'", L"IMPORTDAME DUMP:  end of data type collection",
                     L"IMPORTDAME DUMP:  start of interchangeable collection",
                     L"IMPORTDAME DUMP:  end of interchangeable collection"}));
}

TEST_F(VDumperTest, InvalidRangesHaveALineOnlyWhereASubclassVisitsThem) {
    VLinearDataType& linear = Named(m_dataTypes.AddNewLinearDataType(), L"L");
    linear.InvalidRangeCollection().AddNewInvalidRange();
    EXPECT_EQ(DumpDocument().size(), 5U);
    const CapturedLog log;
    m_dumper.VisitInvalidRangeCollection(linear.InvalidRangeCollection());
    EXPECT_EQ(log.Lines(), Lines{L"IMPORTDAME DUMP:      DataType has specification of invalid ranges"});
}

/// A document with every kind of element. The names are the ones of a German and of a Russian description.
void Fill(VImportDoc& document) {
    VDataTypeCollection& dataTypes = document.DataTypeCollection();
    VIdentityDataType& identity = Named(dataTypes.AddNewIdentityDataType(), L"Z\u00e4hler");
    VTextTableDataType& textTable = Named(dataTypes.AddNewTextTableDataType(), L"Schl\u00fcsselstellung");
    textTable.TextTableRowCollection().AddNewTextTableRow().SetMappedValue(L"Z\u00fcndung aus");
    textTable.TextTableRowCollection().AddNewTextTableRow().SetMappedValue(
        L"\u0432\u043a\u043b\u044e\u0447\u0435\u043d\u043e");
    VLinearDataType& linear =
        Named(dataTypes.AddNewLinearDataType(), L"\u0422\u0435\u043c\u043f\u0435\u0440\u0430\u0442\u0443\u0440\u0430");
    linear.InvalidRangeCollection().AddNewInvalidRange();
    Named(dataTypes.AddNewPiecewiseLinearDataType(), L"Kennlinie");
    Named(dataTypes.AddNewValueTableDataType(), L"Wertetabelle");
    Named(dataTypes.AddNewFormulaDataType(), L"\u0424\u043e\u0440\u043c\u0443\u043b\u0430 1");
    Named(dataTypes.AddNewProcedureDataType(), L"Verfahren 'A'");
    VMuxDataType& mux = Named(dataTypes.AddNewMuxDataType(), L"Mux");
    AddGap(mux.InterchangeableCollection(), L"not written", 1);
    AddGap(mux.GetDefaultCase(), L"not written", 1);
    AddGap(mux.GetCaseCollection().AddNewCase().InterchangeableCollection(), L"not written", 1);
    dataTypes.AppendDataType(Named(document.MakeStaticIterDataType(), L"not written"));
    dataTypes.AppendDataType(Named(document.MakeNumeratorIterDataType(), L"not written"));
    dataTypes.AppendDataType(Named(document.MakeEndOfServiceIterDataType(), L"not written"));
    dataTypes.AppendDataType(Named(document.MakeEndMarkerIterDataType(), L"not written"));

    VInterchangeableCollection& packet =
        Named(dataTypes.AddNewPacketDataType(), L"Botschaft").InterchangeableCollection();
    AddObject(packet, L"T_\u00d6l", &linear);
    VBitField& outer = AddBitField(packet, L"Stellungen", &identity);
    AddObject(outer.InterchangeableCollection(), L"S1", &textTable);
    VBitField& inner = AddBitField(outer.InterchangeableCollection(), L"S2", nullptr);
    AddGap(inner.InterchangeableCollection(), L"\u0440\u0435\u0437\u0435\u0440\u0432", 3);
    AddObject(packet, L"ohne Typ", nullptr);
    Named(dataTypes.AddNewPacketDataType(), L"");

    VInterchangeableCollection& interchangeables = document.InterchangeableCollection();
    AddObject(interchangeables, L"D", &mux);
    AddGap(AddBitField(interchangeables, L"B", &linear).InterchangeableCollection(), L"G1", 12);
    AddGap(interchangeables, L"G2", 4096);
}

TEST_F(VDumperTest, AFullDocumentIsWrittenLineByLine) {
    Fill(m_document);
    EXPECT_EQ(
        DumpDocument(),
        (Lines{
            L"IMPORTDAME DUMP:  start of data type collection",
            L"IMPORTDAME DUMP:  IdentityDataType: 'Z\u00e4hler'",
            L"IMPORTDAME DUMP:  TextTableDataType: 'Schl\u00fcsselstellung'",
            L"IMPORTDAME DUMP:      TextTableRow: 'Z\u00fcndung aus'",
            L"IMPORTDAME DUMP:      TextTableRow: '\u0432\u043a\u043b\u044e\u0447\u0435\u043d\u043e'",
            L"IMPORTDAME DUMP:  LinearDataType: '\u0422\u0435\u043c\u043f\u0435\u0440\u0430\u0442\u0443\u0440\u0430'",
            L"IMPORTDAME DUMP:  PiecewiseLinearDataType: 'Kennlinie'",
            L"IMPORTDAME DUMP:  ValueTableDataType: 'Wertetabelle'",
            L"IMPORTDAME DUMP:  FormulaDataType: '\u0424\u043e\u0440\u043c\u0443\u043b\u0430 1'",
            L"IMPORTDAME DUMP:  ProcedureDataType: 'Verfahren 'A''",
            L"IMPORTDAME DUMP:  PacketDataType: 'Botschaft'",
            L"IMPORTDAME DUMP:      DataObject: 'T_\u00d6l' has DataType "
            L"'\u0422\u0435\u043c\u043f\u0435\u0440\u0430\u0442\u0443\u0440\u0430'",
            L"IMPORTDAME DUMP:      BitField: 'Stellungen' has DataType 'Z\u00e4hler'",
            L"IMPORTDAME DUMP:          DataObject: 'S1' has DataType 'Schl\u00fcsselstellung'",
            L"IMPORTDAME DUMP:          BitField: 'S2' has DataType ''",
            L"IMPORTDAME DUMP:              GapObject: '\u0440\u0435\u0437\u0435\u0440\u0432' has bit length '3'",
            L"IMPORTDAME DUMP:          GapObject: '\u0440\u0435\u0437\u0435\u0440\u0432' has bit length '3'",
            L"IMPORTDAME DUMP:      DataObject: 'S1' has DataType 'Schl\u00fcsselstellung'",
            L"IMPORTDAME DUMP:      BitField: 'S2' has DataType ''",
            L"IMPORTDAME DUMP:          GapObject: '\u0440\u0435\u0437\u0435\u0440\u0432' has bit length '3'",
            L"IMPORTDAME DUMP:      GapObject: '\u0440\u0435\u0437\u0435\u0440\u0432' has bit length '3'",
            L"IMPORTDAME DUMP:      DataObject: 'ohne Typ' has DataType ''",
            L"IMPORTDAME DUMP:  PacketDataType: ''",
            L"IMPORTDAME DUMP:  end of data type collection",
            L"IMPORTDAME DUMP:  start of interchangeable collection",
            L"IMPORTDAME DUMP:  DataObject: 'D' has DataType 'Mux'",
            L"IMPORTDAME DUMP:  BitField: 'B' has DataType "
            L"'\u0422\u0435\u043c\u043f\u0435\u0440\u0430\u0442\u0443\u0440\u0430'",
            L"IMPORTDAME DUMP:      GapObject: 'G1' has bit length '12'",
            L"IMPORTDAME DUMP:  GapObject: 'G1' has bit length '12'",
            L"IMPORTDAME DUMP:  GapObject: 'G2' has bit length '4096'",
            L"IMPORTDAME DUMP:  end of interchangeable collection"}));
}

TEST_F(VDumperTest, EveryHookMayBeCalledFromOutsideAndWritesItsOwnLine) {
    VDumper& dumper = m_dumper;
    const CapturedLog log;
    dumper.PreProcessImportDoc(m_document); // nothing
    dumper.PreProcessDataTypeCollection(m_dataTypes);
    dumper.PreProcessIdentityDataType(Named(m_dataTypes.AddNewIdentityDataType(), L"I"));
    dumper.PreProcessTextTableDataType(Named(m_dataTypes.AddNewTextTableDataType(), L"T"));
    dumper.PreProcessLinearDataType(Named(m_dataTypes.AddNewLinearDataType(), L"L"));
    dumper.PreProcessPiecewiseLinearDataType(Named(m_dataTypes.AddNewPiecewiseLinearDataType(), L"P"));
    dumper.PreProcessValueTableDataType(Named(m_dataTypes.AddNewValueTableDataType(), L"V"));
    dumper.PreProcessFormulaDataType(Named(m_dataTypes.AddNewFormulaDataType(), L"F"));
    dumper.PreProcessProcedureDataType(Named(m_dataTypes.AddNewProcedureDataType(), L"R"));
    dumper.PreProcessPacketDataType(Named(m_dataTypes.AddNewPacketDataType(), L"K"));
    dumper.PreProcessInvalidRangeCollection(m_dataTypes.Begin()->InvalidRangeCollection());
    dumper.PostProcessDataTypeCollection(m_dataTypes);
    dumper.PreProcessInterchangeableCollection(m_interchangeables);
    dumper.PreProcessDataObject(AddObject(m_interchangeables, L"D", &*m_dataTypes.Begin()));
    dumper.PreProcessBitField(AddBitField(m_interchangeables, L"B", nullptr));
    dumper.PreProcessGapObject(AddGap(m_interchangeables, L"G", 8));
    dumper.PostProcessInterchangeableCollection(m_interchangeables);
    dumper.PostProcessImportDoc(m_document); // nothing
    EXPECT_EQ(log.Lines(),
              (Lines{L"IMPORTDAME DUMP:  start of data type collection", L"IMPORTDAME DUMP:  IdentityDataType: 'I'",
                     L"IMPORTDAME DUMP:  TextTableDataType: 'T'", L"IMPORTDAME DUMP:  LinearDataType: 'L'",
                     L"IMPORTDAME DUMP:  PiecewiseLinearDataType: 'P'", L"IMPORTDAME DUMP:  ValueTableDataType: 'V'",
                     L"IMPORTDAME DUMP:  FormulaDataType: 'F'", L"IMPORTDAME DUMP:  ProcedureDataType: 'R'",
                     L"IMPORTDAME DUMP:  PacketDataType: 'K'",
                     L"IMPORTDAME DUMP:      DataType has specification of invalid ranges",
                     L"IMPORTDAME DUMP:  end of data type collection",
                     L"IMPORTDAME DUMP:  start of interchangeable collection",
                     L"IMPORTDAME DUMP:  DataObject: 'D' has DataType 'I'",
                     L"IMPORTDAME DUMP:  BitField: 'B' has DataType ''",
                     L"IMPORTDAME DUMP:  GapObject: 'G' has bit length '8'",
                     L"IMPORTDAME DUMP:  end of interchangeable collection"}));
}

TEST_F(VDumperTest, OnlyInterchangeablesAreIndented) {
    /// Lets data types and invalid ranges be written while the members of a packet are.
    class Interrupting : public Dumper {
    public:
        void PreProcessDataObject(VDataObject& dataObject) override {
            VDumper::PreProcessDataObject(dataObject);
            TraverseDataType(*dataObject.GetDataType());
            VisitInvalidRangeCollection(dataObject.GetDataType()->InvalidRangeCollection());
        }
    };

    VTextTableDataType textTable(m_dataTypes);
    textTable.SetQualifier(L"T");
    textTable.TextTableRowCollection().AddNewTextTableRow().SetMappedValue(L"on");
    AddObject(Named(m_dataTypes.AddNewPacketDataType(), L"P").InterchangeableCollection(), L"D", &textTable);
    Interrupting dumper;
    const CapturedLog log;
    dumper.TraverseDataType(*m_dataTypes.Begin());
    EXPECT_EQ(
        log.Lines(),
        (Lines{L"IMPORTDAME DUMP:  PacketDataType: 'P'", L"IMPORTDAME DUMP:      DataObject: 'D' has DataType 'T'",
               L"IMPORTDAME DUMP:  TextTableDataType: 'T'", L"IMPORTDAME DUMP:      TextTableRow: 'on'",
               L"IMPORTDAME DUMP:      DataType has specification of invalid ranges"}));
}

TEST_F(VDumperTest, GoesThroughTheVirtualInterface) {
    struct Counting : Dumper {
        void Traverse(VImportDoc&) override { ++documents; }

        void TraverseInterchangeableCollection(VInterchangeableCollection&) override { ++collections; }

        int documents = 0;
        int collections = 0;
    };

    Counting dumper;
    const CapturedLog log;
    dumper.Dump(m_document);
    EXPECT_EQ(dumper.documents, 1);
    dumper.Dump(m_interchangeables);
    dumper.PreProcessPacketDataType(m_dataTypes.AddNewPacketDataType());
    dumper.PreProcessBitField(m_interchangeables.AddNewBitField());
    EXPECT_EQ(dumper.collections, 3);
}

TEST_F(VDumperTest, AsksBeforeEachLineWhetherTheLogIsEnabled) {
    class Disabling : public Dumper {
    public:
        void PostProcessGapObject(VGapObject&) override {
            VLogging::GetInstance().SetEnabled(!VLogging::GetInstance().IsEnabled());
        }
    };

    for (const wchar_t* const qualifier : {L"first", L"second", L"third"})
        AddGap(m_interchangeables, qualifier, 1);
    Disabling dumper;
    const CapturedLog log;
    dumper.Dump(m_interchangeables);
    EXPECT_EQ(log.Lines(), (Lines{L"IMPORTDAME DUMP:  GapObject: 'first' has bit length '1'",
                                  L"IMPORTDAME DUMP:  GapObject: 'third' has bit length '1'"}));
}

TEST_F(VDumperTest, CanBeUsedAgain) {
    Fill(m_document);
    const Lines first = DumpDocument();
    EXPECT_EQ(first.size(), 31U);
    EXPECT_EQ(DumpDocument(), first);
}

TEST_F(VDumperTest, WritesRecordsOfSeverityThreeUnderTheLibrarysGroup) {
    AddGap(m_interchangeables, L"G", 8);
    const CapturedLog log;
    m_dumper.Dump(m_interchangeables);
    ASSERT_EQ(log.Records().size(), 1U);
    EXPECT_EQ(log.Records()[0].severity, 3);
    EXPECT_EQ(log.Records()[0].group, VLogging::GetInstance().GetOrCreateGroupId("GroupDimex"));
}

TEST_F(VDumperTest, HeedsNeitherTheGroupMaskNorTheGlobalLevel) {
    AddGap(m_interchangeables, L"G", 8);
    const CapturedLog log;
    VLogging::GetInstance().SetGlobalLogGroupMask(0);
    VLogging::GetInstance().SetGlobalLogLevel(-1);
    m_dumper.Dump(m_interchangeables);
    EXPECT_EQ(log.Records().size(), 1U);
}

TEST_F(VDumperTest, WalksEverythingButWritesNothingWhileTheLogIsDisabled) {
    Fill(m_document);
    const CapturedLog log;
    VLogging::GetInstance().SetEnabled(false);
    m_dumper.Dump(m_document);
    m_dumper.Dump(m_interchangeables);
    EXPECT_TRUE(log.Records().empty());
    EXPECT_EQ(m_dumper.gapObjects, 4 + 3 + 3);
    EXPECT_EQ(m_dumper.GetShiftingBlanks(), L"");
}

TEST_F(VDumperTest, TheIndentationIsRestoredWhenAHookThrows) {
    AddGap(Named(m_dataTypes.AddNewPacketDataType(), L"P").InterchangeableCollection(), L"G", 1);
    VBitField& bitField = AddBitField(m_interchangeables, L"B", nullptr);
    AddGap(bitField.InterchangeableCollection(), L"G", 1);
    m_dumper.throws = true;
    const CapturedLog log;
    EXPECT_THROW(m_dumper.Dump(m_document), std::runtime_error);
    EXPECT_EQ(m_dumper.GetShiftingBlanks(), L"");
    EXPECT_THROW(m_dumper.Dump(m_interchangeables), std::runtime_error);
    EXPECT_EQ(m_dumper.GetShiftingBlanks(), L"");
}

/// Copies itself while it writes the members of a packet.
class CopyingDumper : public Dumper {
public:
    void PreProcessDataObject(VDataObject&) override {
        copy = std::make_unique<CopyingDumper>(*this);
        *assigned = *this;
    }

    CopyingDumper() : assigned(std::make_unique<Dumper>()) {}

    CopyingDumper(const CopyingDumper& other) : Dumper(other) {}

    std::unique_ptr<Dumper> copy;
    std::unique_ptr<Dumper> assigned;
};

TEST_F(VDumperTest, ACopyAndAnAssignedDumperTakeTheIndentationAndThePrefix) {
    AddObject(Named(m_dataTypes.AddNewPacketDataType(), L"P").InterchangeableCollection(), L"D", nullptr);
    AddGap(m_interchangeables, L"G", 8);
    CopyingDumper dumper;
    dumper.VDumper::Dump(m_document);
    EXPECT_EQ(dumper.GetShiftingBlanks(), L"");
    for (Dumper* const taken : {dumper.copy.get(), dumper.assigned.get()}) {
        EXPECT_EQ(taken->GetShiftingBlanks(), L"    ");
        const CapturedLog log;
        taken->Dump(m_interchangeables);
        EXPECT_EQ(log.Lines(), Lines{L"IMPORTDAME DUMP:      GapObject: 'G' has bit length '8'"});
    }
}

} // namespace
