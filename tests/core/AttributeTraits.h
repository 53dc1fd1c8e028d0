#pragma once

#include "support/CollectionContract.h"

#include <ImportDame/Attribute.h>
#include <ImportDame/AttributeCollection.h>
#include <ImportDame/ImportDoc.h>

template <>
struct TestSupport::CollectionTraits<ImportDame::VAttributeCollection> {
    using Element = ImportDame::VAttribute;

    struct Exposed : ImportDame::VAttributeCollection {
        using VAttributeCollection::_Remove;
        using VAttributeCollection::VAttributeCollection;
    };

    struct Owner {
        ImportDame::VImportDoc document;
        Exposed collection{document};
    };

    static Element& AddNew(Exposed& collection) { return collection.AddNewAttribute(); }

    static constexpr bool ordered = true;
    static constexpr bool removeDeletes = true;
    static constexpr std::optional<FailedCheck> removeAbsent =
        FailedCheck{101049, "iter != End()", "AttributeCollection.cpp", 159};
    static constexpr std::optional<FailedCheck> removeAtEnd =
        FailedCheck{101050, "iter != End()", "AttributeCollection.cpp", 167};
    static constexpr std::optional<FailedCheck> removePositionAtEnd =
        FailedCheck{101051, "iter != m_collection.end()", "AttributeCollection.cpp", 175};
};
