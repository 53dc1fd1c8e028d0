#pragma once

#include <ImportDame/AttributeCollection.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/ImportDocChild.h>
#include <ImportDame/Text.h>
#include <ImportDame/detail/Text.h>

namespace ImportDame {

/// The base of every named object of a document: qualifier, name, description, attributes and where it came from.
///
/// Texts passed in are copied and must not be null (the empty text stands for none); texts handed out live in the
/// object and are valid until that field changes or the object dies.
class IMPORTDAME_API VQualified : public VImportDocChild {
public:
    explicit VQualified(VImportDoc& importDoc);

    /// Copies everything but the source information, which starts empty, and the uniqueness number, which is new.
    VQualified(const VQualified& other);
    ~VQualified() override;

    /// The short identifying name that look-ups go by.
    virtual void SetQualifier(const wchar_t* qualifier);
    virtual const wchar_t* GetQualifier() const;

    /// Sets the text of the name; its text identifier stays.
    virtual void SetName(const wchar_t* name);
    virtual const wchar_t* GetName() const;

    /// Sets the text of the description; its text identifier stays.
    virtual void SetDescription(const wchar_t* description);
    virtual const wchar_t* GetDescription() const;

    /// Whether the object is part of the import; a new one is.
    virtual void IsImported(bool isImported);

    /// The flag that was set last; true at first.
    virtual bool IsImported();

    /// Whether qualifier, name and description are equal; nothing else is looked at.
    virtual bool CompareContent(VQualified& other);

    /// Where in the imported description the object came from.
    virtual void SetSourceInfo(const wchar_t* sourceInfo);
    virtual const wchar_t* GetSourceInfo() const;

    /// Named values of the object; live as long as it does.
    virtual VAttributeCollection& Attributes();

    /// Whether the object identifier is not empty.
    virtual bool HasObjectIdentifier() const;
    virtual void SetObjectIdentifier(const wchar_t* objectIdentifier);

    /// By which other systems know the object; may be empty.
    virtual const wchar_t* GetObjectIdentifier() const;

    /// The name with its text identifier.
    VText& Name() { return m_name; }

    /// The description with its text identifier.
    VText& Description() { return m_description; }

    /// A number that no other qualified object of the process has, counted up from 1 in the order of construction.
    const unsigned int& UniquenessId() const { return m_uniquenessId; }

protected:
    /// A copy as above, attributes included, that belongs to another document.
    VQualified(const VQualified& other, VImportDoc& importDoc);

private:
    detail::Text m_qualifier;
    VText m_name;
    [[no_unique_address]] VText m_description; ///< The flag lies in its padding.
    bool m_isImported = true;
    detail::Text m_sourceInfo;
    VAttributeCollection m_attributes;
    detail::Text m_objectIdentifier;
    unsigned int m_uniquenessId;
};

} // namespace ImportDame
