#include <ImportDame/ImportDame.h>

#include <iostream>
#include <string>

/// Reads trouble codes, a line "code,text" each, into a document and lists what the document holds.
int main() {
    ImportDame::VImportDoc document;
    auto& codes = document.TroubleCodeCollectionCollection().AppendNew();
    codes.SetSourceName(L"Engine");
    for (std::wstring code, text; std::getline(std::wcin, code, L',') && std::getline(std::wcin, text);) {
        auto& troubleCode = codes.AppendNew();
        troubleCode.SetCode(static_cast<unsigned int>(std::stoul(code, nullptr, 16)));
        troubleCode.SetErrorText(text.c_str());
    }
    std::wcout << codes.GetSourceName() << L": " << codes.Count() << L" codes\n" << std::hex;
    for (auto& troubleCode : codes)
        std::wcout << troubleCode.GetCode() << L' ' << troubleCode.GetErrorText() << L'\n';
}
