// Packs documents into a PDX archive: PackPdx ARCHIVE FILE...
//
// The same files give the same bytes: entries have no time and lie in the order they are given, by name without folder.

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>
#include <zip.h>

namespace {

std::string Load(const char* path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

bool Add(zip_t* zip, const char* path, const std::string& content) {
    zip_source_t* source = zip_source_buffer(zip, content.data(), content.size(), 0);
    const std::string name = std::filesystem::path(path).filename().string();
    const zip_int64_t index = source == nullptr ? -1 : zip_file_add(zip, name.c_str(), source, ZIP_FL_ENC_UTF_8);
    if (index < 0)
        return false;
    const auto entry = static_cast<zip_uint64_t>(index);
    constexpr zip_uint16_t firstOfJanuary2024 = (2024 - 1980) << 9 | 1 << 5 | 1;
    return zip_set_file_compression(zip, entry, ZIP_CM_DEFLATE, 9) == 0 &&
           zip_file_set_dostime(zip, entry, 0, firstOfJanuary2024, 0) == 0;
}

} // namespace

int main(int count, char** arguments) {
    if (count < 3) {
        std::fputs("usage: PackPdx ARCHIVE FILE...\n", stderr);
        return 2;
    }
    int error = 0;
    zip_t* zip = zip_open(arguments[1], ZIP_CREATE | ZIP_TRUNCATE, &error);
    bool isWell = zip != nullptr;
    std::vector<std::string> contents; // libzip reads them when it closes the archive
    for (int i = 2; i < count; ++i)
        contents.push_back(Load(arguments[i]));
    for (int i = 2; isWell && i < count; ++i)
        isWell = Add(zip, arguments[i], contents[static_cast<std::size_t>(i - 2)]);
    if (zip != nullptr && !isWell)
        zip_discard(zip);
    else if (zip != nullptr)
        isWell = zip_close(zip) == 0;
    if (!isWell)
        std::fprintf(stderr, "PackPdx: %s cannot be written\n", arguments[1]);
    return isWell ? 0 : 1;
}
