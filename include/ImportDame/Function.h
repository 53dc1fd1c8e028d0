#pragma once

#include <ImportDame/AdditionalFileCollection.h>
#include <ImportDame/Export.h>
#include <ImportDame/File.h>
#include <ImportDame/detail/Memory.h>
#include <ImportDame/detail/Text.h>

#include <cstddef>

namespace ImportDame {

/// An external procedure that computes physical values from coded ones, and its program files. The library only
/// describes it.
///
/// Texts passed in are copied and must not be null; texts handed out are valid until that text changes or the function
/// dies.
class IMPORTDAME_API VFunction {
public:
    /// Empty texts, no additional files.
    VFunction();
    VFunction(const VFunction&) = delete;
    VFunction& operator=(const VFunction&) = delete;
    virtual ~VFunction();

    /// Objects live in memory of the library, whoever creates them, unless a place is given for them.
    static void* operator new(std::size_t size) { return detail::Allocate(size); }

    static void* operator new(std::size_t, void* place) noexcept { return place; }

    static void operator delete(void* object, std::size_t size) noexcept { detail::Free(object, size); }

    static void operator delete(void*, void*) noexcept {}

    /// Of the program, as the importer delivered it.
    const wchar_t* GetVersion() const { return m_version.Get(); }

    void SetVersion(const wchar_t* version);

    /// What is to be called in the source file.
    const wchar_t* GetEntryPoint() const { return m_entryPoint.Get(); }

    void SetEntryPoint(const wchar_t* entryPoint);

    /// The language or kind of the program.
    const wchar_t* GetSyntax() const { return m_syntax.Get(); }

    void SetSyntax(const wchar_t* syntax);

    /// The name of the encryption of the procedure's files.
    const wchar_t* GetEncryption() const { return m_encryption.Get(); }

    void SetEncryption(const wchar_t* encryption);

    /// The program; lives as long as the function.
    VFile& SourceFile() { return m_sourceFile; }

    VAdditionalFileCollection& AdditionalFileCollection() { return m_additionalFileCollection; }

private:
    detail::Text m_version;
    detail::Text m_entryPoint;
    detail::Text m_syntax;
    detail::Text m_encryption;
    VFile m_sourceFile;
    VAdditionalFileCollection m_additionalFileCollection;
};

} // namespace ImportDame
