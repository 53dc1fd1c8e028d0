#include "source/Inputs.h"

#include "source/Archive.h"
#include "source/FileKinds.h"
#include "source/Sha256.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <map>
#include <optional>
#include <system_error>
#include <vector>

namespace OdxImport {

namespace fs = std::filesystem;

namespace {

std::string Shown(const fs::path& path) {
    const std::u8string text = path.generic_u8string();
    return {text.begin(), text.end()};
}

/// By its first bytes. What cannot be read may be one as well.
bool MayBeOdx(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (fs::exists(status) && !fs::is_regular_file(status))
        return false;
    std::string head(headBytes, '\0');
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return true;
    in.read(head.data(), static_cast<std::streamsize>(head.size()));
    head.resize(static_cast<std::size_t>(in.gcount()));
    return in.bad() || LooksLikeOdx(head);
}

/// By its name, or by what is in it.
bool IsInput(const fs::directory_entry& entry, const std::string& name) {
    std::error_code error;
    if (entry.is_directory(error))
        return false;
    return IsOdxName(name) || IsArchiveName(name) || (IsXmlName(name) && MayBeOdx(entry.path()));
}

struct FoundFile {
    fs::path path;
    std::string name;
    std::uint64_t size;
};

class InputFinder {
public:
    InputFinder(const Limits& limits, const Reporter& reporter) : m_limits(limits), m_reporter(reporter) {}

    void Add(const fs::path& input) {
        std::error_code error;
        const fs::file_status status = fs::status(input, error);
        if (status.type() == fs::file_type::not_found) {
            m_reporter.Report(Rule::InputNotFound, {Shown(input), 0, 0, {}}, "the input does not exist");
            m_isComplete = false;
        } else if (fs::is_directory(status))
            AddFolder(input);
        else
            AddFile(input);
    }

    /// Every input is there.
    bool IsComplete() const { return m_isComplete; }

    std::vector<FoundFile> Take() { return std::move(m_files); }

private:
    void AddFolder(const fs::path& folder) {
        std::error_code error;
        std::vector<fs::path> found;
        fs::recursive_directory_iterator at(folder, fs::directory_options::none, error);
        for (; !error && at != fs::recursive_directory_iterator() && found.size() <= m_limits.inputFiles;
             at.increment(error))
            if (IsInput(*at, Shown(at->path())))
                found.push_back(at->path());
        if (error)
            m_reporter.Report(Rule::InputUnreadable, {Shown(folder), 0, 0, {}},
                              "the folder cannot be listed: " + error.message(), Outcome::ValueIgnored);
        if (found.size() > m_limits.inputFiles) {
            m_reporter.Report(Rule::InputTooLarge, {Shown(folder), 0, 0, {}},
                              "the folder holds more than " + std::to_string(m_limits.inputFiles) + " documents");
            return;
        }
        std::sort(found.begin(), found.end(),
                  [](const fs::path& a, const fs::path& b) { return a.generic_u8string() < b.generic_u8string(); });
        for (const fs::path& path : found)
            AddFile(path);
    }

    void AddFile(const fs::path& path) {
        std::error_code error;
        const std::uint64_t size = fs::file_size(path, error);
        if (error)
            m_reporter.Report(Rule::InputUnreadable, {Shown(path), 0, 0, {}},
                              "the file cannot be read: " + error.message());
        else
            m_files.push_back({path, Shown(path), size});
    }

    const Limits& m_limits;
    const Reporter& m_reporter;
    std::vector<FoundFile> m_files;
    bool m_isComplete = true;
};

class InputReader {
public:
    InputReader(const Limits& limits, const Reporter& reporter, const std::function<void(SourceDocument&&)>& take)
        : m_limits(limits), m_reporter(reporter), m_take(take), m_budget{limits.totalBytes} {}

    void Read(const FoundFile& file) {
        std::optional<Bytes> bytes = Load(file);
        if (!bytes)
            return;
        if (LooksLikeArchive(bytes->View()) || IsArchiveName(file.name)) {
            ReadArchive(file.name, bytes->View(), m_limits, m_budget, m_reporter,
                        [this](std::string name, Bytes&& entry) { HandOver(std::move(name), std::move(entry)); });
            return;
        }
        if (file.size > m_budget.bytes) {
            m_reporter.Report(Rule::InputTooLarge, {file.name, 0, 0, {}}, "all documents together exceed the limit");
            return;
        }
        m_budget.bytes -= file.size;
        HandOver(file.name, std::move(*bytes));
    }

private:
    std::optional<Bytes> Load(const FoundFile& file) const {
        if (file.size > m_limits.documentBytes) {
            m_reporter.Report(Rule::DocumentTooLarge, {file.name, 0, 0, {}},
                              "the file has " + std::to_string(file.size) + " bytes; the limit is " +
                                  std::to_string(m_limits.documentBytes));
            return std::nullopt;
        }
        Bytes bytes(static_cast<std::size_t>(file.size));
        errno = 0;
        std::ifstream in(file.path, std::ios::binary);
        if (in)
            in.read(bytes.Data(), static_cast<std::streamsize>(bytes.Size()));
        const int error = errno;
        if (in)
            return bytes;
        m_reporter.Report(Rule::InputUnreadable, {file.name, 0, 0, {}},
                          "the file cannot be read: " +
                              (in.eof() ? "it has become shorter" : std::generic_category().message(error)));
        return std::nullopt;
    }

    void HandOver(std::string name, Bytes&& bytes) {
        std::string digest = Sha256(bytes.View());
        const auto [first, isNew] = m_names.emplace(digest, name);
        if (!isNew) {
            m_reporter.Report(Rule::InputTwice, {std::move(name), 0, 0, {}},
                              "this document has the same content as " + first->second);
            return;
        }
        m_take({std::move(name), std::move(digest), std::move(bytes)});
    }

    const Limits& m_limits;
    const Reporter& m_reporter;
    const std::function<void(SourceDocument&&)>& m_take;
    Budget m_budget;
    std::map<std::string, std::string> m_names; ///< by digest
};

} // namespace

bool ReadInputs(const ImportOptions& options, const Reporter& reporter, ProgressSink& progress,
                const std::function<void(SourceDocument&&)>& take) {
    InputFinder finder(options.limits, reporter);
    for (const fs::path& input : options.inputs)
        finder.Add(input);
    if (!finder.IsComplete())
        return false;
    const std::vector<FoundFile> files = finder.Take();

    std::uint64_t total = 0;
    for (const FoundFile& file : files)
        total += file.size;
    std::uint64_t done = 0;
    InputReader reader(options.limits, reporter, take);
    for (const FoundFile& file : files) {
        progress.Step(Phase::Reading, done, total);
        reader.Read(file);
        done += file.size;
    }
    progress.Step(Phase::Reading, done, total);
    return true;
}

} // namespace OdxImport
