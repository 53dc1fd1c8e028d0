#ifndef SQLITEBACKEND_WRITEERROR_H
#define SQLITEBACKEND_WRITEERROR_H

#include <stdexcept>
#include <string>

namespace SqliteBackend {

/// A database that could not be written. `what()` is UTF-8 and names the file and the cause.
class WriteError : public std::runtime_error {
public:
    explicit WriteError(const std::string& what) : std::runtime_error(what) {}

    /// `advice` is a literal.
    WriteError(const std::string& what, const char* advice) : std::runtime_error(what), m_advice(advice) {}

    /// What to do about it.
    const char* Advice() const noexcept { return m_advice; }

private:
    const char* m_advice = "See whether the folder is there, may be written and has room.";
};

} // namespace SqliteBackend

#endif
