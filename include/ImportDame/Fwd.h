/// @file
/// Forward declarations of every public class.
#pragma once

namespace ImportDame {

class VImportDoc;
class VImportDocChild;
class VQualified;
class VText;
class VAttribute;
class VAttributeCollection;

class VRecordItem;
class VRecordItemCollection;
class VItemMapping;
class VRecordTemplateMapping;
class VTroubleCode;
class VTroubleCodeCollection;
class VTroubleCodeCollectionCollection;

class VValue;
class VRange;
class VInvalidRange;
class VInvalidRangeCollection;
class VUnit;
class VUnitCollection;
class VConversion;
class VLinearConversion;
class VLinearConversionCollection;
class VTextTableRow;
class VTextTableRowCollection;
class VValueTableRow;
class VValueTableRowCollection;
class VFile;
class VAdditionalFile;
class VAdditionalFileCollection;
class VFunction;
class VFunctionCollection;

class VProperties;
class VCodedAtomProperties;
class VFieldProperties;
class VCodedProperties;
class VPhysicalDisplayProperties;
class VPhysicalAtomProperties;
class VPhysicalProperties;
class VDataType;
class VDataTypeCollection;
class VDataTypeVisitor;
class VIdentityDataType;
class VLinearDataType;
class VPiecewiseLinearDataType;
class VValueTableDataType;
class VTextTableDataType;
class VFormulaDataType;
class VProcedureDataType;
class VBasePacketDataType;
class VPacketDataType;
class VMuxDataType;
class VCase;
class VCaseCollection;
class VIterDataType;
class VStaticIterDataType;
class VNumeratorIterDataType;
class VEndMarkerIterDataType;
class VEndOfServiceIterDataType;

class VInterchangeable;
class VBaseDataObject;
class VDataObject;
class VBitField;
class VGapObject;
class VInterchangeableCollection;
class VInterchangeableVisitor;

class VVariant;
class VBaseVariant;
class VEcuVariant;
class VEcuVariantCollection;
class VVariantVisitor;
class VDiagComm;
class VDiagJob;
class VDiagService;
class VDiagServiceShape;
class VDiagCommCollection;
class VDiagServiceShapeCollection;
class VDiagCommVisitor;
class VServiceMapping;
class VMappable;

class VDataTypeDefaultVisitor;
class VDataTypeTraverser;
class VInterchangeableTraverser;
class VImportDocTraverser;
class VDataTypePropertiesVisitor;
class VDumper;

} // namespace ImportDame
