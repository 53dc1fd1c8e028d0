#include "store/WritingThread.h"

#include "store/Connection.h"
#include "store/TableWriter.h"

#include <system_error>
#include <utility>

namespace SqliteBackend {

void WritingThread::Load::Add(TableWriter& table, RowBatch& batch) {
    Item& item = m_items[m_count++];
    item.table = &table;
    std::swap(item.batch, batch);
    batch.Clear();
}

void WritingThread::Load::Write() {
    for (std::size_t number = 0; number < m_count; ++number)
        m_items[number].table->Write(m_items[number].batch);
    Clear();
}

WritingThread::WritingThread(Connection& connection) : m_connection(connection) {
    try {
        m_thread = std::thread([this] { Run(); });
    } catch (const std::system_error&) {
        return;
    }
    m_connection.WriteThrough(this);
}

WritingThread::~WritingThread() {
    m_connection.WriteThrough(nullptr);
    if (!m_thread.joinable())
        return;
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

void WritingThread::Add(TableWriter& table, RowBatch& batch) {
    m_filling.Add(table, batch);
    if (m_filling.IsFull())
        HandOver();
}

void WritingThread::HandOver() {
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_waiting.IsEmpty() || m_failure; });
    if (m_failure)
        std::rethrow_exception(m_failure);
    std::swap(m_filling, m_waiting);
    m_changed.notify_all();
}

void WritingThread::Finish() {
    HandOver();
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return (m_waiting.IsEmpty() && !m_isWriting) || m_failure; });
    if (m_failure)
        std::rethrow_exception(m_failure);
}

void WritingThread::Run() noexcept {
    std::unique_lock lock(m_mutex);
    while (!m_failure) {
        m_changed.wait(lock, [this] { return m_isEnding || !m_waiting.IsEmpty(); });
        if (m_isEnding)
            return;
        WriteWhatWaits(lock);
    }
}

void WritingThread::WriteWhatWaits(std::unique_lock<std::mutex>& lock) {
    std::swap(m_waiting, m_writing);
    m_isWriting = true;
    m_changed.notify_all();
    lock.unlock();
    std::exception_ptr failure;
    try {
        m_writing.Write();
    } catch (...) {
        failure = std::current_exception();
    }
    lock.lock();
    m_failure = failure;
    m_isWriting = false;
    m_changed.notify_all();
}

} // namespace SqliteBackend
