# Fails unless the test program refers to every operation that the library exports.

include("${CMAKE_CURRENT_LIST_DIR}/Exports.cmake")

importdame_interface_of(names "${LIBRARY}")
list(FILTER names EXCLUDE REGEX "^(vtable|typeinfo) for ")
# Functions are undefined in the program, constants are copied into it.
importdame_read_symbols(called "${WORK_FILE}" "${NM}" -D "${PROGRAM}")
list(REMOVE_ITEM names ${called})

# Private: nobody outside can call them.
list(REMOVE_ITEM names
    "ImportDame::VCodedAtomProperties::operator=(ImportDame::VCodedAtomProperties const&)"
    "ImportDame::VDataTypePropertiesVisitor::Answer(bool, bool, bool, bool)"
    "ImportDame::VDumper::DumpMembers(ImportDame::VInterchangeableCollection&)"
    "ImportDame::VRecordItemCollection::ItemAt(unsigned int) const"
    "ImportDame::VValue::Swap(ImportDame::VValue&)"
)
if(names)
    list(JOIN names "\n  " names)
    message(FATAL_ERROR "${PROGRAM} never calls:\n  ${names}")
endif()
