#include "host/DumpOfHost.h"

#include <fstream>

namespace HostTest {

std::filesystem::path PlaceOfDump(const std::wstring& requestedPath) {
    std::filesystem::path place(requestedPath);
    std::filesystem::create_directories(place.parent_path());
    return place;
}

bool IsDump(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    char signature[4] = {};
    stream.read(signature, sizeof signature);
    return std::string(signature, sizeof signature) == "MDMP" && std::filesystem::file_size(file) > 1000;
}

} // namespace HostTest
