#pragma once

#include <ImportDame/DataTypeTraverser.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/InterchangeableTraverser.h>

namespace ImportDame {

/// Walks a document: its data types, then its interchangeables, each collection with hooks of its own. Nothing else of
/// the document is entered.
class IMPORTDAME_API VImportDocTraverser : public VDataTypeTraverser, public VInterchangeableTraverser {
public:
    VImportDocTraverser() = default;
    VImportDocTraverser(const VImportDocTraverser&) = default;
    VImportDocTraverser& operator=(const VImportDocTraverser&) = default;
    ~VImportDocTraverser() override;

    /// Walks the whole document.
    virtual void Traverse(VImportDoc& importDoc);

    /// Each calls its pre-process hook, its descend hook and its post-process hook.
    virtual void VisitImportDoc(VImportDoc& importDoc);
    virtual void VisitDataTypeCollection(VDataTypeCollection& collection);
    virtual void VisitInterchangeableCollection(VInterchangeableCollection& collection);

protected:
    virtual void DescendImportDoc(VImportDoc& importDoc);
    virtual void DescendDataTypeCollection(VDataTypeCollection& collection);
    virtual void DescendInterchangeableCollection(VInterchangeableCollection& collection);

    virtual void PreProcessImportDoc(VImportDoc& importDoc);
    virtual void PreProcessDataTypeCollection(VDataTypeCollection& collection);
    virtual void PreProcessInterchangeableCollection(VInterchangeableCollection& collection);

    virtual void PostProcessImportDoc(VImportDoc& importDoc);
    virtual void PostProcessDataTypeCollection(VDataTypeCollection& collection);
    virtual void PostProcessInterchangeableCollection(VInterchangeableCollection& collection);
};

} // namespace ImportDame
