#ifndef SQLITEBACKEND_SCHEMA_H
#define SQLITEBACKEND_SCHEMA_H

#include "store/Connection.h"

namespace SqliteBackend {

/// Changes whenever a table, a column or a view does; stored as `PRAGMA user_version`.
inline constexpr int schemaVersion = 1;

void CreateTables(Connection& connection);

/// Indexes and views: what is cheaper to make when the rows are there.
void CreateIndexesAndViews(Connection& connection);

} // namespace SqliteBackend

#endif
