importdame_fetch_source(pugixml source)
add_library(pugixml STATIC EXCLUDE_FROM_ALL "${source}/src/pugixml.cpp")
target_include_directories(pugixml SYSTEM INTERFACE "${source}/src")
add_library(ThirdParty::pugixml ALIAS pugixml)
