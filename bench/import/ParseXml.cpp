// ParseXml FILE: pugixml reads the document and nothing else is done with it.

#include <cstdio>
#include <pugixml.hpp>

int main(int count, char** arguments) {
    pugi::xml_document document;
    const pugi::xml_parse_result result = document.load_file(count == 2 ? arguments[1] : "");
    if (!result)
        std::fprintf(stderr, "ParseXml: %s\n", result.description());
    return result ? 0 : 1;
}
