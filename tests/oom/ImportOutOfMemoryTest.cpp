#include "Commands.h"
#include "ExitCodes.h"

#include "app/Program.h"
#include "oom/ParserMemory.h"
#include "support/FailingAllocation.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>

using ConsoleImportTests::ProgramTest;
using SqliteBackendTests::ReadFile;
using SqliteBackendTests::Rows;
using TestSupport::FailureMode;

namespace {

/// Of how many allocations one is made to fail, unless IMPORT_OOM_STRIDE says otherwise.
constexpr std::size_t usualStride = 211;

std::size_t Stride() {
    const char* text = std::getenv("IMPORT_OOM_STRIDE");
    const std::size_t stride = text != nullptr ? std::strtoul(text, nullptr, 10) : usualStride;
    return stride != 0 ? stride : usualStride;
}

struct Outcome {
    int exitCode = 0;
    bool hasFailed = false;        ///< an allocation failed
    std::ptrdiff_t blocksLeft = 0; ///< allocated and not freed
};

class ImportOutOfMemoryTest : public ProgramTest {
protected:
    static void SetUpTestSuite() {
        TestSupport::LetLibrariesUseOperatorNew();
        static char time[] = "SOURCE_DATE_EPOCH=1700000000";
        putenv(time);
    }

    void SetUp() override {
        Import(0, FailureMode::once); // what is made at first use and kept must not count as a leak
        m_complete = ReadFile(m_folder / "out.sqlite");
        ASSERT_GT(m_complete.size(), 10000U);
    }

    /// With allocation `number` failing; 0 is none.
    Outcome Import(std::size_t number, FailureMode mode) const {
        Outcome outcome;
        const std::size_t before = TestSupport::LiveBlocks();
        {
            const std::vector<std::string> arguments{"import", SAMPLE_ARCHIVE,  "--output", File("out.sqlite"),
                                                     "--dump", File("out.txt"), "--log",    File("log.txt")};
            std::ostringstream out, err;
            const ConsoleImport::Streams streams{out, err};
            if (number != 0)
                TestSupport::FailAllocation(number, mode);
            outcome.exitCode = ConsoleImport::Run(arguments, streams);
            outcome.hasFailed = TestSupport::StopFailing();
        }
        outcome.blocksLeft = static_cast<std::ptrdiff_t>(TestSupport::LiveBlocks() - before);
        return outcome;
    }

    /// Fails every Stride()-th allocation, the first and the last ones too; answers how many failures were survived.
    std::size_t FailInTurn(FailureMode mode) {
        const std::size_t stride = Stride();
        std::size_t survived = 0;
        for (std::size_t number = 1; !HasFailure(); number += stride) {
            std::ofstream(m_folder / "out.sqlite", std::ios::binary) << "the old database";
            const Outcome outcome = Import(number, mode);
            if (!outcome.hasFailed)
                break;
            ++survived;
            Check(outcome, number);
        }
        return survived;
    }

    void Check(const Outcome& outcome, std::size_t number) const {
        const bool isDone = outcome.exitCode == ConsoleImport::exitDone; // somebody could do without the memory
        // A stream that finds no memory for its buffer says no more than that it cannot write.
        if (!isDone && outcome.exitCode != ConsoleImport::exitOutput) {
            EXPECT_EQ(outcome.exitCode, ConsoleImport::exitOutOfMemory) << "allocation " << number;
        }
        EXPECT_TRUE(ReadFile(m_folder / "out.sqlite") == (isDone ? m_complete : "the old database"))
            << "allocation " << number;
        for (const std::string& name : m_folder.Names())
            EXPECT_EQ(name.find(".partial-"), std::string::npos) << "allocation " << number;
        if (IMPORT_SEES_EVERY_BLOCK) {
            EXPECT_EQ(outcome.blocksLeft, 0) << "leak after the failure of allocation " << number;
        }
    }

    std::string m_complete;
};

} // namespace

TEST_F(ImportOutOfMemoryTest, AnAllocationThatFailsLeavesTheOldDatabaseOrTheNewOne) {
    const std::size_t survived = FailInTurn(FailureMode::once);
    EXPECT_GE(survived, 50U);
    std::cout << "survived " << survived << " single failures, one of " << Stride() << " allocations each\n";
}

TEST_F(ImportOutOfMemoryTest, AllocationsThatFailFromOneOnLeaveTheOldDatabaseOrTheNewOne) {
    const std::size_t survived = FailInTurn(FailureMode::andLater);
    EXPECT_GE(survived, 50U);
    std::cout << "survived " << survived << " failures of all that follow, from one of " << Stride()
              << " allocations each\n";
}

TEST_F(ImportOutOfMemoryTest, AnUntouchedImportLeavesNothingAllocated) {
    const Outcome outcome = Import(0, FailureMode::once);
    EXPECT_EQ(outcome.exitCode, 0);
    if (IMPORT_SEES_EVERY_BLOCK) {
        EXPECT_EQ(outcome.blocksLeft, 0);
    }
    EXPECT_TRUE(ReadFile(m_folder / "out.sqlite") == m_complete);
}
