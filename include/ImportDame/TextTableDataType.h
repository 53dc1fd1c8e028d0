#pragma once

#include <ImportDame/CodedProperties.h>
#include <ImportDame/DataType.h>
#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/TextTableRowCollection.h>

namespace ImportDame {

/// A data type whose physical value is the text of the row that covers the coded one.
class IMPORTDAME_API VTextTableDataType : public VDataType {
public:
    explicit VTextTableDataType(VDataTypeCollection& dataTypeCollection);
    ~VTextTableDataType() override;

    void Accept(VDataTypeVisitor& visitor) override;

    VCodedProperties& CodedProperties() { return m_codedProperties; }

    VTextTableRowCollection& TextTableRowCollection() { return m_textTableRowCollection; }

private:
    VCodedProperties m_codedProperties;
    VTextTableRowCollection m_textTableRowCollection;
};

} // namespace ImportDame
