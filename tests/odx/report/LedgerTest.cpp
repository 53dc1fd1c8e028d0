#include "OdxImport/Ledger.h"

#include <gtest/gtest.h>

using OdxImport::Fate;
using OdxImport::Ledger;

TEST(LedgerTest, AnEmptyLedgerAddsUp) {
    EXPECT_TRUE(Ledger().AddsUp());
    EXPECT_EQ(Ledger().Total().seen, 0u);
}

TEST(LedgerTest, WhatWasSeenButNotSettledDoesNotAddUp) {
    Ledger ledger;
    ledger.See("DTC", 3);
    ledger.Settle("DTC", Fate::Imported, "", 2);
    EXPECT_FALSE(ledger.AddsUp());
    ledger.Settle("DTC", Fate::Dropped, "no number");
    EXPECT_TRUE(ledger.AddsUp());
}

TEST(LedgerTest, WhatWasSettledTwiceDoesNotAddUp) {
    Ledger ledger;
    ledger.See("DTC");
    ledger.Settle("DTC", Fate::Imported, "");
    ledger.Settle("DTC", Fate::NotRepresented, "twice");
    EXPECT_FALSE(ledger.AddsUp());
}

TEST(LedgerTest, OneKindCannotMakeUpForAnother) {
    Ledger ledger;
    ledger.See("DTC", 1);
    ledger.See("UNIT", 1);
    ledger.Settle("DTC", Fate::Imported, "", 2);
    EXPECT_FALSE(ledger.AddsUp());
}

TEST(LedgerTest, ReasonsAreCountedPerFateAndText) {
    Ledger ledger;
    ledger.See("PARAM", 6);
    ledger.Settle("PARAM", Fate::Dropped, "unknown kind", 2);
    ledger.Settle("PARAM", Fate::Dropped, "unknown kind");
    ledger.Settle("PARAM", Fate::Dropped, "no position");
    ledger.Settle("PARAM", Fate::NotRepresented, "unknown kind");
    ledger.Settle("PARAM", Fate::Imported, "not a reason");
    const Ledger::Row& row = ledger.AllRows().find("PARAM")->second;
    EXPECT_EQ(row.counts.dropped, 4u);
    EXPECT_EQ(row.counts.notRepresented, 1u);
    EXPECT_EQ(row.counts.imported, 1u);
    ASSERT_EQ(row.reasons.size(), 3u);
    EXPECT_EQ(row.reasons.at({Fate::Dropped, "unknown kind"}), 3u);
    EXPECT_EQ(row.reasons.at({Fate::Dropped, "no position"}), 1u);
    EXPECT_EQ(row.reasons.at({Fate::NotRepresented, "unknown kind"}), 1u);
}

TEST(LedgerTest, TotalSumsAllKinds) {
    Ledger ledger;
    ledger.See("A", 2);
    ledger.See("B", 3);
    ledger.Settle("A", Fate::Imported, "", 2);
    ledger.Settle("B", Fate::NotRepresented, "r", 1);
    ledger.Settle("B", Fate::Dropped, "r", 2);
    const Ledger::Counts total = ledger.Total();
    EXPECT_EQ(total.seen, 5u);
    EXPECT_EQ(total.imported, 2u);
    EXPECT_EQ(total.notRepresented, 1u);
    EXPECT_EQ(total.dropped, 2u);
}

TEST(LedgerTest, FatesHaveNames) {
    EXPECT_STREQ(ToText(Fate::Imported), "imported");
    EXPECT_STREQ(ToText(Fate::NotRepresented), "not represented");
    EXPECT_STREQ(ToText(Fate::Dropped), "dropped");
}
