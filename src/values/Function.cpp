#include <ImportDame/Function.h>

namespace ImportDame {

VFunction::VFunction() = default;

VFunction::~VFunction() = default;

void VFunction::SetVersion(const wchar_t* version) {
    m_version.Set(version);
}

void VFunction::SetEntryPoint(const wchar_t* entryPoint) {
    m_entryPoint.Set(entryPoint);
}

void VFunction::SetSyntax(const wchar_t* syntax) {
    m_syntax.Set(syntax);
}

void VFunction::SetEncryption(const wchar_t* encryption) {
    m_encryption.Set(encryption);
}

} // namespace ImportDame
