#include "TroubleCodeModel.h"

const std::vector<Bench::Subject>& Bench::Subjects() {
    static const std::vector<Subject> subjects{
        {"library", MakeLibraryModel},   {"plain", MakePlainModel},         {"pugixml", MakePugiModel},
        {"protobuf", MakeProtobufModel}, {"arena", MakeProtobufArenaModel},
    };
    return subjects;
}
