#include <ImportDame/Function.h>

namespace ImportDame {

VFunction::VFunction() = default;

VFunction::~VFunction() = default;

const wchar_t* VFunction::GetVersion() const {
    return m_version.Get();
}

void VFunction::SetVersion(const wchar_t* version) {
    m_version.Set(version);
}

const wchar_t* VFunction::GetEntryPoint() const {
    return m_entryPoint.Get();
}

void VFunction::SetEntryPoint(const wchar_t* entryPoint) {
    m_entryPoint.Set(entryPoint);
}

const wchar_t* VFunction::GetSyntax() const {
    return m_syntax.Get();
}

void VFunction::SetSyntax(const wchar_t* syntax) {
    m_syntax.Set(syntax);
}

const wchar_t* VFunction::GetEncryption() const {
    return m_encryption.Get();
}

void VFunction::SetEncryption(const wchar_t* encryption) {
    m_encryption.Set(encryption);
}

VFile& VFunction::SourceFile() {
    return m_sourceFile;
}

VAdditionalFileCollection& VFunction::AdditionalFileCollection() {
    return m_additionalFileCollection;
}

} // namespace ImportDame
