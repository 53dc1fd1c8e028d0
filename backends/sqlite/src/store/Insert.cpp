#include "store/Insert.h"

#include "SqliteBackend/Utf8.h"
#include "SqliteBackend/WriteError.h"

#include <ImportDame/Qualified.h>
#include <ImportDame/Text.h>

namespace SqliteBackend {

Insert::Insert(Connection& connection, Tally& tally, const std::string& table)
    : m_connection(connection), m_tally(tally), m_writer(connection, table), m_rows(tally.rows[table]) {
    connection.Register(*this);
}

void Insert::Bind(double number) {
    Cell& cell = m_batch.cells.emplace_back();
    cell.kind = Cell::Real;
    cell.real = number;
}

void Insert::Bind(std::nullptr_t) {
    m_batch.cells.emplace_back();
}

void Insert::Bind(const wchar_t* text) {
    if (!text)
        return Bind(nullptr);
    const std::size_t begin = m_batch.texts.size();
    m_tally.replacedCharacters += AppendUtf8(text, m_batch.texts);
    EndText(begin);
}

void Insert::Bind(std::string_view text) {
    const std::size_t begin = m_batch.texts.size();
    m_tally.replacedCharacters += AppendValidUtf8(text, m_batch.texts);
    EndText(begin);
}

void Insert::Bind(const ImportDame::VText& text) {
    Bind(text.GetText());
    Bind(text.HasTextId() ? text.GetTextId() : nullptr);
}

void Insert::Bind(ImportDame::VQualified& qualified) {
    Bind(qualified.GetQualifier());
    Bind(qualified.Name());
    Bind(qualified.Description());
    Bind(qualified.HasObjectIdentifier() ? qualified.GetObjectIdentifier() : nullptr);
    Bind(qualified.GetSourceInfo());
    Bind(qualified.IsImported());
}

void Insert::BindNumber(std::int64_t number) {
    Cell& cell = m_batch.cells.emplace_back();
    cell.kind = Cell::Whole;
    cell.whole = number;
}

void Insert::EndText(std::size_t begin) {
    Cell& cell = m_batch.cells.emplace_back();
    cell.kind = Cell::Text;
    cell.whole = static_cast<std::int64_t>(begin);
    cell.length = m_batch.texts.size() - begin;
}

void Insert::Finish() {
    const std::size_t columns = m_writer.Columns(), waiting = m_batch.cells.size() / columns;
    if (m_batch.cells.size() != waiting * columns)
        throw WriteError("a row for the table " + m_writer.Table() + " has not " + std::to_string(columns) + " values");
    ++m_rows;
    if (waiting == TableWriter::rowsTogether)
        Flush();
}

void Insert::Flush() {
    if (!m_batch.cells.empty())
        m_connection.Write(m_writer, m_batch);
}

} // namespace SqliteBackend
