#include "store/Connection.h"
#include "store/Insert.h"
#include "store/WritingThread.h"

#include "sqlite/Database.h"

#include <fstream>
#include <pthread.h>
#include <system_error>
#include <thread>

namespace SqliteBackendTests {

using namespace SqliteBackend;

namespace {

/// For as long as it lives no thread can be started: there is no room for its stack.
class NoThreads {
public:
    NoThreads() {
        pthread_attr_t huge;
        pthread_getattr_default_np(&m_usual);
        pthread_attr_init(&huge);
        EXPECT_EQ(pthread_attr_setstacksize(&huge, std::size_t(1) << 46), 0);
        EXPECT_EQ(pthread_setattr_default_np(&huge), 0);
        pthread_attr_destroy(&huge);
    }

    NoThreads(const NoThreads&) = delete;
    NoThreads& operator=(const NoThreads&) = delete;

    ~NoThreads() {
        pthread_setattr_default_np(&m_usual);
        pthread_attr_destroy(&m_usual);
    }

private:
    pthread_attr_t m_usual;
};

} // namespace

TEST(NoThreadTest, WhereNoThreadCanBeHadTheConnectionWritesItself) {
    const TemporaryFolder folder;
    std::ofstream(folder / "rows.sqlite").flush();
    Connection connection(folder / "rows.sqlite");
    connection.Execute("CREATE TABLE a(id INTEGER PRIMARY KEY, text TEXT)");
    {
        Tally tally;
        Insert a(connection, tally, "a");
        const NoThreads none;
        EXPECT_THROW(std::thread([] {}).join(), std::system_error);
        const WritingThread thread(connection);
        for (int row = 1; row <= 5000; ++row)
            a.Row(row, "text");
        connection.FlushAll();
    }
    connection.Close();
    EXPECT_EQ(Database(folder / "rows.sqlite").Value("SELECT count(*) || ' ' || sum(id) FROM a"), "5000 12502500");
}

} // namespace SqliteBackendTests
