#include "ProtobufModel.h"

#include <string_view>

void Bench::AddProtobuf(std::vector<Scenario>& scenarios) {
    const auto add = [&](std::string_view name, const std::vector<Subject>& subjects) {
        for (Scenario& scenario : scenarios)
            if (scenario.name == name)
                scenario.subjects.insert(scenario.subjects.end(), subjects.begin(), subjects.end());
    };
    add("codes", ProtobufTroubleCodes());
    add("types", ProtobufDataTypes());
    add("packets", ProtobufPackets());
}
