#ifndef SQLITEBACKEND_DOCUMENT_H
#define SQLITEBACKEND_DOCUMENT_H

#include "store/Insert.h"
#include "tables/Attributes.h"

#include <ImportDame/Fwd.h>

namespace SqliteBackend {

/// The document's own texts, and its units.
class Document {
public:
    static const char* const schema;

    Document(Connection& connection, Tally& tally, Attributes& attributes);

    void Write(ImportDame::VImportDoc& document);

private:
    Attributes& m_attributes;
    Insert m_document;
    Insert m_units;
};

} // namespace SqliteBackend

#endif
