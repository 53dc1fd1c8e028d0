#include "KoCustomCrashHandling/CustomCrashHandling.h"

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <string>

namespace {

using namespace NCustomCrashHandling;

struct Request {
    VDumpType type;
    std::wstring path;
    bool hasCopyPath;
    EXCEPTION_POINTERS* exceptionPointers;
    int replaceExisting;
};

std::optional<Request> s_request;

bool RecordRequest(VDumpType type, const wchar_t* path, const wchar_t* copyPath, EXCEPTION_POINTERS* exceptionPointers,
                   int replaceExisting) {
    s_request = Request{type, path, copyPath != nullptr, exceptionPointers, replaceExisting};
    return true;
}

bool FailToWrite(VDumpType /*type*/, const wchar_t* /*path*/, const wchar_t* /*copyPath*/,
                 EXCEPTION_POINTERS* /*exceptionPointers*/, int /*replaceExisting*/) {
    throw std::runtime_error("no disk");
}

class CrashHandlingTest : public testing::Test {
protected:
    ~CrashHandlingTest() override {
        SetDumpWriter(nullptr);
        s_request.reset();
    }
};

TEST_F(CrashHandlingTest, ASetWriterReceivesTheRequestAsItWasMade) {
    SetDumpWriter(&RecordRequest);
    EXPECT_TRUE(CreateDumpFile(dumpMedium, L"D:\\Temp\\Dump1.dmp", nullptr, nullptr, 1));
    ASSERT_TRUE(s_request.has_value());
    EXPECT_EQ(s_request->type, 1);
    EXPECT_EQ(s_request->path, L"D:\\Temp\\Dump1.dmp");
    EXPECT_FALSE(s_request->hasCopyPath);
    EXPECT_EQ(s_request->exceptionPointers, nullptr);
    EXPECT_EQ(s_request->replaceExisting, 1);
}

TEST_F(CrashHandlingTest, WhatAWriterThrowsIsAFailureOnly) {
    SetDumpWriter(&FailToWrite);
    EXPECT_FALSE(CreateDumpFile(dumpMedium, L"x.dmp", nullptr, nullptr, 1));
}

TEST_F(CrashHandlingTest, WithoutAPathNothingIsWritten) {
    EXPECT_FALSE(CreateDumpFile(dumpMedium, nullptr, nullptr, nullptr, 1));
}

} // namespace
