#ifndef ODXIMPORT_SOURCE_BYTES_H
#define ODXIMPORT_SOURCE_BYTES_H

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <new>
#include <string_view>

namespace OdxImport {

/// A block of bytes, owned. Fresh ones are not cleared: they are about to be read into.
class Bytes {
public:
    Bytes() = default;

    explicit Bytes(std::size_t size) : m_data(static_cast<char*>(std::malloc(size == 0 ? 1 : size))), m_size(size) {
        if (m_data == nullptr)
            throw std::bad_alloc();
    }

    char* Data() { return m_data.get(); }

    std::size_t Size() const { return m_size; }

    std::string_view View() const { return {m_data.get(), m_size}; }

    /// Forgets the bytes from `size` on and gives their memory back. The rest may move.
    void Shorten(std::size_t size) {
        if (size >= m_size)
            return;
        m_size = size;
        if (void* const shorter = std::realloc(m_data.get(), size == 0 ? 1 : size)) {
            static_cast<void>(m_data.release());
            m_data.reset(static_cast<char*>(shorter));
        }
    }

private:
    struct Deleter {
        void operator()(char* data) const { std::free(data); }
    };

    std::unique_ptr<char, Deleter> m_data;
    std::size_t m_size = 0;
};

} // namespace OdxImport

#endif
