#include <ImportDame/ImportDocTraverser.h>

#include <ImportDame/DataType.h>
#include <ImportDame/DataTypeCollection.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/Interchangeable.h>
#include <ImportDame/InterchangeableCollection.h>

#include "traversal/WalkThrough.h"

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
    detail::WalkThrough(collection, [this](VDataType& dataType) { dataType.Accept(*this); });
}

void VImportDocTraverser::DescendInterchangeableCollection(VInterchangeableCollection& collection) {
    detail::WalkThrough(collection, [this](VInterchangeable& interchangeable) { interchangeable.Accept(*this); });
}

void VImportDocTraverser::PreProcessImportDoc(VImportDoc&) {}

void VImportDocTraverser::PreProcessDataTypeCollection(VDataTypeCollection&) {}

void VImportDocTraverser::PreProcessInterchangeableCollection(VInterchangeableCollection&) {}

void VImportDocTraverser::PostProcessImportDoc(VImportDoc&) {}

void VImportDocTraverser::PostProcessDataTypeCollection(VDataTypeCollection&) {}

void VImportDocTraverser::PostProcessInterchangeableCollection(VInterchangeableCollection&) {}

} // namespace ImportDame
