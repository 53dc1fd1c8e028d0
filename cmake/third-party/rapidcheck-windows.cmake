message(VERBOSE "rapidcheck is not built for Windows: properties are tested on Linux.")
