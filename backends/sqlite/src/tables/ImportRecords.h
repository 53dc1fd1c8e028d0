#ifndef SQLITEBACKEND_IMPORTRECORDS_H
#define SQLITEBACKEND_IMPORTRECORDS_H

#include "SqliteBackend/ImportRecord.h"
#include "store/Insert.h"

namespace SqliteBackend {

/// How the document came about.
class ImportRecords {
public:
    static const char* const schema;

    ImportRecords(Connection& connection, Tally& tally);

    void Write(const ImportRecord& record);
    /// What became of the document on its way here; the last rows of all.
    void WriteLosses();

private:
    void Write(const LedgerRecord& ledger);
    void Write(const DiagnosticRecord& diagnostic);

    const Tally& m_tally;
    Insert m_facts;
    Insert m_inputs;
    Insert m_diagnostics;
    Insert m_unlisted;
    Insert m_ledger;
    Insert m_ledgerReasons;
};

} // namespace SqliteBackend

#endif
