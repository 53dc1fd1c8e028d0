/// @file
/// What the collections of this folder have in common, for the contract of all collections.
#pragma once

#include "support/CollectionContract.h"

#include <ImportDame/ImportDoc.h>
#include <ImportDame/RecordItem.h>
#include <ImportDame/RecordItemCollection.h>
#include <ImportDame/TroubleCode.h>
#include <ImportDame/TroubleCodeCollection.h>
#include <ImportDame/TroubleCodeCollectionCollection.h>

#include <optional>

namespace TestSupport {

struct ExposedRecord : ImportDame::VRecordItemCollection {
    using VRecordItemCollection::_Insert;
    using VRecordItemCollection::_Remove;
};

struct ExposedTroubleCodes : ImportDame::VTroubleCodeCollection {
    using VTroubleCodeCollection::_Insert;
    using VTroubleCodeCollection::_Remove;
    using VTroubleCodeCollection::VTroubleCodeCollection;
};

struct ExposedSources : ImportDame::VTroubleCodeCollectionCollection {
    using VTroubleCodeCollectionCollection::_Insert;
    using VTroubleCodeCollectionCollection::_Remove;
    using VTroubleCodeCollectionCollection::VTroubleCodeCollectionCollection;
};

template <>
struct CollectionTraits<ImportDame::VRecordItemCollection> {
    using Element = ImportDame::VRecordItem;

    struct Owner {
        ExposedRecord collection;
    };

    static Element& AddNew(ExposedRecord& collection) { return collection.AddNewRecordItem(); }

    static constexpr bool ordered = true;
    static constexpr bool removeDeletes = true;
    static constexpr std::optional<FailedCheck> removeAbsent =
        FailedCheck{102011, "iter != End()", "RecordItemCollection.cpp", 145};
    static constexpr std::optional<FailedCheck> removeAtEnd =
        FailedCheck{102012, "iter != End()", "RecordItemCollection.cpp", 155};
    static constexpr std::optional<FailedCheck> removePositionAtEnd =
        FailedCheck{102013, "iter != m_collection.end()", "RecordItemCollection.cpp", 165};
};

template <>
struct CollectionTraits<ImportDame::VTroubleCodeCollection> {
    using Element = ImportDame::VTroubleCode;

    struct Owner {
        ImportDame::VImportDoc document;
        ExposedTroubleCodes collection{document};
    };

    static Element& AddNew(ExposedTroubleCodes& collection) { return collection.AppendNew(); }

    static constexpr bool ordered = true;
    static constexpr bool removeDeletes = true;
    static constexpr std::optional<FailedCheck> removeAbsent =
        FailedCheck{102026, "iter != End()", "TroubleCodeCollection.cpp", 237};
    static constexpr std::optional<FailedCheck> removeAtEnd =
        FailedCheck{102027, "iter != End()", "TroubleCodeCollection.cpp", 247};
    static constexpr std::optional<FailedCheck> removePositionAtEnd =
        FailedCheck{102028, "iter != m_collection.end()", "TroubleCodeCollection.cpp", 257};
};

template <>
struct CollectionTraits<ImportDame::VTroubleCodeCollectionCollection> {
    using Element = ImportDame::VTroubleCodeCollection;

    struct Owner {
        ImportDame::VImportDoc document;
        ExposedSources collection{document};
    };

    static Element& AddNew(ExposedSources& collection) { return collection.AppendNew(); }

    static constexpr bool ordered = true;
    static constexpr bool removeDeletes = true;
    static constexpr std::optional<FailedCheck> removeAbsent =
        FailedCheck{102029, "iter != End()", "TroubleCodeCollectionCollection.cpp", 282};
    static constexpr std::optional<FailedCheck> removeAtEnd =
        FailedCheck{102030, "iter != End()", "TroubleCodeCollectionCollection.cpp", 292};
    static constexpr std::optional<FailedCheck> removePositionAtEnd =
        FailedCheck{102031, "iter != m_collection.end()", "TroubleCodeCollectionCollection.cpp", 302};
};

} // namespace TestSupport
