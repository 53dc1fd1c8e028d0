#include <ImportDame/ImportDocTraverser.h>

#include <ImportDame/DataType.h>
#include <ImportDame/DataTypeCollection.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/Interchangeable.h>
#include <ImportDame/InterchangeableCollection.h>

namespace ImportDame {

VImportDocTraverser::~VImportDocTraverser() = default;

void VImportDocTraverser::Traverse(VImportDoc& importDoc) {
    importDoc.Accept(*this);
}

void VImportDocTraverser::VisitImportDoc(VImportDoc& importDoc) {
    PreProcessImportDoc(importDoc);
    DescendImportDoc(importDoc);
    PostProcessImportDoc(importDoc);
}

void VImportDocTraverser::VisitDataTypeCollection(VDataTypeCollection& collection) {
    PreProcessDataTypeCollection(collection);
    DescendDataTypeCollection(collection);
    PostProcessDataTypeCollection(collection);
}

void VImportDocTraverser::VisitInterchangeableCollection(VInterchangeableCollection& collection) {
    PreProcessInterchangeableCollection(collection);
    DescendInterchangeableCollection(collection);
    PostProcessInterchangeableCollection(collection);
}

void VImportDocTraverser::DescendImportDoc(VImportDoc& importDoc) {
    VisitDataTypeCollection(importDoc.DataTypeCollection());
    VisitInterchangeableCollection(importDoc.InterchangeableCollection());
}

void VImportDocTraverser::DescendDataTypeCollection(VDataTypeCollection& collection) {
    using Position =
        detail::FetchingIterator<VDataTypeCollection::iterator, 64>; // hooks may read nothing of a data type
    const Position end = collection.End();
    for (Position position(collection.Begin(), end); position != end; ++position)
        (*position).Accept(*this);
}

void VImportDocTraverser::DescendInterchangeableCollection(VInterchangeableCollection& collection) {
    for (VInterchangeable& interchangeable : collection)
        interchangeable.Accept(*this);
}

void VImportDocTraverser::PreProcessImportDoc(VImportDoc&) {}

void VImportDocTraverser::PreProcessDataTypeCollection(VDataTypeCollection&) {}

void VImportDocTraverser::PreProcessInterchangeableCollection(VInterchangeableCollection&) {}

void VImportDocTraverser::PostProcessImportDoc(VImportDoc&) {}

void VImportDocTraverser::PostProcessDataTypeCollection(VDataTypeCollection&) {}

void VImportDocTraverser::PostProcessInterchangeableCollection(VInterchangeableCollection&) {}

} // namespace ImportDame
