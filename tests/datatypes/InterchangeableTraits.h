#pragma once

#include "support/CollectionContract.h"

#include <ImportDame/BitField.h>
#include <ImportDame/DataObject.h>
#include <ImportDame/GapObject.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/InterchangeableCollection.h>

template <>
struct TestSupport::CollectionTraits<ImportDame::VInterchangeableCollection> {
    using Element = ImportDame::VInterchangeable;

    struct Exposed : ImportDame::VInterchangeableCollection {
        using VInterchangeableCollection::_Remove;
        using VInterchangeableCollection::VInterchangeableCollection;
    };

    struct Owner {
        ImportDame::VImportDoc document;
        Exposed collection{document};
    };

    /// One kind after the other; the bit fields have a member.
    static Element& AddNew(Exposed& collection) {
        if (collection.Count() % 3 == 1)
            return collection.AddNewDataObject();
        if (collection.Count() % 3 == 2)
            return collection.AddNewGapObject();
        ImportDame::VBitField& bitField = collection.AddNewBitField();
        bitField.InterchangeableCollection().AddNewGapObject();
        return bitField;
    }

    static constexpr bool ordered = true;
    static constexpr bool removeDeletes = true;
    static constexpr std::optional<FailedCheck> removeAbsent =
        FailedCheck{101073, "iter != End()", "InterchangeableCollection.cpp", 148};
    static constexpr std::optional<FailedCheck> removeAtEnd =
        FailedCheck{101075, "iter != End()", "InterchangeableCollection.cpp", 156};
    static constexpr std::optional<FailedCheck> removePositionAtEnd =
        FailedCheck{101076, "iter != m_collection.end()", "InterchangeableCollection.cpp", 164};
};
