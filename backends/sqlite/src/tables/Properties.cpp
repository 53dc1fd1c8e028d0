#include "tables/Properties.h"

#include <ImportDame/CodedAtomProperties.h>
#include <ImportDame/CodedProperties.h>
#include <ImportDame/FieldProperties.h>
#include <ImportDame/PhysicalAtomProperties.h>
#include <ImportDame/PhysicalDisplayProperties.h>
#include <ImportDame/PhysicalProperties.h>

namespace SqliteBackend {

const char* const Properties::schema = R"(
CREATE TABLE coded_properties(
    data_type_id INTEGER PRIMARY KEY REFERENCES data_type(id),
    encoding     INTEGER NOT NULL,
    byte_order   INTEGER NOT NULL,
    bit_length   INTEGER NOT NULL,
    bit_mask     INTEGER NOT NULL,
    quantity     INTEGER,
    size_info    INTEGER,
    min_length   INTEGER,
    max_length   INTEGER
);
CREATE TABLE physical_properties(
    data_type_id   INTEGER PRIMARY KEY REFERENCES data_type(id),
    encoding       INTEGER NOT NULL,
    bit_length     INTEGER NOT NULL,
    display_format INTEGER NOT NULL,
    precision      INTEGER NOT NULL,
    unit           TEXT NOT NULL,
    is_signed      INTEGER NOT NULL,
    quantity       INTEGER,
    size_info      INTEGER,
    min_length     INTEGER,
    max_length     INTEGER
);
CREATE TABLE display_properties(
    data_type_id   INTEGER PRIMARY KEY REFERENCES data_type(id),
    display_format INTEGER NOT NULL,
    precision      INTEGER NOT NULL,
    unit           TEXT NOT NULL,
    is_signed      INTEGER NOT NULL
);
)";

Properties::Properties(Connection& connection, Tally& tally)
    : m_coded(connection, tally, "coded_properties"), m_physical(connection, tally, "physical_properties"),
      m_display(connection, tally, "display_properties") {}

void Properties::Write(std::int64_t dataTypeRow, ImportDame::VCodedProperties& coded) {
    m_coded.Row(dataTypeRow, coded.GetEncoding(), coded.GetByteOrder(), coded.GetAtomicBitLength(), coded.GetBitMask(),
                coded.GetQuantity(), coded.GetSizeInfo(), coded.GetMinLength(), coded.GetMaxLength());
}

void Properties::Write(std::int64_t dataTypeRow, ImportDame::VCodedAtomProperties& coded) {
    m_coded.Row(dataTypeRow, coded.GetEncoding(), coded.GetByteOrder(), coded.GetBitLength(), coded.GetBitMask(),
                nullptr, nullptr, nullptr, nullptr);
}

void Properties::Write(std::int64_t dataTypeRow, ImportDame::VPhysicalProperties& physical) {
    m_physical.Row(dataTypeRow, physical.GetEncoding(), physical.GetAtomicBitLength(), physical.GetDisplayFormat(),
                   physical.GetPrecision(), physical.GetUnit(),
                   physical.PhysicalAtomProperties().PhysicalDisplayProperties().IsSigned(), physical.GetQuantity(),
                   physical.GetSizeInfo(), physical.GetMinLength(), physical.GetMaxLength());
}

void Properties::Write(std::int64_t dataTypeRow, ImportDame::VPhysicalAtomProperties& physical) {
    m_physical.Row(dataTypeRow, physical.GetEncoding(), physical.GetBitLength(), physical.GetDisplayFormat(),
                   physical.GetPrecision(), physical.GetUnit(), physical.PhysicalDisplayProperties().IsSigned(),
                   nullptr, nullptr, nullptr, nullptr);
}

void Properties::Write(std::int64_t dataTypeRow, ImportDame::VPhysicalDisplayProperties& display) {
    m_display.Row(dataTypeRow, display.GetDisplayFormat(), display.GetPrecision(), display.GetUnit(),
                  display.IsSigned());
}

} // namespace SqliteBackend
