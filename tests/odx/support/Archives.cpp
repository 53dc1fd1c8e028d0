#include "support/Archives.h"

#include <cstdlib>
#include <stdexcept>
#include <zip.h>

namespace OdxTests {

namespace {

void Check(bool isWell) {
    if (!isWell)
        throw std::runtime_error("the archive of the test cannot be made");
}

void AddEntry(zip_t* zip, const std::pair<std::string, std::string>& entry, Packing packing) {
    zip_source_t* source = zip_source_buffer(zip, entry.second.data(), entry.second.size(), 0);
    Check(source != nullptr);
    const zip_int64_t index = zip_file_add(zip, entry.first.c_str(), source, ZIP_FL_ENC_UTF_8);
    Check(index >= 0);
    const auto number = static_cast<zip_uint64_t>(index);
    Check(zip_set_file_compression(zip, number, packing == Packing::Stored ? ZIP_CM_STORE : ZIP_CM_DEFLATE, 9) == 0);
    if (packing == Packing::Encrypted)
        Check(zip_file_set_encryption(zip, number, ZIP_EM_TRAD_PKWARE, "secret") == 0);
}

} // namespace

std::string MakeArchive(const std::vector<std::pair<std::string, std::string>>& entries, Packing packing) {
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* target = zip_source_buffer_create(nullptr, 0, 0, &error);
    Check(target != nullptr);
    zip_source_keep(target);
    zip_t* zip = zip_open_from_source(target, ZIP_TRUNCATE, &error);
    Check(zip != nullptr);
    for (const auto& entry : entries)
        AddEntry(zip, entry, packing);
    Check(zip_close(zip) == 0);

    zip_stat_t stat;
    Check(zip_source_stat(target, &stat) == 0 && zip_source_open(target) == 0);
    std::string bytes(static_cast<std::size_t>(stat.size), '\0');
    Check(zip_source_read(target, bytes.data(), bytes.size()) == static_cast<zip_int64_t>(bytes.size()));
    zip_source_close(target);
    zip_source_free(target);
    return bytes;
}

} // namespace OdxTests
