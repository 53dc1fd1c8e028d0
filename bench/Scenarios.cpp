#include "Model.h"

const std::vector<Bench::Scenario>& Bench::Scenarios() {
    static const std::vector<Scenario> scenarios = [] {
        std::vector<Scenario> all{
            {"codes",
             {{"library", MakeLibraryTroubleCodes},
              {"plain", MakePlainTroubleCodes},
              {"pugixml", MakePugiTroubleCodes}}},
            {"types",
             {{"library", MakeLibraryDataTypes}, {"plain", MakePlainDataTypes}, {"pugixml", MakePugiDataTypes}}},
            {"packets", {{"library", MakeLibraryPackets}, {"plain", MakePlainPackets}, {"pugixml", MakePugiPackets}}},
            {"variant", {{"library", MakeLibraryVariant}, {"plain", MakePlainVariant}}},
        };
        AddProtobuf(all);
        return all;
    }();
    return scenarios;
}
