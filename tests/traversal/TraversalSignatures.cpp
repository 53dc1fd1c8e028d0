// Who may call which operation of the visitors and traversers.
#include <ImportDame/ImportDame.h>

using namespace ImportDame;

namespace {

template <class T>
concept VisitsInPublic = requires(T& visitor, VLinearDataType& dataType) {
    visitor.VisitLinearDataType(dataType);
};

template <class T>
concept PreProcessesInPublic = requires(T& traverser, VLinearDataType& dataType) {
    traverser.PreProcessLinearDataType(dataType);
};

template <class T>
concept DescendsInPublic = requires(T& traverser, VLinearDataType& dataType) {
    traverser.DescendLinearDataType(dataType);
};

template <class T>
concept PostProcessesInPublic = requires(T& traverser, VLinearDataType& dataType) {
    traverser.PostProcessLinearDataType(dataType);
};

template <class T>
concept VisitsRangesInPublic = requires(T& traverser, VInvalidRangeCollection& ranges) {
    traverser.VisitInvalidRangeCollection(ranges);
};

template <class T>
concept DescendsToRangesInPublic = requires(T& traverser, VInvalidRangeCollection& ranges) {
    traverser._DescendToInvalidRangeCollection(ranges);
};

static_assert(VisitsInPublic<VDataTypeVisitor> && VisitsInPublic<VDataTypeDefaultVisitor>);
static_assert(!VisitsInPublic<VDataTypeTraverser> && !VisitsInPublic<VDataTypePropertiesVisitor>);
static_assert(!PreProcessesInPublic<VDataTypeTraverser> && PreProcessesInPublic<VDumper>);
static_assert(!DescendsInPublic<VDataTypeTraverser> && !PostProcessesInPublic<VDataTypeTraverser>);
static_assert(!VisitsRangesInPublic<VDataTypeTraverser> && !DescendsToRangesInPublic<VDataTypeTraverser>);

template <class T>
concept VisitsGapsInPublic = requires(T& visitor, VGapObject& gapObject) {
    visitor.VisitGapObject(gapObject);
};

template <class T>
concept PreProcessesGapsInPublic = requires(T& traverser, VGapObject& gapObject) {
    traverser.PreProcessGapObject(gapObject);
};

template <class T>
concept DescendsGapsInPublic = requires(T& traverser, VGapObject& gapObject) {
    traverser.DescendGapObject(gapObject);
};

template <class T>
concept PostProcessesGapsInPublic = requires(T& traverser, VGapObject& gapObject) {
    traverser.PostProcessGapObject(gapObject);
};

using Interchangeables = VInterchangeableTraverser;
static_assert(VisitsGapsInPublic<VInterchangeableVisitor> && !VisitsGapsInPublic<Interchangeables>);
static_assert(!PreProcessesGapsInPublic<Interchangeables> && PreProcessesGapsInPublic<VDumper>);
static_assert(!DescendsGapsInPublic<Interchangeables> && !PostProcessesGapsInPublic<Interchangeables>);

template <class T>
concept PreProcessesDocumentsInPublic = requires(T& traverser, VImportDoc& document) {
    traverser.PreProcessImportDoc(document);
};

template <class T>
concept DescendsDocumentsInPublic = requires(T& traverser, VImportDoc& document) {
    traverser.DescendImportDoc(document);
};

template <class T>
concept HandsOutBlanksInPublic = requires(T& dumper) {
    dumper.GetShiftingBlanks();
};

static_assert(!PreProcessesDocumentsInPublic<VImportDocTraverser> && PreProcessesDocumentsInPublic<VDumper>);
static_assert(!DescendsDocumentsInPublic<VImportDocTraverser> && !HandsOutBlanksInPublic<VDumper>);

} // namespace
