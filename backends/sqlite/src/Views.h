#ifndef SQLITEBACKEND_VIEWS_H
#define SQLITEBACKEND_VIEWS_H

namespace SqliteBackend {

/// The statements that create the views for the usual questions.
extern const char* const views;

} // namespace SqliteBackend

#endif
