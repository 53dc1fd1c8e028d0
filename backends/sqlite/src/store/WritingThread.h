#ifndef SQLITEBACKEND_WRITINGTHREAD_H
#define SQLITEBACKEND_WRITINGTHREAD_H

#include "store/RowBatch.h"

#include <condition_variable>
#include <cstddef>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace SqliteBackend {

class Connection;
class TableWriter;

/// Writes the batches of a connection, in the order they come, in a thread of its own, while the next ones are made.
/// Until `Finish` nobody else uses the connection. Where no thread can be had the connection writes them itself.
class WritingThread {
public:
    explicit WritingThread(Connection& connection);
    WritingThread(const WritingThread&) = delete;
    WritingThread& operator=(const WritingThread&) = delete;
    /// What is not yet written is dropped.
    ~WritingThread();

    /// Leaves an empty batch in its place. Throws what a batch before could not be written for.
    void Add(TableWriter& table, RowBatch& batch);

    /// Returns when everything that was added is written; throws what it could not be written for.
    void Finish();

private:
    struct Item {
        TableWriter* table = nullptr;
        RowBatch batch;
    };

    /// Batches that are handed over together. It keeps the memory of those that it has had.
    class Load {
    public:
        bool IsEmpty() const { return m_count == 0; }

        bool IsFull() const { return m_count == most; }

        void Add(TableWriter& table, RowBatch& batch);
        void Write();

        void Clear() { m_count = 0; }

    private:
        static constexpr std::size_t most = 24;

        std::vector<Item> m_items = std::vector<Item>(most);
        std::size_t m_count = 0;
    };

    void HandOver();
    void Run() noexcept;
    void WriteWhatWaits(std::unique_lock<std::mutex>& lock);

    Connection& m_connection;
    Load m_filling; ///< by who adds
    std::mutex m_mutex;
    std::condition_variable m_changed; ///< any of the following
    Load m_waiting;
    bool m_isWriting = false;
    bool m_isEnding = false;
    std::exception_ptr m_failure;
    Load m_writing; ///< by the thread
    std::thread m_thread;
};

} // namespace SqliteBackend

#endif
