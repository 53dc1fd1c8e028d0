#include "support/AllocationControl.h"

#include <ImportDame/BitField.h>
#include <ImportDame/Dumper.h>
#include <ImportDame/GapObject.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/InterchangeableCollection.h>

#include <KoLogging/Logging.h>

#include <gtest/gtest.h>

#include <new>

using namespace ImportDame;
using namespace NArdenaSharedUtil::Logging;
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

class Dumper : public VDumper {
public:
    void VisitStaticIterDataType(VStaticIterDataType&) override {}

    void VisitNumeratorIterDataType(VNumeratorIterDataType&) override {}

    void VisitEndOfServiceIterDataType(VEndOfServiceIterDataType&) override {}

    void VisitEndMarkerIterDataType(VEndMarkerIterDataType&) override {}

    using VDumper::GetShiftingBlanks;
};

TEST(DumperOutOfMemoryTest, AFailedDumpRestoresTheIndentationAndLeaksNothing) {
    const SilentLog log;
    VImportDoc document;
    VInterchangeableCollection* members = &document.InterchangeableCollection();
    for (int depth = 0; depth < 4; ++depth) // deep enough for an indentation that has to be allocated
        members = &members->AddNewBitField().InterchangeableCollection();
    members->AddNewGapObject().SetBitLength(1);
    Dumper dumper;
    for (const FailureMode mode : {FailureMode::once, FailureMode::andLater}) {
        bool failed = true;
        int survived = 0;
        for (std::size_t number = 1; failed && !HasFailure(); ++number) {
            const std::size_t before = LiveBlocks();
            TestSupport::FailAllocation(number, mode);
            try {
                dumper.Dump(document);
            } catch (const std::bad_alloc&) {
                ++survived;
            }
            failed = TestSupport::StopFailing();
            EXPECT_EQ(dumper.GetShiftingBlanks(), L"");
            EXPECT_EQ(LiveBlocks(), before);
        }
        EXPECT_GE(survived, 1);
    }
}

} // namespace
