#ifndef ODXTESTS_SUPPORT_ARCHIVES_H
#define ODXTESTS_SUPPORT_ARCHIVES_H

#include <string>
#include <utility>
#include <vector>

namespace OdxTests {

enum class Packing { Deflated, Stored, Encrypted };

/// The bytes of a ZIP archive with these entries: name and content.
std::string MakeArchive(const std::vector<std::pair<std::string, std::string>>& entries,
                        Packing packing = Packing::Deflated);

} // namespace OdxTests

#endif
