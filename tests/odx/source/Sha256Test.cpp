#include "source/Sha256.h"

#include "source/Sha256Blocks.h"

#include <gtest/gtest.h>

using OdxImport::Sha256;

TEST(Sha256Test, DigestsAreThoseOfTheStandard) {
    EXPECT_EQ(Sha256(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(Sha256("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(Sha256("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
              "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
    EXPECT_EQ(Sha256(std::string(1000000, 'a')), "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

TEST(Sha256Test, EveryLengthAroundABlockIsPaddedRight) {
    EXPECT_EQ(Sha256(std::string(55, 'x')), "d5e285683cd4efc02d021a5c62014694958901005d6f71e89e0989fac77e4072");
    EXPECT_EQ(Sha256(std::string(56, 'x')), "04c26261370ee7541549d16dee320c723e3fd14671e66a099afe0a377c16888e");
    EXPECT_EQ(Sha256(std::string(63, 'x')), "75220b47218278e656f2013bb8f0c455a25eaf01e86c64924e9d48d89776d6f2");
    EXPECT_EQ(Sha256(std::string(64, 'x')), "7ce100971f64e7001e8fe5a51973ecdfe1ced42befe7ee8d5fd6219506b5393c");
}

TEST(Sha256Test, TheProcessorsInstructionsGiveTheSameAsThePlainSteps) {
    if (!OdxImport::CanAccelerateSha256())
        GTEST_SKIP() << "NOT RUN: this processor has no such instructions";
    std::string blocks(640, '\0');
    for (std::size_t i = 0; i < blocks.size(); ++i)
        blocks[i] = static_cast<char>(i * 37 + i / 7);
    for (std::size_t count = 0; count <= 10; ++count) {
        OdxImport::Sha256State fast{1, 2, 3, 4, 5, 6, 7, 0xFFFFFFFF}, plain = fast;
        OdxImport::CompressAccelerated(fast, blocks.data(), count);
        OdxImport::CompressPortable(plain, blocks.data(), count);
        EXPECT_EQ(fast, plain) << count;
    }
}
