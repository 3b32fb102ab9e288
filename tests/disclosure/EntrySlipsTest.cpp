#include "disclosure/EntrySlips.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

TEST(EntrySlips, AnEntryIsComparedWithTheOneBeforeIt) {
  DisclosureEntry entry;
  entry.txtBal.text = "1000";
  entry.txtIntRateA.text = "525";
  entry.txtDailyRateFactor.text = "1/36";
  DisclosureCheck check;
  EXPECT_TRUE(SlipOf(check, entry, "txtDailyRateFactor"));
  EXPECT_FALSE(SlipOf(check, entry, "txtIntRateA"));
  DisclosureEntry before = entry;
  before.txtIntRateA.text = "5.00";
  check.entries = {before, entry};
  check.completed = 1;
  EXPECT_TRUE(SlipOf(check, entry, "txtIntRateA"));
  EXPECT_FALSE(SlipOf(check, entry, "txtBal"));
  check.completed = 2;
  EXPECT_FALSE(SlipOf(check, entry, "txtIntRateA"));
}

}  // namespace
}  // namespace corvane
