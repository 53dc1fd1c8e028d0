#pragma once

#include "support/CollectionContract.h"

#include <ImportDame/Case.h>
#include <ImportDame/CaseCollection.h>
#include <ImportDame/ImportDoc.h>

template <>
struct TestSupport::CollectionTraits<ImportDame::VCaseCollection> {
    using Element = ImportDame::VCase;

    struct Owner {
        ImportDame::VImportDoc document;
        ImportDame::VCaseCollection collection{document};
    };

    static Element& AddNew(ImportDame::VCaseCollection& collection) { return collection.AddNewCase(); }

    static constexpr bool ordered = true;
    static constexpr bool removeDeletes = false;
    static constexpr std::optional<FailedCheck> removeAbsent = std::nullopt;
    static constexpr std::optional<FailedCheck> removeAtEnd = std::nullopt;
    static constexpr std::optional<FailedCheck> removePositionAtEnd = std::nullopt;
};
