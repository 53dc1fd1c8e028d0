#include "sqlite/Database.h"
#include "sqlite/SampleDocument.h"

#include <algorithm>
#include <signal.h>
#include <string>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace SqliteBackendTests {

namespace {

using namespace SqliteBackend;

/// Writes under a limit for the size of files, in a process of its own. Answers what the writing said: "written" or the
/// error.
std::string WriteWithLimit(rlim_t limit, const std::filesystem::path& target) {
    int ends[2];
    EXPECT_EQ(pipe(ends), 0);
    const pid_t child = fork();
    if (child == 0) {
        signal(SIGXFSZ, SIG_IGN);
        const rlimit limits{limit, limit};
        setrlimit(RLIMIT_FSIZE, &limits);
        ImportDame::VImportDoc document;
        FillDocument(document, 200, L"new");
        std::string answer = "written";
        try {
            WriteDatabase(document, {}, target);
        } catch (const std::exception& error) {
            answer = error.what();
        }
        const bool isSent = write(ends[1], answer.data(), answer.size()) == static_cast<ssize_t>(answer.size());
        _exit(isSent ? 0 : 1);
    }
    close(ends[1]);
    char buffer[1024];
    const ssize_t size = read(ends[0], buffer, sizeof buffer);
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    return {buffer, static_cast<std::size_t>(std::max<ssize_t>(size, 0))};
}

/// A file system of little space for the time of a test.
class SmallFileSystem {
public:
    explicit SmallFileSystem(const std::filesystem::path& folder) : m_folder(folder) {
        m_isMounted = mount("tmpfs", m_folder.c_str(), "tmpfs", 0, "size=1m") == 0;
    }

    ~SmallFileSystem() {
        if (m_isMounted)
            umount(m_folder.c_str());
    }

    bool IsMounted() const { return m_isMounted; }

private:
    std::filesystem::path m_folder;
    bool m_isMounted = false;
};

} // namespace

TEST(FullDiskTest, ALimitForTheSizeOfFilesLeavesTheOldDatabaseAndSaysWhy) {
    const TemporaryFolder folder;
    ImportDame::VImportDoc document;
    FillDocument(document, 1, L"old");
    WriteDatabase(document, {}, folder / "out.sqlite");
    const std::string before = ReadFile(folder / "out.sqlite");
    for (const rlim_t limit : {rlim_t{0}, rlim_t{1000}, rlim_t{4096}, rlim_t{30000}, rlim_t{100000}, rlim_t{300000}}) {
        const std::string answer = WriteWithLimit(limit, folder / "out.sqlite");
        EXPECT_NE(answer.find("out.sqlite: "), std::string::npos) << limit << ": " << answer;
        EXPECT_TRUE(ReadFile(folder / "out.sqlite") == before) << limit;
        EXPECT_EQ(folder.Names(), Rows{"out.sqlite"}) << limit;
    }
    EXPECT_EQ(WriteWithLimit(RLIM_INFINITY, folder / "out.sqlite"), "written");
    EXPECT_EQ(Database(folder / "out.sqlite").Value("SELECT ecu_name FROM document"), "new");
}

TEST(FullDiskTest, AFullFileSystemLeavesTheOldDatabaseAndSaysWhy) {
    const TemporaryFolder folder;
    const SmallFileSystem fileSystem(folder.Path());
    if (!fileSystem.IsMounted())
        GTEST_SKIP() << "A small file system can be mounted by root only.";
    ImportDame::VImportDoc document;
    FillDocument(document, 1, L"old");
    WriteDatabase(document, {}, folder / "out.sqlite");
    const std::string before = ReadFile(folder / "out.sqlite");
    ImportDame::VImportDoc large;
    FillDocument(large, 3000, L"new");
    try {
        WriteDatabase(large, {}, folder / "out.sqlite");
        ADD_FAILURE() << "the file system was large enough";
    } catch (const WriteError& error) {
        EXPECT_NE(std::string(error.what()).find("database or disk is full"), std::string::npos) << error.what();
    }
    EXPECT_TRUE(ReadFile(folder / "out.sqlite") == before);
    EXPECT_EQ(folder.Names(), Rows{"out.sqlite"});
}

} // namespace SqliteBackendTests
