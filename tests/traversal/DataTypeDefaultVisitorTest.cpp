#include "traversal/RecordingTraverser.h"

#include <ImportDame/DataTypeDefaultVisitor.h>

#include <gtest/gtest.h>

#include <type_traits>
#include <vector>

using namespace ImportDame;

namespace {

static_assert(std::is_abstract_v<VDataTypeDefaultVisitor> && std::has_virtual_destructor_v<VDataTypeDefaultVisitor>);
static_assert(std::is_base_of_v<VDataTypeVisitor, VDataTypeDefaultVisitor>);

class Visitor : public VDataTypeDefaultVisitor {
public:
    void VisitDataType(VDataType& dataType) override { visited.push_back(&dataType); }

    std::vector<VDataType*> visited;
};

/// Handles one kind by itself.
class LinearVisitor : public Visitor {
public:
    void VisitLinearDataType(VLinearDataType& dataType) override { linear.push_back(&dataType); }

    std::vector<VDataType*> linear;
};

/// One data type of each of the thirteen kinds.
std::vector<VDataType*> AddDataTypes(VImportDoc& document) {
    const std::vector<VDataType*> dataTypes{
        &document.MakeIdentityDataType(),      &document.MakeTextTableDataType(),
        &document.MakeLinearDataType(),        &document.MakePiecewiseLinearDataType(),
        &document.MakeValueTableDataType(),    &document.MakeFormulaDataType(),
        &document.MakeProcedureDataType(),     &document.MakePacketDataType(),
        &document.MakeMuxDataType(),           &document.MakeStaticIterDataType(),
        &document.MakeNumeratorIterDataType(), &document.MakeEndOfServiceIterDataType(),
        &document.MakeEndMarkerIterDataType()};
    for (VDataType* const dataType : dataTypes)
        document.DataTypeCollection().AppendDataType(*dataType);
    return dataTypes;
}

TEST(VDataTypeDefaultVisitorTest, ReceivesEveryKindInOneOperation) {
    VImportDoc document;
    const std::vector<VDataType*> dataTypes = AddDataTypes(document);
    Visitor visitor;
    for (VDataType* const dataType : dataTypes)
        visitor.DispatchDataType(*dataType);
    EXPECT_EQ(visitor.visited, dataTypes);
}

TEST(VDataTypeDefaultVisitorTest, AKindThatTheSubclassVisitsItselfDoesNotArriveThere) {
    VImportDoc document;
    std::vector<VDataType*> dataTypes = AddDataTypes(document);
    LinearVisitor visitor;
    for (VDataType* const dataType : dataTypes)
        dataType->Accept(visitor);
    EXPECT_EQ(visitor.linear, std::vector<VDataType*>{dataTypes[2]});
    dataTypes.erase(dataTypes.begin() + 2);
    EXPECT_EQ(visitor.visited, dataTypes);
}

TEST(VDataTypeDefaultVisitorTest, CanBeCopiedAndAssigned) {
    VImportDoc document;
    VLinearDataType& dataType = document.DataTypeCollection().AddNewLinearDataType();
    Visitor visitor;
    visitor.DispatchDataType(dataType);
    Visitor copy(visitor);
    copy.DispatchDataType(dataType);
    visitor = copy;
    EXPECT_EQ(visitor.visited, (std::vector<VDataType*>{&dataType, &dataType}));
}

} // namespace
