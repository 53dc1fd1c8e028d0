#ifndef SQLITEBACKEND_WRITEERROR_H
#define SQLITEBACKEND_WRITEERROR_H

#include <stdexcept>
#include <string>

namespace SqliteBackend {

/// A database that could not be written. `what()` is UTF-8 and names the file and the cause.
class WriteError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace SqliteBackend

#endif
