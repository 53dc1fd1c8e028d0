#include "host/DumpOfHost.h"

#include <fstream>
#include <iterator>

namespace HostTest {

std::filesystem::path PlaceOfDump(const std::wstring& requestedPath) {
    return std::filesystem::temp_directory_path() / requestedPath.substr(requestedPath.rfind(L'\\') + 1);
}

bool IsDump(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(stream), {}};
    return content.find("libImportDataModel.so") != std::string::npos;
}

} // namespace HostTest
