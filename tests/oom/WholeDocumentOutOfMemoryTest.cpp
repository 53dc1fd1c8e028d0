#include "oom/scenario/World.h"
#include "support/AllocationControl.h"

#include <KoLogging/Logging.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <iostream>
#include <new>
#include <string>
#include <vector>

using namespace ImportDame;
using namespace NArdenaSharedUtil::Logging;
using Scenario::Step;
using Scenario::World;
using TestSupport::FailureMode;
using TestSupport::LiveBlocks;

namespace {

/// Receives what is logged and forgets it.
class SilentLog : public VLogSink {
public:
    SilentLog() { VLogging::GetInstance().SetSink(this); }

    ~SilentLog() override { VLogging::GetInstance().SetSink(nullptr); }

    void Write(VSeverityLevel, unsigned long, const wchar_t*) override {}
};

std::vector<Step> AllSteps() {
    std::vector<Step> steps;
    for (const auto part : {Scenario::TroubleCodeSteps(), Scenario::ValueSteps(), Scenario::DataTypeSteps(),
                            Scenario::PacketSteps(), Scenario::VariantSteps(), Scenario::CopyAndEndSteps()})
        steps.insert(steps.end(), part.begin(), part.end());
    return steps;
}

/// The life of a document as it goes while there is memory.
struct Life {
    Life() {
        World world;
        states.push_back(Scenario::Describe(world));
        for (const Step& step : steps) {
            step.run(world);
            states.push_back(Scenario::Describe(world));
        }
    }

    const std::vector<Step> steps = AllSteps();
    std::vector<std::wstring> states; ///< Before the first step, and after each.
};

void RunWithMemory(const Life& life, World& world, std::size_t first) {
    for (std::size_t i = first; i < life.steps.size(); ++i)
        life.steps[i].run(world);
}

std::string Where(const Life& life, std::size_t step, std::size_t number) {
    return "allocation " + std::to_string(number) + ", in the step that " + life.steps[step].name;
}

/// Lives the life with an allocation failing. The step that it hits has to say so and to change nothing; with memory
/// again, it and all that follow have to do what they always do. Answers whether there was such an allocation.
bool SurviveFailure(const Life& life, std::size_t number, FailureMode mode) {
    World world;
    TestSupport::FailAllocation(number, mode);
    for (std::size_t i = 0; i < life.steps.size(); ++i) {
        try {
            life.steps[i].run(world);
        } catch (const std::bad_alloc&) {
            EXPECT_TRUE(TestSupport::StopFailing());
            EXPECT_EQ(Scenario::Describe(world), life.states[i]) << Where(life, i, number);
            life.steps[i].run(world);
            EXPECT_EQ(Scenario::Describe(world), life.states[i + 1]) << Where(life, i, number);
            RunWithMemory(life, world, i + 1);
            EXPECT_EQ(Scenario::Describe(world), life.states.back());
            return true;
        }
    }
    EXPECT_FALSE(TestSupport::StopFailing()) << "allocation " << number << " failed without anyone learning of it";
    return false;
}

TEST(WholeDocumentOutOfMemoryTest, EveryAllocationInTheLifeOfADocumentMayFail) {
    const SilentLog log;
    const Life life;
    std::size_t survived = 0;
    for (const FailureMode mode : {FailureMode::once, FailureMode::andLater}) {
        for (std::size_t number = 1; !HasFailure(); ++number) {
            const std::size_t before = LiveBlocks();
            const bool failed = SurviveFailure(life, number, mode);
            EXPECT_EQ(LiveBlocks(), before) << "leak after the failure of allocation " << number;
            EXPECT_EQ(TestSupport::TakeDamagedBlocks(), 0U) << "write behind a block after allocation " << number;
            if (!failed)
                break;
            ++survived;
        }
    }
    std::cout << "allocation failures survived: " << survived << " in a life of " << life.steps.size() << " steps\n";
    EXPECT_GE(survived, 900U);
}

} // namespace
