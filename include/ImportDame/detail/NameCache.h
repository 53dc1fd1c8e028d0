/// @file
/// The snapshot of names by which a collection finds its elements.
#pragma once

#include <ImportDame/detail/Memory.h>
#include <ImportDame/detail/Text.h>

#include <map>
#include <string_view>
#include <utility>

namespace ImportDame::detail {

/// Elements by the name that they had when they were inserted. Owns its own copies of the names and none of the
/// elements; ordered by code units, so that a look-up is logarithmic, and looks names up without copying them.
template <class T>
class NameCache {
public:
    /// The first element under a name stays; a later one is refused. Leaves the cache as it was when it fails.
    void Insert(const wchar_t* name, T& element) {
        const std::wstring_view key(name);
        const auto place = m_elements.lower_bound(key);
        if (place == m_elements.end() || place->first.View() != key)
            m_elements.emplace_hint(place, Text(key), &element);
    }

    /// The element under exactly this name, or null.
    [[nodiscard]] T* Find(const wchar_t* name) const noexcept {
        const auto place = m_elements.find(std::wstring_view(name));
        return place == m_elements.end() ? nullptr : place->second;
    }

    void Swap(NameCache& other) noexcept { m_elements.swap(other.m_elements); }

private:
    struct Less {
        using is_transparent = void;

        static std::wstring_view View(const Text& text) noexcept { return text.View(); }

        static std::wstring_view View(std::wstring_view text) noexcept { return text; }

        template <class Left, class Right>
        bool operator()(const Left& left, const Right& right) const noexcept {
            return View(left) < View(right);
        }
    };

    std::map<Text, T*, Less, Allocator<std::pair<const Text, T*>>> m_elements;
};

} // namespace ImportDame::detail
