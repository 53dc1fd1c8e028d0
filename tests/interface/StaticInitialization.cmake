# What runs when the library is loaded, and so in every host, also in one that never uses it: the registry of documents, the
# registration of the log group, and the exported texts of two classes. No other source may need anything at that time.

execute_process(COMMAND "${NM}" "${LIBRARY}" OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "_GLOBAL__sub_I_[A-Z][^\n]*" found "${symbols}") # those with a number in front are a sanitizer's
list(TRANSFORM found REPLACE "_GLOBAL__sub_I_(.*)\\.cpp.*" "\\1")
list(SORT found)
if(NOT found STREQUAL "ImportDoc;LogGroup;TroubleCode;Value")
    message(FATAL_ERROR "Initialized when the library is loaded: ${found}")
endif()
