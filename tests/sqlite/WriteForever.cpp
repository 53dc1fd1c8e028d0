// WriteForever FILE: replaces the database again and again, until killed.

#include "sqlite/SampleDocument.h"

#include <SqliteBackend/WriteDatabase.h>

int main(int, char** arguments) {
    for (unsigned int generation = 1;; ++generation) {
        ImportDame::VImportDoc document;
        SqliteBackendTests::FillDocument(document, 40, L"generation " + std::to_wstring(generation));
        SqliteBackend::WriteDatabase(document, {}, arguments[1]);
    }
}
