#pragma once

namespace ImportDame::detail {

/// The library's version as the failure report shows it, for example L"1.0.0".
const wchar_t* VersionText() noexcept;

} // namespace ImportDame::detail
