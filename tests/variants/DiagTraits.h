#pragma once

#include "support/CollectionContract.h"

#include <ImportDame/DiagCommCollection.h>
#include <ImportDame/DiagJob.h>
#include <ImportDame/DiagService.h>
#include <ImportDame/DiagServiceShape.h>
#include <ImportDame/DiagServiceShapeCollection.h>
#include <ImportDame/ImportDoc.h>

template <>
struct TestSupport::CollectionTraits<ImportDame::VDiagCommCollection> {
    using Element = ImportDame::VDiagComm;

    struct Exposed : ImportDame::VDiagCommCollection {
        using VDiagCommCollection::_Remove;
        using VDiagCommCollection::Find;
        using VDiagCommCollection::VDiagCommCollection;
    };

    struct Owner {
        ImportDame::VImportDoc document;
        Exposed collection{document};
    };

    /// Services and jobs in turn.
    static Element& AddNew(Exposed& collection) {
        if (collection.Count() % 2 == 0)
            return collection.AddNewDiagService();
        return collection.AddNewDiagJob();
    }

    static constexpr bool ordered = true;
    static constexpr bool removeDeletes = true;
    static constexpr std::optional<FailedCheck> removeAbsent =
        FailedCheck{101060, "iter != End()", "DiagCommCollection.cpp", 121};
    static constexpr std::optional<FailedCheck> removeAtEnd =
        FailedCheck{101061, "iter != End()", "DiagCommCollection.cpp", 129};
    static constexpr std::optional<FailedCheck> removePositionAtEnd =
        FailedCheck{101062, "iter != m_collection.end()", "DiagCommCollection.cpp", 137};
};

template <>
struct TestSupport::CollectionTraits<ImportDame::VDiagServiceShapeCollection> {
    using Element = ImportDame::VDiagServiceShape;

    struct Exposed : ImportDame::VDiagServiceShapeCollection {
        using VDiagServiceShapeCollection::_Remove;
        using VDiagServiceShapeCollection::Find;
        using VDiagServiceShapeCollection::VDiagServiceShapeCollection;
    };

    struct Owner {
        ImportDame::VImportDoc document;
        Exposed collection{document};
    };

    static Element& AddNew(Exposed& collection) { return collection.AddNewDiagServiceShape(); }

    static constexpr bool ordered = true;
    static constexpr bool removeDeletes = true;
    static constexpr std::optional<FailedCheck> removeAbsent =
        FailedCheck{101062, "iter != End()", "DiagServiceShapeCollection.cpp", 122};
    static constexpr std::optional<FailedCheck> removeAtEnd =
        FailedCheck{101063, "iter != End()", "DiagServiceShapeCollection.cpp", 130};
    static constexpr std::optional<FailedCheck> removePositionAtEnd =
        FailedCheck{101064, "iter != m_collection.end()", "DiagServiceShapeCollection.cpp", 138};
};
