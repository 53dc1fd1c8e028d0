# cmake -DREADME=<file> -DEXAMPLE=<source file> -P CompareReadme.cmake
#
# Fails unless the README shows the example as it stands.

file(READ "${README}" readme)
file(READ "${EXAMPLE}" example)
string(FIND "${readme}" "```cpp\n${example}```\n" position)
if(position EQUAL -1)
    message(FATAL_ERROR "${README} does not show ${EXAMPLE} as it stands.")
endif()
