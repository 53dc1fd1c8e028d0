#ifndef SQLITEBACKEND_ENUMERATIONS_H
#define SQLITEBACKEND_ENUMERATIONS_H

#include "store/Insert.h"

namespace SqliteBackend {

/// The names of the numbers that the other tables store for enumerations.
class Enumerations {
public:
    static const char* const schema;

    Enumerations(Connection& connection, Tally& tally);

    void Write();

private:
    Insert m_names;
};

} // namespace SqliteBackend

#endif
