#include <ImportDame/DataTypeCollection.h>
#include <ImportDame/DataTypePropertiesVisitor.h>
#include <ImportDame/EndMarkerIterDataType.h>
#include <ImportDame/EndOfServiceIterDataType.h>
#include <ImportDame/FormulaDataType.h>
#include <ImportDame/IdentityDataType.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/LinearDataType.h>
#include <ImportDame/MuxDataType.h>
#include <ImportDame/NumeratorIterDataType.h>
#include <ImportDame/PacketDataType.h>
#include <ImportDame/PiecewiseLinearDataType.h>
#include <ImportDame/ProcedureDataType.h>
#include <ImportDame/StaticIterDataType.h>
#include <ImportDame/TextTableDataType.h>
#include <ImportDame/ValueTableDataType.h>

#include <gtest/gtest.h>

#include <type_traits>
#include <vector>

using namespace ImportDame;

namespace {

static_assert(!std::is_abstract_v<VDataTypePropertiesVisitor>);
static_assert(std::is_base_of_v<VDataTypeVisitor, VDataTypePropertiesVisitor>);
static_assert(std::has_virtual_destructor_v<VDataTypePropertiesVisitor>);

constexpr auto g_text = VProperties::asciiText;
constexpr auto g_number = VProperties::unsignedInteger;

struct Answers {
    bool codedAtom;
    bool physicalAtom;
    bool codedText;
    bool physicalText;

    bool operator==(const Answers&) const = default;
};

class VDataTypePropertiesVisitorTest : public testing::Test {
protected:
    Answers Current() {
        return {m_visitor.IsCodedAtom(), m_visitor.IsPhysicalAtom(), m_visitor.IsCodedText(),
                m_visitor.IsPhysicalText()};
    }

    Answers Evaluate(VDataType& dataType) {
        m_visitor.EvaluateProperties(dataType);
        return Current();
    }

    /// Identity and text table types answer both sides from their coded properties.
    template <class DataType>
    void ExpectAnswersOfTheCodedProperties(DataType& dataType) {
        EXPECT_EQ(Evaluate(dataType), (Answers{true, true, false, false}));
        dataType.CodedProperties().SetEncoding(g_text);
        EXPECT_EQ(Evaluate(dataType), (Answers{true, true, true, true}));
        dataType.CodedProperties().SetQuantity(VProperties::field);
        EXPECT_EQ(Evaluate(dataType), (Answers{false, false, true, true}));
        dataType.CodedProperties().SetEncoding(g_number);
        EXPECT_EQ(Evaluate(dataType), (Answers{false, false, false, false}));
    }

    /// Linear, piecewise linear and value table types answer both texts from their coded atom properties.
    template <class DataType>
    void ExpectAnswersOfTheCodedAtomProperties(DataType& dataType) {
        EXPECT_EQ(Evaluate(dataType), (Answers{true, true, false, false}));
        dataType.PhysicalAtomProperties().SetEncoding(g_text);
        EXPECT_EQ(Evaluate(dataType), (Answers{true, true, false, false}));
        dataType.PhysicalAtomProperties().SetEncoding(g_number);
        dataType.CodedAtomProperties().SetEncoding(g_text);
        EXPECT_EQ(Evaluate(dataType), (Answers{true, true, true, true}));
    }

    VImportDoc m_document;
    VDataTypeCollection& m_dataTypes = m_document.DataTypeCollection();
    VDataTypePropertiesVisitor m_visitor;
};

TEST_F(VDataTypePropertiesVisitorTest, AnswersFalseToEverythingAtFirst) {
    EXPECT_EQ(Current(), (Answers{false, false, false, false}));
}

TEST_F(VDataTypePropertiesVisitorTest, AnIdentityTypeAnswersFromItsCodedProperties) {
    ExpectAnswersOfTheCodedProperties(m_dataTypes.AddNewIdentityDataType());
}

TEST_F(VDataTypePropertiesVisitorTest, ATextTableTypeAnswersFromItsCodedPropertiesAlsoForItsPhysicalText) {
    ExpectAnswersOfTheCodedProperties(m_dataTypes.AddNewTextTableDataType());
}

TEST_F(VDataTypePropertiesVisitorTest, ALinearTypeAnswersFromItsCodedAtomProperties) {
    ExpectAnswersOfTheCodedAtomProperties(m_dataTypes.AddNewLinearDataType());
}

TEST_F(VDataTypePropertiesVisitorTest, APiecewiseLinearTypeAnswersFromItsCodedAtomProperties) {
    ExpectAnswersOfTheCodedAtomProperties(m_dataTypes.AddNewPiecewiseLinearDataType());
}

TEST_F(VDataTypePropertiesVisitorTest, AValueTableTypeAnswersFromItsCodedAtomProperties) {
    ExpectAnswersOfTheCodedAtomProperties(m_dataTypes.AddNewValueTableDataType());
}

TEST_F(VDataTypePropertiesVisitorTest, AFormulaTypeIsAtomicAndAnswersEachTextFromItsOwnSide) {
    VFormulaDataType& formula = m_dataTypes.AddNewFormulaDataType();
    EXPECT_EQ(Evaluate(formula), (Answers{true, true, false, false}));
    formula.PhysicalAtomProperties().SetEncoding(g_text);
    EXPECT_EQ(Evaluate(formula), (Answers{true, true, false, true}));
    formula.CodedAtomProperties().SetEncoding(g_text);
    formula.PhysicalAtomProperties().SetEncoding(g_number);
    EXPECT_EQ(Evaluate(formula), (Answers{true, true, true, false}));
}

TEST_F(VDataTypePropertiesVisitorTest, AProcedureTypeAnswersEverythingFromEachSide) {
    VProcedureDataType& procedure = m_dataTypes.AddNewProcedureDataType();
    EXPECT_EQ(Evaluate(procedure), (Answers{true, true, false, false}));
    procedure.CodedProperties().SetQuantity(VProperties::field);
    EXPECT_EQ(Evaluate(procedure), (Answers{false, true, false, false}));
    procedure.PhysicalProperties().SetQuantity(VProperties::field);
    procedure.CodedProperties().SetQuantity(VProperties::atomic);
    EXPECT_EQ(Evaluate(procedure), (Answers{true, false, false, false}));
    procedure.CodedProperties().SetEncoding(g_text);
    EXPECT_EQ(Evaluate(procedure), (Answers{true, false, true, false}));
    procedure.PhysicalProperties().SetEncoding(VProperties::unicodeText);
    procedure.CodedProperties().SetEncoding(g_number);
    EXPECT_EQ(Evaluate(procedure), (Answers{true, false, false, true}));
}

TEST_F(VDataTypePropertiesVisitorTest, AnEncodingThatIsNeitherNumberNorTextIsNoText) {
    VIdentityDataType& identity = m_dataTypes.AddNewIdentityDataType();
    identity.CodedProperties().SetEncoding(VProperties::byteField);
    EXPECT_EQ(Evaluate(identity), (Answers{true, true, false, false}));
}

TEST_F(VDataTypePropertiesVisitorTest, AQuantityBeyondTheNamedOnesIsNoAtom) {
    VIdentityDataType& identity = m_dataTypes.AddNewIdentityDataType();
    identity.CodedProperties().SetQuantity(static_cast<VProperties::VQuantity>(2));
    EXPECT_EQ(Evaluate(identity), (Answers{false, false, false, false}));
}

TEST_F(VDataTypePropertiesVisitorTest, PacketKindsLeaveTheAnswersAsTheyWere) {
    VDataType* const packets[] = {&m_document.MakePacketDataType(),           &m_document.MakeMuxDataType(),
                                  &m_document.MakeStaticIterDataType(),       &m_document.MakeNumeratorIterDataType(),
                                  &m_document.MakeEndOfServiceIterDataType(), &m_document.MakeEndMarkerIterDataType()};
    for (VDataType* const packet : packets) {
        m_dataTypes.AppendDataType(*packet);
        EXPECT_EQ(Evaluate(*packet), (Answers{false, false, false, false}));
    }
    VLinearDataType& linear = m_dataTypes.AddNewLinearDataType();
    linear.CodedAtomProperties().SetEncoding(g_text);
    Evaluate(linear);
    for (VDataType* const packet : packets)
        EXPECT_EQ(Evaluate(*packet), (Answers{true, true, true, true}));
}

TEST_F(VDataTypePropertiesVisitorTest, ACopyAndAnAssignedVisitorTakeAllFourAnswers) {
    VProcedureDataType& procedure = m_dataTypes.AddNewProcedureDataType();
    procedure.PhysicalProperties().SetQuantity(VProperties::field);
    procedure.CodedProperties().SetEncoding(g_text);
    Evaluate(procedure);
    VDataTypePropertiesVisitor copy(m_visitor);
    VDataTypePropertiesVisitor assigned;
    assigned = m_visitor;
    m_visitor.EvaluateProperties(m_dataTypes.AddNewFormulaDataType());
    for (VDataTypePropertiesVisitor* const visitor : {&copy, &assigned}) {
        EXPECT_TRUE(visitor->IsCodedAtom());
        EXPECT_FALSE(visitor->IsPhysicalAtom());
        EXPECT_TRUE(visitor->IsCodedText());
        EXPECT_FALSE(visitor->IsPhysicalText());
    }
}

TEST_F(VDataTypePropertiesVisitorTest, EvaluatingDispatchesTheDataType) {
    struct Dispatching : VDataTypePropertiesVisitor {
        void DispatchDataType(VDataType& dataType) override { dispatched.push_back(&dataType); }

        std::vector<VDataType*> dispatched;
    };

    Dispatching visitor;
    VLinearDataType& linear = m_dataTypes.AddNewLinearDataType();
    visitor.EvaluateProperties(linear);
    EXPECT_EQ(visitor.dispatched, std::vector<VDataType*>{&linear});
    EXPECT_FALSE(visitor.IsCodedAtom());
}

TEST_F(VDataTypePropertiesVisitorTest, TheDataTypeItselfNeverTells) {
    VTextTableDataType& textTable = m_dataTypes.AddNewTextTableDataType();
    textTable.CodedProperties().SetEncoding(g_text);
    EXPECT_EQ(Evaluate(textTable), (Answers{true, true, true, true}));
    EXPECT_FALSE(textTable.IsCodedAtom() || textTable.IsPhysicalAtom());
    EXPECT_FALSE(textTable.IsCodedText() || textTable.IsPhysicalText());
}

} // namespace
