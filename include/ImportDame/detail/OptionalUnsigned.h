/// @file
/// The optional number of the packet kinds.
#pragma once

#include <memory>

namespace ImportDame::detail {

/// A number that is present or absent. It is allocated on its own: a reference to it stays valid and follows later sets
/// until it is unset.
class OptionalUnsigned {
public:
    [[nodiscard]] bool IsPresent() const noexcept { return m_value != nullptr; }

    /// Requires: IsPresent().
    [[nodiscard]] const unsigned int& Get() const noexcept { return *m_value; }

    /// The value may be the stored one.
    void Set(const unsigned int& value) {
        if (m_value)
            *m_value = value;
        else
            m_value = std::make_unique<unsigned int>(value);
    }

    void Unset() noexcept { m_value.reset(); }

private:
    std::unique_ptr<unsigned int> m_value;
};

} // namespace ImportDame::detail
