#include <ImportDame/ImportDame.h>

#include <cstdio>
#include <string>

#include "Reports.h"

/// A program as an outside user of the library writes it: fills a document, breaks a precondition, and sees both the
/// exception and what the library logged.
int main() {
    ImportDame::VImportDoc document;
    auto& codes = document.TroubleCodeCollectionCollection().AppendNew();
    codes.AppendNew().SetCode(0x1234);
    const std::wstring version = ImportDame::GetVersionText();
    std::printf("%llu code, library %ls\n", codes.Count(), version.c_str());

    const Reports reports;
    try {
        codes.Remove(codes.End());
    } catch (const VLgAssertException& exception) {
        std::printf("%d %s\n", exception.GetErrorCode(), exception.GetExpression());
    }
    std::printf("%u record with the code\n", reports.Count(L"Error code '102027'"));
}
