#include <ImportDame/ImportDame.h>

#include <gtest/gtest.h>

TEST(InterfaceTest, X) {}
