/// Breaks the precondition behind every check that can fail.

#include "support/FailedCheck.h"

#include <ImportDame/FailureReport.h>
#include <ImportDame/ImportDame.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string_view>
#include <type_traits>
#include <vector>

using namespace ImportDame;

namespace {

struct Case {
    std::string_view sourceFile;
    int line;
    std::function<void(VImportDoc&)> breakPrecondition;
};

using Cases = std::vector<Case>;

template <class Collection>
struct Exposed : Collection {
    using Collection::_Remove;
    using Collection::Collection;
};

/// A collection, of the document where it belongs to one.
template <class Collection>
Collection Make(VImportDoc& document) {
    if constexpr (std::is_constructible_v<Collection, VImportDoc&>)
        return Collection(document);
    else
        return Collection();
}

/// An element of another collection is removed.
template <class Collection, class Add>
void AddForeign(Cases& cases, std::string_view sourceFile, int line, Add add) {
    cases.push_back({sourceFile, line, [=](VImportDoc& document) {
                         auto collection = Make<Collection>(document);
                         auto other = Make<Collection>(document);
                         add(collection);
                         collection.Remove(add(other));
                     }});
}

/// The same, and the end is removed in both ways.
template <class Collection, class Add>
void AddRemovals(Cases& cases, std::string_view sourceFile, int element, int iterator, int position, Add add) {
    AddForeign<Collection>(cases, sourceFile, element, add);
    cases.push_back({sourceFile, iterator, [=](VImportDoc& document) {
                         auto collection = Make<Collection>(document);
                         add(collection);
                         collection.Remove(collection.End());
                     }});
    cases.push_back({sourceFile, position, [=](VImportDoc& document) {
                         auto collection = Make<Exposed<Collection>>(document);
                         add(collection);
                         collection._Remove(collection.End().Unwrap());
                     }});
}

Cases RemovalsThatDelete() {
    Cases cases;
    AddRemovals<VAttributeCollection>(
        cases, "AttributeCollection.cpp", 159, 167, 175, [](auto& each) -> auto& { return each.AddNewAttribute(); });
    AddRemovals<VDataTypeCollection>(
        cases, "DataTypeCollection.cpp", 147, 155, 163,
        [](auto& each) -> auto& { return each.AddNewLinearDataType(); });
    AddRemovals<VDiagCommCollection>(
        cases, "DiagCommCollection.cpp", 121, 129, 137, [](auto& each) -> auto& { return each.AddNewDiagJob(); });
    AddRemovals<VDiagServiceShapeCollection>(
        cases, "DiagServiceShapeCollection.cpp", 122, 130, 138,
        [](auto& each) -> auto& { return each.AddNewDiagServiceShape(); });
    AddRemovals<VEcuVariantCollection>(
        cases, "EcuVariantCollection.cpp", 138, 148, 158, [](auto& each) -> auto& { return each.AddNewEcuVariant(); });
    AddRemovals<VInterchangeableCollection>(
        cases, "InterchangeableCollection.cpp", 148, 156, 164,
        [](auto& each) -> auto& { return each.AddNewGapObject(); });
    AddRemovals<VRecordItemCollection>(
        cases, "RecordItemCollection.cpp", 145, 155, 165, [](auto& each) -> auto& { return each.AddNewRecordItem(); });
    AddRemovals<VTroubleCodeCollection>(
        cases, "TroubleCodeCollection.cpp", 237, 247, 257, [](auto& each) -> auto& { return each.AppendNew(); });
    AddRemovals<VTroubleCodeCollectionCollection>(
        cases, "TroubleCodeCollectionCollection.cpp", 282, 292, 302,
        [](auto& each) -> auto& { return each.AppendNew(); });
    return cases;
}

Cases RemovalsThatHandBack() {
    Cases cases;
    AddForeign<VAdditionalFileCollection>(
        cases, "AdditionalFileCollection.cpp", 98, [](auto& each) -> auto& { return each.AddNewAdditionalFile(); });
    AddForeign<VFunctionCollection>(
        cases, "FunctionCollection.cpp", 98, [](auto& each) -> auto& { return each.AddNewFunction(); });
    AddForeign<VLinearConversionCollection>(
        cases, "LinearConversionCollection.cpp", 99, [](auto& each) -> auto& { return each.AddNewLinearConversion(); });
    cases.push_back({"InvalidRangeCollection.cpp", 92, [](VImportDoc& document) {
                         VLinearDataType dataType(document.DataTypeCollection());
                         VInvalidRange foreign;
                         dataType.InvalidRangeCollection().Remove(foreign);
                     }});
    return cases;
}

Cases AbsentValues() {
    return {
        {"Conversion.cpp", 57, [](VImportDoc&) { VConversion().GetCompuInverseValue(); }},
        {"DataObject.cpp", 63, [](VImportDoc& document) { VDataObject(document).GetDefaultValue(); }},
        {"DataObject.cpp", 80, [](VImportDoc& document) { VDataObject(document).GetConstValue(); }},
        {"DataObject.cpp", 97, [](VImportDoc& document) { VDataObject(document).GetSelectorDataObject(); }},
        {"PacketDataType.cpp", 73,
         [](VImportDoc& document) { VPacketDataType(document.DataTypeCollection()).GetDid(); }},
        {"Range.cpp", 52, [](VImportDoc&) { VRange().GetStartValue(); }},
        {"Range.cpp", 69, [](VImportDoc&) { VRange().GetEndValue(); }},
        {"ServiceMapping.cpp", 180, [](VImportDoc&) { VServiceMapping().GetDtcPoolType(); }},
        {"Text.cpp", 69, [](VImportDoc&) { VText().GetTextId(); }},
        {"Unit.cpp", 74, [](VImportDoc& document) { VUnit(document).SetDisplayName(nullptr); }},
        {"Variant.cpp", 63, [](VImportDoc& document) { VEcuVariant(document).SetTargetVariantQualifier(nullptr); }},
        {"Variant.cpp", 87,
         [](VImportDoc& document) { VEcuVariant(document).SetReferenceFromVariantQualifier(nullptr); }},
    };
}

Cases AbsentSelectorsAndPositions() {
    Cases cases;
    const auto add = [&]<class DataType>(std::string_view sourceFile, int line, auto operation, DataType*) {
        cases.push_back({sourceFile, line, [=](VImportDoc& document) {
                             DataType dataType(document.DataTypeCollection());
                             operation(dataType);
                         }});
    };
    VMuxDataType* const mux = nullptr; // names the type only
    add(
        "MuxDataType.cpp", 93, [](auto& each) { each.GetSelectorDataType(); }, mux);
    add(
        "MuxDataType.cpp", 116, [](auto& each) { each.GetMuxStartBitPosition(); }, mux);
    add(
        "MuxDataType.cpp", 151, [](auto& each) { each.GetSelectorStartBitPosition(); }, mux);
    VNumeratorIterDataType* const numerator = nullptr;
    add(
        "NumeratorIterDataType.cpp", 79, [](auto& each) { each.GetSelectorDataType(); }, numerator);
    add(
        "NumeratorIterDataType.cpp", 102, [](auto& each) { each.GetContentStartBitPosition(); }, numerator);
    add(
        "NumeratorIterDataType.cpp", 137, [](auto& each) { each.GetSelectorStartBitPosition(); }, numerator);
    return cases;
}

Cases IndicesOutOfRange() {
    return {
        {"RecordTemplateMapping.cpp", 176, [](VImportDoc&) { VRecordTemplateMapping().GetItemMapping(0); }},
        {"RecordTemplateMapping.cpp", 212,
         [](VImportDoc&) {
             VItemMapping mapping;
             VRecordTemplateMapping().OverwriteItemMapping(0, mapping);
         }},
        {"TroubleCode.cpp", 154, [](VImportDoc& document) { VTroubleCode(document).Item(0); }},
        {"TroubleCode.cpp", 164, [](VImportDoc& document) { VTroubleCode(document).GetItem(0); }},
        {"TroubleCode.cpp", 229, [](VImportDoc& document) { VTroubleCode(document).OverwriteItem(0, VText(L"x")); }},
        {"TroubleCode.cpp", 240, [](VImportDoc& document) { VTroubleCode(document).OverwriteItem(0, L"x"); }},
        {"TroubleCodeCollectionCollection.cpp", 327,
         [](VImportDoc& document) { document.TroubleCodeCollectionCollection()[0]; }},
        {"TroubleCodeCollectionCollection.cpp", 344,
         [](VImportDoc& document) {
             VTroubleCodeCollection foreign(document);
             document.TroubleCodeCollectionCollection().GetIndex(foreign);
         }},
    };
}

Cases OtherRepresentations() {
    Cases cases;
    const auto add = [&](int line, bool isField, auto operation) {
        cases.push_back({"Value.cpp", line, [=](VImportDoc&) {
                             VValue value;
                             if (isField)
                                 value.SetTextField(L"ab");
                             operation(value);
                         }});
    };
    add(156, true, [](VValue& value) { value.Get(); });
    add(162, true, [](VValue& value) { value.GetAsDouble(); });
    add(179, false, [](VValue& value) { value.GetElement(0); });
    add(187, false, [](VValue& value) { value.GetFieldSize(); });
    add(193, false, [](VValue& value) { value.IsFieldEmpty(); });
    add(199, false, [](VValue& value) { value.ClearField(); });
    return cases;
}

Cases AllCases() {
    Cases all;
    for (auto make : {RemovalsThatDelete, RemovalsThatHandBack, AbsentValues, AbsentSelectorsAndPositions,
                      IndicesOutOfRange, OtherRepresentations}) {
        const Cases some = make();
        all.insert(all.end(), some.begin(), some.end());
    }
    return all;
}

/// Behind a check of the index in the same operation, so that the look-up cannot miss; and a quantity that no operation
/// stores.
bool CannotFail(const VCheckSite& site) {
    const std::string_view sourceFile = site.sourceFile;
    return (sourceFile == "TroubleCode.cpp" && (site.line == 204 || site.line == 231 || site.line == 242)) ||
           (sourceFile == "Value.cpp" && site.line == 213);
}

TEST(EveryCheckTest, FailsWhenItsPreconditionIsBrokenAndReportsItsOwnRow) {
    const Cases cases = AllCases();
    std::size_t broken = 0;
    for (const VCheckSite& site : GetCheckSites()) {
        if (CannotFail(site))
            continue;
        SCOPED_TRACE(std::string(site.sourceFile) + ":" + std::to_string(site.line));
        const auto found = std::find_if(cases.begin(), cases.end(), [&](const Case& each) {
            return each.sourceFile == site.sourceFile && each.line == site.line;
        });
        ASSERT_TRUE(found != cases.end());
        VImportDoc document;
        TestSupport::ExpectFailedCheck({site.errorCode, site.expression, site.sourceFile, site.line},
                                       [&] { found->breakPrecondition(document); });
        ++broken;
    }
    EXPECT_EQ(broken, 63U);
    EXPECT_EQ(cases.size(), 63U);
}

} // namespace
