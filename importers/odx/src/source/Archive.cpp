#include "source/Archive.h"

#include "source/FileKinds.h"
#include "text/Utf8.h"

#include <algorithm>
#include <memory>
#include <new>
#include <optional>
#include <vector>
#include <zip.h>

namespace OdxImport {

namespace {

struct ZipDiscarder {
    void operator()(zip_t* zip) const { zip_discard(zip); }
};

struct ZipFileCloser {
    void operator()(zip_file_t* file) const { zip_fclose(file); }
};

using Zip = std::unique_ptr<zip_t, ZipDiscarder>;
using ZipFile = std::unique_ptr<zip_file_t, ZipFileCloser>;

struct Entry {
    std::string name;
    zip_uint64_t index;
};

std::string TextOf(zip_error_t& error) {
    std::string text = zip_error_strerror(&error);
    zip_error_fini(&error);
    return text;
}

void ThrowIfOutOfMemory(zip_error_t& error) {
    if (zip_error_code_zip(&error) == ZIP_ER_MEMORY)
        throw std::bad_alloc();
}

Zip Open(const std::string& name, std::string_view archive, const Reporter& reporter) {
    if (archive.empty()) { // the library takes nothing for an archive without entries
        reporter.Report(Rule::ArchiveDamaged, {name, 0, 0, {}}, "the archive is empty");
        return nullptr;
    }
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* source = zip_source_buffer_create(archive.data(), archive.size(), 0, &error);
    Zip zip(source == nullptr ? nullptr : zip_open_from_source(source, ZIP_RDONLY, &error));
    if (zip == nullptr) {
        zip_source_free(source);
        ThrowIfOutOfMemory(error);
        reporter.Report(Rule::ArchiveDamaged, {name, 0, 0, {}}, "the archive cannot be opened: " + TextOf(error));
        return nullptr;
    }
    zip_error_fini(&error);
    return zip;
}

std::string NameOf(zip_t* zip, zip_uint64_t index) {
    const char* name = zip_get_name(zip, index, ZIP_FL_ENC_GUESS);
    return name == nullptr ? "entry " + std::to_string(index) : Narrow(Widen(name));
}

bool LeadsOut(std::string_view name) {
    if (name.starts_with('/') || name.starts_with('\\') || name.find(':') != std::string_view::npos)
        return true;
    for (std::size_t at = 0; at <= name.size();) {
        const std::size_t end = std::min(name.find_first_of("/\\", at), name.size());
        if (name.substr(at, end - at) == "..")
            return true;
        at = end + 1;
    }
    return false;
}

class ArchiveReader {
public:
    ArchiveReader(zip_t* zip, const std::string& name, const Limits& limits, Budget& budget, const Reporter& reporter)
        : m_zip(zip), m_name(name), m_limits(limits), m_budget(budget), m_reporter(reporter) {}

    std::vector<Entry> OdxEntries() const {
        std::vector<Entry> entries;
        const auto count = static_cast<zip_uint64_t>(std::max<zip_int64_t>(zip_get_num_entries(m_zip, 0), 0));
        for (zip_uint64_t index = 0; index < count; ++index) {
            Entry entry{NameOf(m_zip, index), index};
            if (LeadsOut(entry.name))
                Report(Rule::EntryNameSuspicious, entry, "the name of this entry leads out of the archive");
            if (IsOdxName(entry.name) || (IsXmlName(entry.name) && MayBeOdx(index)))
                entries.push_back(std::move(entry));
            else if (!entry.name.ends_with('/'))
                Report(Rule::EntryNotRead, entry, "this entry is no ODX document and is not read");
        }
        std::sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
            return a.name != b.name ? a.name < b.name : a.index < b.index;
        });
        return entries;
    }

    std::optional<Bytes> Unpack(const Entry& entry) const {
        zip_stat_t stat;
        zip_stat_init(&stat);
        constexpr zip_uint64_t needed = ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE;
        if (zip_stat_index(m_zip, entry.index, 0, &stat) != 0 || (stat.valid & needed) != needed) {
            Report(Rule::ArchiveEntryDamaged, entry, "the size of this entry cannot be found");
            return std::nullopt;
        }
        if ((stat.valid & ZIP_STAT_ENCRYPTION_METHOD) != 0 && stat.encryption_method != ZIP_EM_NONE) {
            Report(Rule::ArchiveEntryEncrypted, entry, "this entry is encrypted");
            return std::nullopt;
        }
        if (!WithinLimits(entry, stat))
            return std::nullopt;
        m_budget.bytes -= stat.size;
        return Read(entry, static_cast<std::size_t>(stat.size));
    }

private:
    /// By its first bytes. What cannot be unpacked may be one as well.
    bool MayBeOdx(zip_uint64_t index) const {
        const ZipFile file(zip_fopen_index(m_zip, index, 0));
        if (file == nullptr) {
            ThrowIfOutOfMemory(*zip_get_error(m_zip));
            return true;
        }
        std::string head(headBytes, '\0');
        const zip_int64_t got = zip_fread(file.get(), head.data(), head.size());
        return got < 0 || LooksLikeOdx(std::string_view(head).substr(0, static_cast<std::size_t>(got)));
    }

    bool WithinLimits(const Entry& entry, const zip_stat_t& stat) const {
        const std::string size = "this entry unpacks to " + std::to_string(stat.size) + " bytes";
        if (stat.size > m_limits.documentBytes) {
            Report(Rule::DocumentTooLarge, entry, size + "; the limit is " + std::to_string(m_limits.documentBytes));
            return false;
        }
        if (stat.size > m_limits.compressionFreeBytes && stat.size / m_limits.compressionRatio > stat.comp_size) {
            Report(Rule::ArchiveRatioTooHigh, entry, size + " from " + std::to_string(stat.comp_size));
            return false;
        }
        if (stat.size > m_budget.bytes) {
            Report(Rule::InputTooLarge, entry,
                   size + "; " + std::to_string(m_budget.bytes) + " are left of the limit for all");
            return false;
        }
        return true;
    }

    std::optional<Bytes> Read(const Entry& entry, std::size_t size) const {
        const ZipFile file(zip_fopen_index(m_zip, entry.index, 0));
        if (file == nullptr) {
            ThrowIfOutOfMemory(*zip_get_error(m_zip));
            const bool isUnknownPacking = zip_error_code_zip(zip_get_error(m_zip)) == ZIP_ER_COMPNOTSUPP;
            Report(isUnknownPacking ? Rule::ArchivePackingUnknown : Rule::ArchiveEntryDamaged, entry,
                   std::string("this entry cannot be opened: ") + zip_strerror(m_zip));
            return std::nullopt;
        }
        Bytes bytes(size);
        std::size_t done = 0;
        zip_int64_t got = 0;
        while (done < size && (got = zip_fread(file.get(), bytes.Data() + done, size - done)) > 0)
            done += static_cast<std::size_t>(got);
        char beyond;
        // Reading on to the end is what makes the checksum be compared.
        if (done != size || got < 0 || zip_fread(file.get(), &beyond, 1) != 0) {
            Report(Rule::ArchiveEntryDamaged, entry,
                   std::string("this entry cannot be unpacked: ") + zip_error_strerror(zip_file_get_error(file.get())));
            return std::nullopt;
        }
        return bytes;
    }

    void Report(Rule rule, const Entry& entry, std::string message) const {
        m_reporter.Report(rule, {m_name + "!" + entry.name, 0, 0, {}}, std::move(message));
    }

    zip_t* m_zip;
    const std::string& m_name;
    const Limits& m_limits;
    Budget& m_budget;
    const Reporter& m_reporter;
};

} // namespace

bool LooksLikeArchive(std::string_view bytes) {
    return bytes.starts_with("PK\x03\x04") || bytes.starts_with("PK\x05\x06");
}

void ReadArchive(const std::string& name, std::string_view archive, const Limits& limits, Budget& budget,
                 const Reporter& reporter, const EntryTaker& take) {
    const Zip zip = Open(name, archive, reporter);
    if (zip == nullptr)
        return;
    const auto count = static_cast<std::uint64_t>(std::max<zip_int64_t>(zip_get_num_entries(zip.get(), 0), 0));
    if (count > limits.archiveEntries) {
        reporter.Report(Rule::ArchiveTooManyEntries, {name, 0, 0, {}},
                        "the archive has " + std::to_string(count) + " entries; the limit is " +
                            std::to_string(limits.archiveEntries));
        return;
    }
    const ArchiveReader reader(zip.get(), name, limits, budget, reporter);
    for (const Entry& entry : reader.OdxEntries())
        if (std::optional<Bytes> bytes = reader.Unpack(entry))
            take(name + "!" + entry.name, std::move(*bytes));
}

} // namespace OdxImport
