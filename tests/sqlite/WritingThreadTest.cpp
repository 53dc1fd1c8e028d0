#include "store/WritingThread.h"
#include "store/Connection.h"
#include "store/Insert.h"

#include "sqlite/Database.h"

#include <SqliteBackend/WriteError.h>

#include <fstream>
#include <memory>

namespace SqliteBackendTests {

using namespace SqliteBackend;

namespace {

constexpr int many = 100000; ///< rows, more than wait at any time

class WritingThreadTest : public testing::Test {
protected:
    WritingThreadTest() {
        std::ofstream(m_folder / "rows.sqlite").flush();
        m_connection = std::make_unique<Connection>(m_folder / "rows.sqlite");
        m_connection->Execute(
            "CREATE TABLE a(id INTEGER PRIMARY KEY, text TEXT); CREATE TABLE b(number INTEGER); BEGIN");
    }

    std::string Value(const std::string& sql) {
        m_connection->Execute("COMMIT");
        m_connection->Close();
        return Database(m_folder / "rows.sqlite").Value(sql);
    }

    TemporaryFolder m_folder;
    Tally m_tally;
    std::unique_ptr<Connection> m_connection;
};

} // namespace

TEST_F(WritingThreadTest, AllRowsOfAllTablesAreWrittenInTheirOrder) {
    {
        Insert a(*m_connection, m_tally, "a"), b(*m_connection, m_tally, "b");
        const WritingThread thread(*m_connection);
        for (int row = 1; row <= many; ++row) {
            a.Row(row, "text " + std::to_string(row));
            if (row % 3 == 0)
                b.Row(row);
        }
        m_connection->FlushAll();
    }
    EXPECT_EQ(Value("SELECT count(*) || ' ' || sum(text = 'text ' || id) || ' ' || (SELECT count(*) FROM b) || ' ' || "
                    "(SELECT sum(number = rowid * 3) FROM b) FROM a"),
              "100000 100000 33333 33333");
}

TEST_F(WritingThreadTest, WhatGoesWrongInTheThreadIsThrownWhereRowsAreAdded) {
    Insert a(*m_connection, m_tally, "a");
    const WritingThread thread(*m_connection);
    a.Row(1, "first");
    try {
        for (int row = 1; row <= many; ++row)
            a.Row(1, "again");
        FAIL() << "nothing was thrown";
    } catch (const WriteError& error) {
        EXPECT_STREQ(error.what(), "UNIQUE constraint failed: a.id");
    }
    EXPECT_LT(m_tally.rows["a"], 10000U) << "the failure was noticed late";
    EXPECT_THROW(m_connection->FlushAll(), WriteError) << "a failure stays one";
}

TEST_F(WritingThreadTest, WhatGoesWrongWithTheLastRowsIsThrownAtTheEnd) {
    Insert a(*m_connection, m_tally, "a");
    const WritingThread thread(*m_connection);
    a.Row(1, "first");
    a.Row(1, "again");
    EXPECT_THROW(m_connection->FlushAll(), WriteError);
}

TEST_F(WritingThreadTest, WhoGivesUpDoesNotWaitForTheRowsThatWait) {
    Insert a(*m_connection, m_tally, "a");
    try {
        const WritingThread thread(*m_connection);
        for (int row = 1; row <= many; ++row)
            a.Row(row, "text");
        throw std::runtime_error("given up");
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "given up");
    }
}

TEST_F(WritingThreadTest, BehindTheThreadTheConnectionWritesItself) {
    {
        Insert b(*m_connection, m_tally, "b");
        {
            const WritingThread thread(*m_connection);
            b.Row(1);
            m_connection->FlushAll();
        }
        b.Row(2);
        m_connection->FlushAll();
    }
    EXPECT_EQ(Value("SELECT group_concat(number) FROM b"), "1,2");
}

} // namespace SqliteBackendTests
