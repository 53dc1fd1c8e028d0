#include "oom/ParserMemory.h"

#include <pugixml.hpp>
#include <sqlite3.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <new>
#include <stdexcept>

namespace TestSupport {

namespace {

/// SQLite asks how large a block is: that stands in front of it.
constexpr std::size_t headSize = alignof(std::max_align_t);

void* AllocateForParser(std::size_t size) {
    return ::operator new(size, std::nothrow);
}

void FreeForParser(void* block) {
    ::operator delete(block);
}

void* Allocate(int size) {
    auto* head = static_cast<std::byte*>(::operator new(headSize + static_cast<std::size_t>(size), std::nothrow));
    if (head == nullptr)
        return nullptr;
    std::memcpy(head, &size, sizeof size);
    return head + headSize;
}

std::byte* HeadOf(void* block) {
    return static_cast<std::byte*>(block) - headSize;
}

void Free(void* block) {
    if (block != nullptr)
        ::operator delete(HeadOf(block));
}

int SizeOf(void* block) {
    int size = 0;
    if (block != nullptr)
        std::memcpy(&size, HeadOf(block), sizeof size);
    return size;
}

void* Reallocate(void* block, int size) {
    void* larger = Allocate(size);
    if (larger == nullptr)
        return nullptr;
    std::memcpy(larger, block, static_cast<std::size_t>(std::min(size, SizeOf(block))));
    Free(block);
    return larger;
}

int RoundUp(int size) {
    return (size + 7) & ~7;
}

int Begin(void*) {
    return SQLITE_OK;
}

void End(void*) {}

} // namespace

void LetLibrariesUseOperatorNew() {
    pugi::set_memory_management_functions(AllocateForParser, FreeForParser);
    const sqlite3_mem_methods methods{Allocate, Free, Reallocate, SizeOf, RoundUp, Begin, End, nullptr};
    if (sqlite3_config(SQLITE_CONFIG_MALLOC, &methods) != SQLITE_OK)
        throw std::logic_error("SQLite was used before");
}

} // namespace TestSupport
