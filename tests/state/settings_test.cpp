#include "state/settings.h"

#include "tests/support/state_test.h"

namespace tr7 {
namespace {

class SettingsTest : public StateTest {};

TEST_F(SettingsTest, WhatIsStoredIsTakenWithinItsRange) {
  const std::tuple<const char*, std::int16_t AppStateRecord::*, const char*, int> rows[] = {
      {"VelOf100Pls", &AppStateRecord::VelOf100Pls, "60", 60},
      {"VelOf100Pls", &AppStateRecord::VelOf100Pls, "61", 1},
      {"VelOf100Pls", &AppStateRecord::VelOf100Pls, "fast", 1},
      {"AccOf100Pls", &AppStateRecord::AccOf100Pls, "-1", -1},
      {"AccOf100Pls2", &AppStateRecord::AccOf100Pls2, "0", 0},
      {"AccOfJog", &AppStateRecord::AccOfJog, "4", 1},
      {"AccOfJog2", &AppStateRecord::AccOfJog2, "0", 1},
      {"PortNo", &AppStateRecord::PortNo, "10", 1},
      {"Language", &AppStateRecord::LangOffset, "2", 10000}};
  for (const auto& [key, field, stored, expected] : rows) {
    virt.settings.Set("Settings", key, stored);
    LoadMotionSettings();
    LoadDefaults();
    EXPECT_EQ(AppState.*field, expected) << key << " = " << stored;
  }
}

}  // namespace
}  // namespace tr7
