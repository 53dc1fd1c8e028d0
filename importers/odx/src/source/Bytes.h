#ifndef ODXIMPORT_SOURCE_BYTES_H
#define ODXIMPORT_SOURCE_BYTES_H

#include <cstddef>
#include <memory>
#include <string_view>

namespace OdxImport {

/// A block of bytes, owned. Fresh ones are not cleared: they are about to be read into.
class Bytes {
public:
    Bytes() = default;

    explicit Bytes(std::size_t size) : m_data(std::make_unique_for_overwrite<char[]>(size)), m_size(size) {}

    char* Data() { return m_data.get(); }

    std::size_t Size() const { return m_size; }

    std::string_view View() const { return {m_data.get(), m_size}; }

    /// Forgets the bytes from `size` on.
    void Shorten(std::size_t size) { m_size = size < m_size ? size : m_size; }

private:
    std::unique_ptr<char[]> m_data;
    std::size_t m_size = 0;
};

} // namespace OdxImport

#endif
